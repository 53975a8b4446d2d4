// The program's two auctions, and the text of any.
#pragma once

#include <string>

#include "engine/clsCalculate.h"

namespace quillet {

/// Both documents as at the first start, unchanged.
inline void ClearAuctions() {
  for (clsCalculate* const pAuction : {&WorkingAuction(), &DefaultAuction()}) {
    pAuction->Clear();
    pAuction->SetDirty(false);
  }
}

inline std::string TextOf(clsCalculate& oAuction) {
  std::string sText;
  oAuction.Serialize(sText, true);
  return sText;
}

}  // namespace quillet
