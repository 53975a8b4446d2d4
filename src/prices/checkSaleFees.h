// Checks what only a schedule of today's fees has.
#pragma once

#include "prices/Schedule.h"

namespace quillet {

/// The schedule's "FeeModel", which is reported if it is neither of the two.
[[nodiscard]] FeeModel AskFeeModel(Schedule& oSchedule);

/// Reports whatever is wrong with the categories, the surcharges, and the tables that replace
/// others.
void CheckSaleFees(Schedule& oSchedule);

}  // namespace quillet
