// What an item must sell for.
#pragma once

#include <optional>

#include "answers/Goal.h"
#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// The lowest price at which a goal is met, other inputs being as they are: the estimated end
/// price, which at a fixed price is the price. Nothing if no price up to kHighestPrice does it.
/// Profit may fall where a tier begins, so a higher price need not meet the goal.
[[nodiscard]] std::optional<Cents> PriceFor(const clsCalculate& oAuction, const Goal& oGoal);

}  // namespace quillet
