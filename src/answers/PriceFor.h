// What an item must sell for.
#pragma once

#include <optional>

#include "answers/Goal.h"
#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// The lowest price at which a goal is met, with the other inputs as they are: the estimated end
/// price, or for a fixed-price listing its price. Nothing if no price up to kHighestPrice does it.
/// Profit may fall where a tier begins, so a higher price need not meet the goal.
[[nodiscard]] std::optional<Cents> PriceFor(const clsCalculate& oAuction, const Goal& oGoal);

}  // namespace quillet
