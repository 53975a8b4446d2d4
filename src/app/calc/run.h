// Calculates what the command line names and prints the results.
#pragma once

#include "app/calc/Options.h"
#include "app/calc/Status.h"

namespace quillet {

/// Loads the requested schedule as the program's; complains and gives kUnusable if it can't be
/// used.
[[nodiscard]] Status LoadSchedule(const Options& oOptions);

/// Complains about anything that fails on the way.
[[nodiscard]] Status RunAuctions(Options oOptions);

}  // namespace quillet
