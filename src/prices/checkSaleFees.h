// The check of what only a schedule of today's fees has.
#pragma once

#include "prices/Schedule.h"

namespace quillet {

/// What the schedule's "FeeModel" says, which is reported if it says neither.
[[nodiscard]] FeeModel AskFeeModel(Schedule& oSchedule);

/// Reports whatever is wrong with the categories, the surcharges, and the tables that take the
/// place of others.
void CheckSaleFees(Schedule& oSchedule);

}  // namespace quillet
