#include "answers/Trial.h"

namespace quillet {

/// The copied models still point into the original auction; DoCalc resets all those pointers.
void Trial::Reset() {
  m_oCopy.m_oAuctionType = m_oAuction.m_oAuctionType;
  m_oCopy.m_oOutlay = m_oAuction.m_oOutlay;
  m_oCopy.m_oPayPal = m_oAuction.m_oPayPal;
  m_oCopy.m_oSellingFeatures = m_oAuction.m_oSellingFeatures;
  m_oCopy.m_oPostage = m_oAuction.m_oPostage;
  m_oCopy.m_oSaleFees = m_oAuction.m_oSaleFees;
}

const clsCalculate& Trial::With(const Change& oChange) {
  Reset();
  oChange(m_oCopy);
  m_oCopy.DoCalc();
  return m_oCopy;
}

const clsCalculate& Trial::AtPrice(Cents nPrice) {
  SellFor(nPrice)(m_oCopy);
  m_oCopy.DoCalc();
  return m_oCopy;
}

}  // namespace quillet
