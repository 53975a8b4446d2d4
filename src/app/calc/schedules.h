// The fee schedules on offer, as the command line lists and finds them.
#pragma once

#include <string>

#include "app/calc/Status.h"

namespace quillet {

/// Prints one a line: a star for the one that counts without --prices, its name, its file, and what
/// is wrong with it. Without any it is kUnusable, with a complaint. Throws an OutputFailure.
[[nodiscard]] Status ListSchedules();

/// The file that --prices means by a path, or by the name of a schedule on offer in any case; a
/// path where a file lies comes first. A Failure that lists the names if there is neither.
[[nodiscard]] std::string ScheduleFileOf(const std::string& sPathOrName);

}  // namespace quillet
