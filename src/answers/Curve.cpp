#include "answers/Curve.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "answers/Trial.h"
#include "answers/pieces.h"

namespace quillet {
namespace {

constexpr int kSamples = 100;  // a fee may also bend between tiers, where it reaches its cap

std::vector<Cents> PricesToDraw(const clsCalculate& oAuction, Cents nFrom, Cents nLast) {
  std::vector<Cents> anPrices = PieceStarts(oAuction, nFrom, nLast);
  const std::size_t nPieces = anPrices.size();
  for (std::size_t i = 1; i < nPieces; ++i) {
    anPrices.push_back(anPrices[i] - 1);
  }
  for (std::int64_t i = 1; i <= kSamples; ++i) {
    anPrices.push_back(nFrom + static_cast<Cents>((nLast - nFrom) * i / kSamples));
  }
  std::sort(anPrices.begin(), anPrices.end());
  anPrices.erase(std::unique(anPrices.begin(), anPrices.end()), anPrices.end());
  return anPrices;
}

/// More than a cent on every item, and the rounding of both points.
bool IsJump(const CurvePoint& oBelow, const CurvePoint& oPoint, const clsCalculate& oAuction) {
  const double fMost = (oAuction.m_oOutlay.m_lQuantity + 0.5) / 100 + 2 * MostRounded(oAuction);
  return oPoint.nPrice - oBelow.nPrice == 1 && std::abs(oPoint.fProfit - oBelow.fProfit) > fMost;
}

}  // namespace

std::vector<CurvePoint> Curve(const clsCalculate& oAuction, Cents nFrom, Cents nLast) {
  Trial oTrial(oAuction);
  std::vector<CurvePoint> aoPoints;
  for (const Cents nPrice : PricesToDraw(oTrial.AtPrice(nFrom), nFrom, nLast)) {
    CurvePoint oPoint{nPrice, oTrial.AtPrice(nPrice).m_fProfit};
    oPoint.bJump = !aoPoints.empty() && IsJump(aoPoints.back(), oPoint, oTrial.Latest());
    aoPoints.push_back(oPoint);
  }
  return aoPoints;
}

}  // namespace quillet
