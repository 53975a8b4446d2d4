// Reads an update file as a careful maintainer would.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "prices/Schedule.h"

namespace quillet {

/// What is wrong with the text of an update file of this program's region, by line. What is missing
/// is found in the last line.
[[nodiscard]] std::vector<Finding> CheckSchedule(std::string_view sText);

/// The first of these by which some sale can't be priced: a table is missing or lacks a number, or
/// a value isn't the number that it must be. Quicker, since nothing else is looked for.
[[nodiscard]] std::optional<Finding> FirstMissingPrice(std::string_view sText);

}  // namespace quillet
