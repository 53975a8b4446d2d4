// Whether a fee schedule from elsewhere may replace another.
#pragma once

#include <string>

#include "prices/clsPrices.h"

namespace quillet {

/// Throws a Failure if the schedule holds nothing that the region looks up.
void RequireFees(const clsPrices& oPrices);

/// Throws a Failure that says why, if the schedule holds nothing that the region looks up, or lacks
/// a table of tiers that the file `sPresent` has, as a file that was cut off may.
void RequireReplacement(const clsPrices& oPrices, const std::string& sPresent);

}  // namespace quillet
