#include "answers/PriceFor.h"

#include <cmath>

#include "answers/Breakdown.h"
#include "answers/Trial.h"
#include "answers/pieces.h"

namespace quillet {
namespace {

/// A goal that the fees keep just out of reach would be tried at millions of prices, and none of
/// them tell more than the rounding of floats.
constexpr int kMostTries = 20'000;

class Search {
 public:
  Search(const clsCalculate& oAuction, const Goal& oGoal) : m_oTrial(oAuction), m_oGoal(oGoal) {}

  /// The lowest price of one piece, whose end is no more in it; `nEnd` if none does it. The next
  /// to try is the first one that would do it if it cost no more than the one just tried: within a
  /// piece, costs never fall as the price rises, so all before it fall short.
  [[nodiscard]] Cents LowestIn(Cents nPrice, Cents nEnd) {
    while (nPrice < nEnd && m_nTries < kMostTries) {
      ++m_nTries;
      if (m_oGoal.IsMet(m_oTrial.AtPrice(nPrice))) {
        return nPrice;
      }
      nPrice = FirstWhere(nPrice + 1, nEnd, [&](Cents n) { return CouldBeMetAt(PriceOf(n)); });
    }
    return nEnd;
  }

 private:
  [[nodiscard]] bool CouldBeMetAt(Single fPrice) const {
    constexpr double kNoise = 0x1p-22;  // more than the roundings of a profit's floats add up to
    const clsCalculate& oTried = m_oTrial.Latest();
    const double fIncome = IncomeAt(oTried, fPrice);
    const double fCosts = oTried.m_fSellCost + oTried.m_fPostageCost;
    const double fMostProfit = fIncome - fCosts + kNoise * (std::abs(fIncome) + std::abs(fCosts));
    return fPrice > oTried.m_oOutlay.m_fEstimatedEndPrice &&
           fMostProfit >= m_oGoal.ProfitNeeded(oTried, fPrice);
  }

  Trial m_oTrial;
  Goal m_oGoal;
  int m_nTries = 0;
};

}  // namespace

std::optional<Cents> PriceFor(const clsCalculate& oAuction, const Goal& oGoal) {
  Search oSearch(oAuction, oGoal);
  const std::vector<Cents> anStarts = PieceStarts(oAuction.m_oOutlay, 0, kHighestPrice);
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
