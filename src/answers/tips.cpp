#include "answers/tips.h"

#include <algorithm>

#include "answers/Trial.h"
#include "engine/featureNames.h"
#include "prices/money.h"

namespace quillet {
namespace {

/// A picture pack may cost less than its pictures.
std::string CostText(Single fCost) {
  const double fLeastSeen = 0.5 / CurrencyUnitsPerMajor();
  return fCost <= -fLeastSeen ? "saves " + FormatMoney(-fCost)
                              : FormatMoney(std::max<double>(fCost, 0));
}

/// The features that the choice drops: ", without Bold, Border and Feature Plus".
std::string DroppedText(const clsSellingFeatures& oBefore, const clsSellingFeatures& oAfter,
                        std::int32_t lClicked) {
  std::string sDropped;
  std::string sLast;
  for (const FeatureName& oFeature : kFeatureNames) {
    if (oFeature.eBit != lClicked && oBefore.HasFeature(oFeature.eBit) &&
        !oAfter.HasFeature(oFeature.eBit)) {
      sDropped += sDropped.empty() ? sLast : ", " + sLast;
      sLast = oFeature.sName;
    }
  }
  if (sLast.empty()) {
    return "";
  }
  return ", without " + (sDropped.empty() ? sLast : sDropped + " and " + sLast);
}

std::string ProfitText(const clsCalculate& oBefore, const clsCalculate& oAfter, bool bChosen,
                       std::int32_t lClicked) {
  return std::string(" Profit ") + (bChosen ? "without it " : "") + "would be " +
         FormatMoney(oAfter.m_fProfit) +
         DroppedText(oBefore.m_oSellingFeatures, oAfter.m_oSellingFeatures, lClicked) + ".";
}

Single ListingFees(const clsCalculate& oAuction) {
  const clsAuctionType& oType = oAuction.m_oAuctionType;
  const Single fOfSale = oType.HasPaidSaleFees() ? oAuction.m_oSaleFees.LastFee() : Single(0);
  return oAuction.m_fReserveCost + oAuction.m_fListingCost +
         oType.DoCalcFinalValueFee(oAuction.m_oOutlay) + fOfSale;
}

}  // namespace

std::string FeatureTip(const clsCalculate& oAuction, eFeature eBit, bool bChosen,
                       const Change& oClick) {
  Trial oTrial(oAuction);
  const clsCalculate& oAfter = oTrial.With(oClick);
  if (!bChosen && !oAfter.m_oSellingFeatures.HasFeature(eBit)) {
    return NotOnOfferTip(NameOf(eBit));
  }
  const double fMore = oAfter.m_oSellingFeatures.LastFee() - oAuction.m_oSellingFeatures.LastFee();
  return std::string(NameOf(eBit)) + ": " + CostText(bChosen ? -fMore : fMore) + "." +
         ProfitText(oAuction, oAfter, bChosen, eBit);
}

std::string ListingTip(const clsCalculate& oAuction, const std::string& sName, bool bChosen,
                       const Change& oClick) {
  Trial oTrial(oAuction);
  const clsCalculate& oAfter = oTrial.With(oClick ? oClick : NoChange());
  return sName + ": " + FormatMoney(ListingFees(bChosen ? oAuction : oAfter)) + " in fees." +
         (oClick ? ProfitText(oAuction, oAfter, bChosen, 0) : "");
}

std::string NotOnOfferTip(const std::string& sName) {
  return sName + " isn't on offer for this kind of listing.";
}

}  // namespace quillet
