#include "shell/KeptAuction.h"

namespace quillet {
namespace {

std::string TextOf(clsCalculate& oAuction) {
  std::string sText;
  oAuction.Serialize(sText, true);
  return sText;
}

}  // namespace

KeptAuction::KeptAuction(clsCalculate& oAuction)
    : m_oAuction(oAuction),
      m_oAuctionType(oAuction.m_oAuctionType),
      m_oOutlay(oAuction.m_oOutlay),
      m_oPayPal(oAuction.m_oPayPal),
      m_oSellingFeatures(oAuction.m_oSellingFeatures),
      m_oPostage(oAuction.m_oPostage),
      m_oSaleFees(oAuction.m_oSaleFees),
      m_sText(TextOf(oAuction)) {}

bool KeptAuction::IsUnchanged() const {
  return TextOf(m_oAuction) == m_sText;
}

void KeptAuction::PutBack() {
  m_oAuction.m_oAuctionType = m_oAuctionType;
  m_oAuction.m_oOutlay = m_oOutlay;
  m_oAuction.m_oPayPal = m_oPayPal;
  m_oAuction.m_oSellingFeatures = m_oSellingFeatures;
  m_oAuction.m_oPostage = m_oPostage;
  m_oAuction.m_oSaleFees = m_oSaleFees;
}

}  // namespace quillet
