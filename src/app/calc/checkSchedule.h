// Reads an update file as a careful maintainer would.
#pragma once

#include <string>

#include "app/calc/Status.h"

namespace quillet {

/// Prints what is wrong with an update file of this program's region, one finding a line:
/// FILE:LINE: text. What is missing is found in the last line. A file that can't be read is
/// kUnusable. Throws an OutputFailure.
[[nodiscard]] Status CheckScheduleFile(const std::string& sPath);

}  // namespace quillet
