// The program's two auctions, the text of any, and the sample auctions.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/region.h"
#include "engine/clsCalculate.h"
#include "support/Log.h"

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

struct Sample {
  std::string sPath;
  std::string sName;
  std::string sText;
  bool bOfThisRegion;
};

/// The sample auctions of a folder, by their names.
inline std::vector<Sample> Samples(const std::string& sFolder = "data/samples") {
  std::vector<Sample> aoSamples;
  for (const auto& oEntry : std::filesystem::directory_iterator(QUILLET_SOURCE_DIR "/" + sFolder)) {
    if (oEntry.is_regular_file()) {
      const std::string sPath = oEntry.path().string();
      const std::string sName = oEntry.path().stem().string();
      const std::string sText = ReadTestFile(sPath);
      aoSamples.push_back({sPath, sName, sText.substr(0, sText.find('\n')),
                           sName.starts_with("uk-") == (RegionCode() == 0)});
    }
  }
  std::ranges::sort(aoSamples, {}, &Sample::sName);
  return aoSamples;
}

/// The texts of those that are the region's.
inline std::vector<std::string> SampleTexts() {
  std::vector<std::string> asTexts;
  for (const Sample& oSample : Samples()) {
    if (oSample.bOfThisRegion) {
      asTexts.push_back(oSample.sText);
    }
  }
  return asTexts;
}

}  // namespace quillet
