// The program's two auctions, an auction as text, and the sample auctions.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/region.h"
#include "engine/clsCalculate.h"
#include "support/Log.h"

namespace quillet {

/// Clears both auctions, with nothing unsaved.
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

/// The sample auctions in a folder, sorted by name.
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

/// The texts of this region's samples.
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
