// What the buyer pays, and where it goes.
#pragma once

#include <vector>

#include "base/Single.h"
#include "engine/clsCalculate.h"

namespace quillet {

enum class PartKind {
  Outlay,
  Insertion,
  Features,
  Reserve,
  FinalValue,
  // Today's sale fees have these in its place.
  Category,
  Order,
  Regulatory,
  Advertising,
  Surcharges,
  TaxOnFees,
  PayPal,
  Postage,
  Profit,
};

struct Part {
  PartKind eKind = PartKind::Profit;
  const char* sName = "";
  Single fAmount;  ///< below 0: a loss
};

struct Breakdown {
  Single fPrice;              ///< of all that is sold
  Single fPostage;            ///< the cost of postage
  Single fPostageProfit;      ///< what the seller adds to it
  Single fWhole;              ///< all that the buyer pays
  Single fFees;               ///< all but outlay, postage and profit
  std::vector<Part> aoParts;  ///< they add up to fWhole
};

/// Reads the totals of the latest DoCalc. The final value fee is what was charged, though an
/// auction that sells nothing shows none. Where today's sale fees are paid, their parts are given
/// instead.
[[nodiscard]] Breakdown BreakDown(const clsCalculate& oAuction);

/// All that the buyer would pay at that price for each item.
[[nodiscard]] double IncomeAt(const clsCalculate& oAuction, Single fPrice);

}  // namespace quillet
