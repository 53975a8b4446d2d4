#include "shell/whatif/curveScale.h"

#include <algorithm>
#include <cmath>

namespace quillet {

double RoundStep(double fRange, int nMostSteps) {
  const double fLeast = fRange / nMostSteps;
  const double fPower = std::pow(10.0, std::floor(std::log10(fLeast)));
  for (const int nTimes : {1, 2, 5}) {
    if (nTimes * fPower >= fLeast) {
      return nTimes * fPower;
    }
  }
  return 10 * fPower;
}

CurveScale::CurveScale(const std::vector<CurvePoint>& aoPoints, const QRectF& oPlot)
    : m_oPlot(oPlot) {
  constexpr int kMostSteps = 4;
  constexpr double kLeastRange = 1;
  for (const CurvePoint& oPoint : aoPoints) {
    m_fLastPrice = std::max<double>(m_fLastPrice, oPoint.nPrice);
    m_fLowest = std::min<double>(m_fLowest, oPoint.fProfit);
    m_fHighest = std::max<double>(m_fHighest, oPoint.fProfit);
  }
  m_fStep = RoundStep(std::max(m_fHighest - m_fLowest, kLeastRange), kMostSteps);
  m_fLowest = std::floor(m_fLowest / m_fStep) * m_fStep;
  m_fHighest = std::max(std::ceil(m_fHighest / m_fStep) * m_fStep, m_fLowest + m_fStep);
}

QPointF CurveScale::At(double fPrice, double fProfit) const {
  const double fUp = (fProfit - m_fLowest) / (m_fHighest - m_fLowest);
  return {m_oPlot.left() + fPrice / m_fLastPrice * m_oPlot.width(),
          m_oPlot.bottom() - fUp * m_oPlot.height()};
}

double CurveScale::PriceAt(double fX) const {
  return std::clamp((fX - m_oPlot.left()) / m_oPlot.width(), 0.0, 1.0) * m_fLastPrice;
}

}  // namespace quillet
