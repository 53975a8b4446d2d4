// The check of a fee schedule as the command line asks for it.
#pragma once

#include <string>

#include "app/calc/Status.h"

namespace quillet {

/// Prints what is wrong with an update file of this program's region, one finding a line:
/// FILE:LINE: text. A file that can't be read is kUnusable. Throws an OutputFailure.
[[nodiscard]] Status CheckScheduleFile(const std::string& sPath);

}  // namespace quillet
