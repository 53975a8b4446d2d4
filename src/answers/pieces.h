// Where, on the scale of prices, fees may jump or turn.
#pragma once

#include <vector>

#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// The prices of a range at which a tier of the schedule begins or has just ended, after the
/// range's first price: in order, each once. Between two of them fees grow evenly, apart from
/// rounding. Reads the postage of the latest DoCalc.
[[nodiscard]] std::vector<Cents> PieceStarts(const clsCalculate& oAuction, Cents nFrom,
                                             Cents nLast);

/// The most that rounding, other than that of floats, changes the fees by: half a unit of the
/// currency for PayPal, and with today's fees half a cent for each order and for its tax.
[[nodiscard]] double MostRounded(const clsCalculate& oAuction);

}  // namespace quillet
