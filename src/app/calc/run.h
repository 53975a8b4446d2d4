// Calculates what the command line names and prints the results.
#pragma once

#include "app/calc/Options.h"
#include "app/calc/Status.h"

namespace quillet {

/// Makes the schedule that was asked for the program's; complains and gives kUnusable if it can't
/// be used.
[[nodiscard]] Status LoadSchedule(const Options& oOptions);

/// Complains of what fails on the way.
[[nodiscard]] Status RunAuctions(Options oOptions);

}  // namespace quillet
