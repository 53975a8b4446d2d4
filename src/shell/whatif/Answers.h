// Everything that the what-if window says about an auction.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "answers/Alternatives.h"
#include "answers/Breakdown.h"
#include "answers/Curve.h"
#include "answers/Goal.h"
#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

struct Answers {
  Single fPrice;  ///< of one item
  Single fProfit;
  Breakdown oBreakdown;
  std::optional<double> fReturn;  ///< percent of the selling cost
  std::optional<double> fMargin;  ///< percent of what is asked for all items
  std::optional<Cents> nBreakEven;
  std::optional<Cents> nGoalPrice;
  bool bPaysSaleFees = false;                       ///< today's
  std::optional<std::int32_t> nHighestAdvertising;  ///< tenths of a percent that still break even
  std::vector<CurvePoint> aoCurve;
  std::vector<Alternative> aoAlternatives;
};

/// Leaves the auction as it is. Throws a Failure if it can't be calculated.
[[nodiscard]] Answers AnswersFor(const clsCalculate& oAuction, const Goal& oGoal);

}  // namespace quillet
