// Reads an update file as a careful maintainer would.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/calc/Schedule.h"
#include "app/calc/Status.h"

namespace quillet {

/// What is wrong with the text of an update file of this program's region, by line. What is missing
/// is found in the last line.
[[nodiscard]] std::vector<Finding> CheckSchedule(std::string_view sText);

/// Prints what is wrong with an update file of this program's region, one finding a line:
/// FILE:LINE: text. A file that can't be read is kUnusable. Throws an OutputFailure.
[[nodiscard]] Status CheckScheduleFile(const std::string& sPath);

}  // namespace quillet
