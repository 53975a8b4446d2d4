// Fee schedules for tests, and the printing of a Single.
#pragma once

#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "base/Single.h"
#include "base/conversions.h"
#include "base/region.h"
#include "prices/clsPrices.h"

namespace quillet {

inline void PrintTo(const Single& fValue, std::ostream* pOut) {
  *pOut << std::hexfloat << double{fValue} << std::defaultfloat << " (" << double{fValue} << ")";
}

/// Makes the lines of `sText` the program's fee schedule.
inline void UseSchedule(const std::string& sText) {
  auto oPrices = std::make_unique<clsPrices>();
  oPrices->LoadText(sText);
  UsePrices(std::move(oPrices));
}

/// Makes a shipped schedule the program's.
inline void UseShippedSchedule(const std::string& sName) {
  auto oPrices = std::make_unique<clsPrices>();
  oPrices->LoadFile(std::string(QUILLET_SOURCE_DIR) + "/data/" + sName);
  UsePrices(std::move(oPrices));
}

/// This region's schedule of 2007.
inline void UseShippedSchedule() {
  UseShippedSchedule(RegionCode() == 1 ? "UpdateUS_v0101.dat" : "UpdateUK_v0101.dat");
}

/// This region's schedule of today.
inline void UseScheduleOfToday() {
  UseShippedSchedule(RegionCode() == 1 ? "UpdateUS_2026-10.dat" : "UpdateUK_2026-10.dat");
}

/// The lines of a tier table; an end of -1 means no upper limit.
inline std::string Tiers(const std::string& sName,
                         const std::vector<std::array<const char*, 3>>& aoTiers) {
  std::string sLines = sName + "Ranges," + std::to_string(aoTiers.size()) + "\n";
  int nTier = 0;
  for (const auto& [sStart, sEnd, sValue] : aoTiers) {
    const std::string sNumber = std::to_string(++nTier);
    sLines += sName + "RangeStart" + sNumber + "," + sStart + "\n";
    sLines += sName + "RangeEnd" + sNumber + "," + sEnd + "\n";
    sLines += sName + "RangeValue" + sNumber + "," + sValue + "\n";
  }
  return sLines;
}

}  // namespace quillet
