#include "answers/Goal.h"

namespace quillet {

bool Goal::IsMet(const clsCalculate& oAuction) const {
  if (eKind == GoalKind::Profit) {
    return oAuction.m_fProfit >= fAmount;
  }
  const double fWhole = Whole(oAuction, oAuction.m_oOutlay.m_fEstimatedEndPrice);
  const std::optional<double> fPercent = PercentOf(fWhole, oAuction.m_fProfit);
  return fPercent ? *fPercent >= fAmount : oAuction.m_fProfit > 0;
}

double Goal::ProfitNeeded(const clsCalculate& oAuction, Single fPrice) const {
  return eKind == GoalKind::Profit ? fAmount : fAmount / 100 * Whole(oAuction, fPrice);
}

double Goal::Whole(const clsCalculate& oAuction, Single fPrice) const {
  return eKind == GoalKind::PercentOfCost ? double{oAuction.m_fSellCost}
                                          : fPrice * oAuction.m_oOutlay.m_lQuantity;
}

std::optional<double> PercentOf(double fWhole, Single fProfit) {
  return fWhole > 0 ? std::optional(fProfit / fWhole * 100) : std::nullopt;
}

}  // namespace quillet
