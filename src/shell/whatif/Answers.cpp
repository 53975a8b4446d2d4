#include "shell/whatif/Answers.h"

#include <algorithm>

#include "answers/Advertising.h"
#include "answers/PriceFor.h"
#include "answers/Trial.h"

namespace quillet {
namespace {

/// Today's price in the middle, and the break-even if it isn't too far away.
Cents LastOfCurve(Single fPrice, std::optional<Cents> nBreakEven) {
  constexpr double kLeast = 1000;
  constexpr double kFar = 5;  // times today's price
  constexpr double kBehindBreakEven = 1.5;
  const double fToday = std::max(0.0, fPrice * 100);
  const double fBreakEven = nBreakEven.value_or(0);
  const bool bNear = fToday == 0 || fBreakEven <= kFar * fToday;
  const double fLast = std::max({kLeast, 2 * fToday, bNear ? kBehindBreakEven * fBreakEven : 0.0});
  return static_cast<Cents>(std::min<double>(fLast, kHighestPrice));
}

}  // namespace

Answers AnswersFor(const clsCalculate& oAuction, const Goal& oGoal) {
  Trial oTrial(oAuction);
  const clsCalculate& oAsItIs = oTrial.With(NoChange());
  Answers oAnswers;
  oAnswers.fPrice = oAsItIs.m_oOutlay.m_fEstimatedEndPrice;
  oAnswers.fProfit = oAsItIs.m_fProfit;
  oAnswers.oBreakdown = BreakDown(oAsItIs);
  oAnswers.fReturn = PercentOf(oAsItIs.m_fSellCost, oAsItIs.m_fProfit);
  oAnswers.fMargin = PercentOf(oAnswers.oBreakdown.fPrice, oAsItIs.m_fProfit);
  oAnswers.nBreakEven = PriceFor(oAuction, {});
  oAnswers.nGoalPrice = PriceFor(oAuction, oGoal);
  oAnswers.bPaysSaleFees = oAsItIs.m_oAuctionType.HasPaidSaleFees();
  oAnswers.nHighestAdvertising = HighestAdvertising(oAuction);
  oAnswers.aoCurve = Curve(oAuction, 0, LastOfCurve(oAnswers.fPrice, oAnswers.nBreakEven));
  oAnswers.aoAlternatives = Alternatives(oAuction);
  return oAnswers;
}

}  // namespace quillet
