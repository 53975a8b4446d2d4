// The fresh state of a model: that of an object that nobody has touched.
#pragma once

#include <string>

namespace quillet {

/// Gives a model the fresh values of what stands in its text (docs/auction-file.md). Its other
/// fields stay.
template <typename Model>
void MakeFresh(Model& oModel) {
  std::string sText;
  Model().Serialize(sText, true);
  oModel.Serialize(sText, false);
}

}  // namespace quillet
