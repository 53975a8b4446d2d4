// The parts of a breakdown as they are shown.
#pragma once

#include <QColor>
#include <QString>
#include <vector>

#include "answers/Breakdown.h"

namespace quillet {

struct ShownPart {
  QString sName;
  Single fAmount;
  double fShare = 0;  ///< of the bar; below 0 for a loss
  QColor oColour;
  bool bProfit = false;
};

/// What the whole bar stands for: all that the buyer pays, or all costs if they are more.
[[nodiscard]] double BarLength(const Breakdown& oBreakdown);

/// In the breakdown's order, without parts of 0, but always with the profit. Insertion and features
/// are one part.
[[nodiscard]] std::vector<ShownPart> ShownParts(const Breakdown& oBreakdown);

/// A share in percent, rounded: "27 %".
[[nodiscard]] QString ShareText(const ShownPart& oPart);

}  // namespace quillet
