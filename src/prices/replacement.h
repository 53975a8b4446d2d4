// Whether a fee schedule from elsewhere may take the place of another.
#pragma once

#include <string>

#include "prices/clsPrices.h"

namespace quillet {

/// A Failure that says why, if the schedule holds nothing that the region asks for; or if it lacks
/// a table of tiers that the file `sPresent` has, as one does that was cut off.
void RequireReplacement(const clsPrices& oPrices, const std::string& sPresent);

}  // namespace quillet
