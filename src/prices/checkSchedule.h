// Reads an update file as a careful maintainer would.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "prices/Schedule.h"

namespace quillet {

/// What is wrong with the text of an update file of this program's region, by line. A missing key
/// is reported at the last line.
[[nodiscard]] std::vector<Finding> CheckSchedule(std::string_view sText);

/// The first fault that keeps some sale from being priced: a table is missing or lacks a number, or
/// a value isn't the number that it must be. Quicker, since nothing else is looked for.
[[nodiscard]] std::optional<Finding> FirstMissingPrice(std::string_view sText);

}  // namespace quillet
