// Where the curve's prices and profits are on its plot.
#pragma once

#include <QPointF>
#include <QRectF>
#include <vector>

#include "answers/Curve.h"

namespace quillet {

/// 1, 2 or 5 times a power of ten, so that a range holds no more than that many steps.
[[nodiscard]] double RoundStep(double fRange, int nMostSteps);

/// The plot shows the curve's prices, in cents, from left to right, and from bottom to top whole
/// steps of profit that hold all of the curve, and 0.
class CurveScale {
 public:
  CurveScale(const std::vector<CurvePoint>& aoPoints, const QRectF& oPlot);

  [[nodiscard]] QPointF At(double fPrice, double fProfit) const;
  [[nodiscard]] double PriceAt(double fX) const;

  [[nodiscard]] double LastPrice() const { return m_fLastPrice; }
  [[nodiscard]] double ProfitStep() const { return m_fStep; }
  [[nodiscard]] double LowestProfit() const { return m_fLowest; }
  [[nodiscard]] double HighestProfit() const { return m_fHighest; }

 private:
  QRectF m_oPlot;
  double m_fLastPrice = 1;
  double m_fStep = 1;
  double m_fLowest = 0;
  double m_fHighest = 0;
};

}  // namespace quillet
