// Reads an update file as a careful maintainer would.
#pragma once

#include <string_view>
#include <vector>

#include "prices/Schedule.h"

namespace quillet {

/// What is wrong with the text of an update file of this program's region, by line. What is missing
/// is found in the last line.
[[nodiscard]] std::vector<Finding> CheckSchedule(std::string_view sText);

}  // namespace quillet
