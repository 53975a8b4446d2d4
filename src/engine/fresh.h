// The fresh state of a model: that of a new object.
#pragma once

#include <string>

namespace quillet {

/// Gives a model the fresh values of all that is in its text (docs/auction-file.md). Its other
/// fields stay.
template <typename Model>
void MakeFresh(Model& oModel) {
  std::string sText;
  Model().Serialize(sText, true);
  oModel.Serialize(sText, false);
}

}  // namespace quillet
