// Where, on the scale of prices, fees may jump or turn.
#pragma once

#include <vector>

#include "answers/Price.h"
#include "engine/clsOutlay.h"

namespace quillet {

/// The prices of a range at which a tier of the schedule begins or has just ended, after the
/// range's first price: in order, each once. Between two of them fees grow evenly, apart from
/// rounding.
[[nodiscard]] std::vector<Cents> PieceStarts(const clsOutlay& oOutlay, Cents nFrom, Cents nLast);

}  // namespace quillet
