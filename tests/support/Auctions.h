// The program's two auctions, and the text of any.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "base/region.h"
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

/// The texts of the samples that are the region's.
inline std::vector<std::string> SampleTexts() {
  std::vector<std::string> asTexts;
  const std::string sFolder = std::string(QUILLET_SOURCE_DIR) + "/data/samples";
  for (const auto& oEntry : std::filesystem::directory_iterator(sFolder)) {
    if (oEntry.is_regular_file() &&
        oEntry.path().filename().string().starts_with("uk-") == (RegionCode() == 0)) {
      std::ifstream oFile(oEntry.path());
      std::getline(oFile, asTexts.emplace_back());
    }
  }
  return asTexts;
}

}  // namespace quillet
