// The check of a fee schedule as the command line asks for it.
#pragma once

#include <string>

#include "app/calc/Status.h"
#include "prices/clsPrices.h"

namespace quillet {

/// False, with a complaint, if there is not one price in it that this program asks for.
[[nodiscard]] bool HoldsAPrice(const clsPrices& oPrices, const std::string& sPath);

/// Prints what is wrong with an update file of this program's region, one finding a line:
/// FILE:LINE: text. A file that can't be read, or holds no
/// price, is kUnusable. Throws an OutputFailure.
[[nodiscard]] Status CheckScheduleFile(const std::string& sPath);

}  // namespace quillet
