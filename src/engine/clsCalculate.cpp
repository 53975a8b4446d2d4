#include "engine/clsCalculate.h"

#include "base/failure.h"
#include "prices/clsPrices.h"

namespace quillet {

void clsCalculate::SetDirty(bool bDirty) {
  m_oAuctionType.m_bDirty = bDirty;
  m_oOutlay.m_bDirty = bDirty;
  m_oPayPal.m_bDirty = bDirty;
  m_oPostage.m_bDirty = bDirty;
  m_oSellingFeatures.m_bDirty = bDirty;
  m_oSaleFees.m_bDirty = bDirty;
}

bool clsCalculate::IsDirty() const {
  return m_oAuctionType.m_bDirty || m_oOutlay.m_bDirty || m_oPayPal.m_bDirty ||
         m_oPostage.m_bDirty || m_oSellingFeatures.m_bDirty || m_oSaleFees.m_bDirty;
}

void clsCalculate::DoCalc() {
  const SaleRates* const pSaleRates = Prices().Sale();
  m_oAuctionType.m_oSaleFees = pSaleRates != nullptr ? &m_oSaleFees : nullptr;
  m_fSellCost = m_oOutlay.DoCalc();
  m_fListingCost = m_oAuctionType.DoCalcListingFee(m_oOutlay);
  m_fReserveCost = m_oAuctionType.DoCalcReserveFee(m_oOutlay);
  m_fFinalValueFee = m_oAuctionType.DoCalcFinalValueFee(m_oOutlay);
  const Single fFees = m_fReserveCost + m_fListingCost + m_fFinalValueFee;
  if (m_oOutlay.m_lQuantity < 1) {
    m_fFinalValueFee = 0;  // only in the figure shown; the sum below keeps the fee
  }
  m_fSellCost = fFees + m_fSellCost;
  m_fSellCost = m_oSellingFeatures.DoCalc(&m_oAuctionType, &m_oOutlay) + m_fSellCost;
  m_fPostageCost = m_oPostage.DoCalc(&m_oOutlay);
  m_fPostageProfit = m_oPostage.DoCalcProfit();
  const Single fIncome =
      m_oOutlay.m_fEstimatedEndPrice * m_oOutlay.m_lQuantity + m_fPostageCost + m_fPostageProfit;
  if (pSaleRates != nullptr) {
    const Single fSaleFee = m_oSaleFees.DoCalc(*pSaleRates, m_oAuctionType, m_oOutlay, Orders(),
                                               m_fPostageCost + m_fPostageProfit);
    m_fFinalValueFee = m_fFinalValueFee + fSaleFee;
    m_fSellCost = m_fSellCost + fSaleFee;
  }
  m_fPayPayCost = m_oPayPal.DoCalc(fIncome, &m_oOutlay);
  m_fSellCost = m_fPayPayCost + m_fSellCost;
  const Single fCosts = m_fSellCost + m_fPostageCost;
  m_fProfit = fIncome - fCosts;
}

void clsCalculate::Copy(clsCalculate& oSourceAuction) {
  std::string sText;
  oSourceAuction.Serialize(sText, true);
  Serialize(sText, false);
}

void clsCalculate::Clear() {
  IgnoreFailure([this] { m_oAuctionType.Clear(); });
  IgnoreFailure([this] { m_oOutlay.Clear(); });
  IgnoreFailure([this] { m_oSellingFeatures.Clear(); });
  IgnoreFailure([this] { m_oPayPal.Clear(); });
  IgnoreFailure([this] { m_oPostage.Clear(); });
  m_oSaleFees.Clear();
}

clsCalculate& WorkingAuction() {
  static clsCalculate oAuction("Working Doc");
  return oAuction;
}

clsCalculate& DefaultAuction() {
  static clsCalculate oAuction("Default Auction");
  return oAuction;
}

}  // namespace quillet
