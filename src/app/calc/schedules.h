// The fee schedules on offer, as the command line lists and finds them.
#pragma once

#include <string>

#include "app/calc/Status.h"

namespace quillet {

/// Prints one a line: a star for the one used without --prices, its name, its file, and what is
/// wrong with it. If there is none, complains and gives kUnusable. May throw an OutputFailure.
[[nodiscard]] Status ListSchedules();

/// The file that --prices names: by its path, or else by the name of a schedule on offer, in any
/// case. If there is neither, throws a Failure that lists the names.
[[nodiscard]] std::string ScheduleFileOf(const std::string& sPathOrName);

}  // namespace quillet
