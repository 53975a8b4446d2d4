// The profit as a share of the selling cost, the way the summary shows it.
#pragma once

#include <optional>
#include <string>

#include "engine/clsCalculate.h"

namespace quillet {

/// Profit / selling cost in percent, cut to a whole number, in decimal digits: "33" for 1 / 3.
/// Nothing unless both are above 0. Reads the totals of the latest DoCalc.
[[nodiscard]] std::optional<std::string> ProfitPercentText(const clsCalculate& oAuction);

}  // namespace quillet
