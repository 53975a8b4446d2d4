// How the program ends.
#pragma once

#include <string_view>

namespace quillet {

enum Status : int {
  kEveryAuctionCalculated = 0,  ///< or nothing found by the check
  kSomeFailed = 1,              ///< or weren't read whole, or something found by the check
  kUnusable = 2,                ///< wrong usage, or a fee schedule that can't be used
};

/// Writes a line to standard error, after the program's name and without control characters.
void Complain(std::string_view sText);

/// In a handler: complains about what was caught, and returns how the program then ends.
[[nodiscard]] Status StatusOfCaught();

/// "quillet-calc", or the name of the other region's program.
[[nodiscard]] std::string_view ProgramName();

}  // namespace quillet
