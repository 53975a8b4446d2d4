#include "answers/PriceFor.h"

#include <algorithm>
#include <cmath>

#include "answers/Breakdown.h"
#include "answers/Trial.h"
#include "answers/pieces.h"

namespace quillet {
namespace {

/// Without this limit, a goal that the fees keep just out of reach would be tried at millions of
/// prices that differ only by the rounding of floats.
constexpr int kMostTries = 20'000;

class Search {
 public:
  Search(const clsCalculate& oAuction, const Goal& oGoal) : m_oTrial(oAuction), m_oGoal(oGoal) {
    m_oTrial.AtPrice(0);
  }

  [[nodiscard]] const clsCalculate& Latest() const { return m_oTrial.Latest(); }

  /// The lowest price in a piece, `nEnd` excluded, that meets the goal; `nEnd` if none does. The
  /// next to try is the first that would meet it at the costs of the one just tried: within a
  /// piece, costs never fall as the price rises, so all before it fall short.
  [[nodiscard]] Cents LowestIn(Cents nPrice, Cents nEnd) {
    constexpr int kFew = 8;
    constexpr Cents kFarEnough = 10'000;
    for (int nHere = 1; nPrice < nEnd && ++m_nTries < kMostTries; ++nHere) {
      if (m_oGoal.IsMet(m_oTrial.AtPrice(nPrice))) {
        return nPrice;
      }
      nPrice =
          nHere % kFew == 0
              ? SkipByChord(nPrice, std::min(nEnd, nPrice + std::max(nPrice, kFarEnough)))
              : FirstWhere(nPrice + 1, nEnd, [&](Cents n) { return CouldBeMetAt(PriceOf(n)); });
    }
    return nEnd;
  }

 private:
  [[nodiscard]] bool CouldBeMetAt(Single fPrice) const {
    const clsCalculate& oTried = m_oTrial.Latest();
    const double fCosts = oTried.m_fSellCost + oTried.m_fPostageCost;
    const double fMostProfit = IncomeAt(oTried, fPrice) - fCosts + Noise(fPrice);
    return fPrice > oTried.m_oOutlay.m_fEstimatedEndPrice &&
           fMostProfit >= m_oGoal.ProfitNeeded(oTried, fPrice);
  }

  /// For when those steps are small because fees or the goal take nearly all that a higher price
  /// brings. A piece is straight or bends upwards, apart from rounding, so it is below the line
  /// from the price just tried to the one before `nEnd`. Gives the price where that line comes near
  /// the goal; `nEnd` if it doesn't.
  [[nodiscard]] Cents SkipByChord(Cents nPrice, Cents nEnd) {
    const double fHere = Surplus();
    m_oTrial.AtPrice(nEnd - 1);
    const double fThere = Surplus();
    const double fRounding =
        (2 * MostRounded(m_oTrial.Latest()) + Noise(PriceOf(nEnd - 1))) * m_oGoal.WeightOfCosts();
    if (fHere + fRounding >= 0) {
      return nPrice + 1;
    }
    if (fThere + fRounding < 0) {
      return nEnd;
    }
    return nPrice + 1 +
           static_cast<Cents>((nEnd - 2 - nPrice) * (fHere + fRounding) / (fHere - fThere));
  }

  /// How far the latest trial is above the goal.
  [[nodiscard]] double Surplus() const {
    const clsCalculate& oTried = m_oTrial.Latest();
    return oTried.m_fProfit - m_oGoal.ProfitNeeded(oTried, oTried.m_oOutlay.m_fEstimatedEndPrice);
  }

  /// More than the roundings of a profit's floats add up to.
  [[nodiscard]] double Noise(Single fPrice) const {
    const clsCalculate& oTried = m_oTrial.Latest();
    return 0x1p-22 * (std::abs(IncomeAt(oTried, fPrice)) + std::abs(oTried.m_fSellCost) +
                      std::abs(oTried.m_fPostageCost));
  }

  Trial m_oTrial;
  Goal m_oGoal;
  int m_nTries = 0;
};

}  // namespace

std::optional<Cents> PriceFor(const clsCalculate& oAuction, const Goal& oGoal) {
  Search oSearch(oAuction, oGoal);
  const std::vector<Cents> anStarts = PieceStarts(oSearch.Latest(), 0, kHighestPrice);
  for (std::size_t i = 0; i < anStarts.size(); ++i) {
    const Cents nEnd = i + 1 < anStarts.size() ? anStarts[i + 1] : kHighestPrice + 1;
    const Cents nPrice = oSearch.LowestIn(anStarts[i], nEnd);
    if (nPrice < nEnd) {
      return nPrice;
    }
  }
  return std::nullopt;
}

}  // namespace quillet
