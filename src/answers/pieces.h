// The prices at which fees may jump or change their slope.
#pragma once

#include <vector>

#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// A range's first price, then those at which a tier of the schedule begins or has just ended: in
/// order, each once. Between two of them fees grow evenly, apart from rounding. Reads the postage
/// of the latest DoCalc.
[[nodiscard]] std::vector<Cents> PieceStarts(const clsCalculate& oAuction, Cents nFrom,
                                             Cents nLast);

/// The most that rounding, other than that of floats, changes the fees by: half a unit of the
/// currency for PayPal, and with today's fees half a cent for each order and for its tax.
[[nodiscard]] double MostRounded(const clsCalculate& oAuction);

}  // namespace quillet
