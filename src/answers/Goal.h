// What a seller wants to be left with.
#pragma once

#include <optional>

#include "base/Single.h"
#include "engine/clsCalculate.h"

namespace quillet {

enum class GoalKind {
  Profit,          ///< in money
  PercentOfCost,   ///< of the selling cost, as the summary counts it
  PercentOfPrice,  ///< of what is asked for all items: the margin
};

/// By default: to break even.
struct Goal {
  GoalKind eKind = GoalKind::Profit;
  double fAmount = 0;  ///< at least 0 if it is a percentage

  /// Reads the totals of the latest DoCalc. Where there is no cost or price to take a percentage
  /// of, any profit will do.
  [[nodiscard]] bool IsMet(const clsCalculate& oAuction) const;

  /// The profit that the goal asks for at another price, if the selling cost stays what it is.
  [[nodiscard]] double ProfitNeeded(const clsCalculate& oAuction, Single fPrice) const;

  /// How much more profit is needed if costs rise by 1, which also reduces the profit by 1.
  [[nodiscard]] double WeightOfCosts() const {
    return eKind == GoalKind::PercentOfCost ? 1 + fAmount / 100 : 1;
  }

 private:
  [[nodiscard]] double Whole(const clsCalculate& oAuction, Single fPrice) const;
};

/// A profit in percent of a cost or price; nothing unless that is above 0.
[[nodiscard]] std::optional<double> PercentOf(double fWhole, Single fProfit);

}  // namespace quillet
