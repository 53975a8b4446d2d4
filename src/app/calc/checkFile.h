// Checks a fee schedule for the command line.
#pragma once

#include <string>

#include "app/calc/Status.h"
#include "prices/clsPrices.h"

namespace quillet {

/// False, with a complaint, if it has none of the prices that this program uses.
[[nodiscard]] bool HoldsAPrice(const clsPrices& oPrices, const std::string& sPath);

/// Prints what is wrong with an update file of this program's region, one finding a line:
/// FILE:LINE: text. Gives kUnusable for a file that can't be read or holds no price. May throw an
/// OutputFailure.
[[nodiscard]] Status CheckScheduleFile(const std::string& sPath);

}  // namespace quillet
