// Profit by price, as a line to draw.
#pragma once

#include <vector>

#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

struct CurvePoint {
  Cents nPrice = 0;
  Single fProfit;
  bool bJump = false;  ///< a tier begins here: profit jumps from the point before, a cent below
};

/// The profit from one price to another, both included and the first below the last. Wherever a
/// tier begins there is a point on either side, so that a jump is drawn as one.
[[nodiscard]] std::vector<CurvePoint> Curve(const clsCalculate& oAuction, Cents nFrom, Cents nLast);

}  // namespace quillet
