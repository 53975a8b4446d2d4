// What the sections and the summary of a view must show of an auction.
#pragma once

#include <QLineEdit>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "prices/money.h"
#include "shell/SectionSet.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"

namespace quillet {

/// The figures of a summary, one after the other.
inline std::string FiguresOf(const ctlSellingCosts& oSummary) {
  std::string sFigures;
  for (const char* const sLabel :
       {"lblInsertionFeeTotal", "lblListingCostTotal", "lblReserveFeeTotal",
        "lblFinalValueFeeTotal", "lblSellingCostTotal", "lblPostageTotal", "lblPayPalTotal",
        "lblProfitGrandTotal"}) {
    sFigures += oSummary.The(sLabel).Caption().toStdString() + " ";
  }
  return sFigures;
}

/// Inputs of a section, separated by blanks; bit n of the mask is whether the nth of them is
/// chosen.
struct ChoiceRow {
  const SectionPanel& oSection;
  const char* sInputs;
  std::int32_t lChosen;
};

inline std::int32_t OneOf(std::int32_t nCode) {
  return nCode >= 0 && nCode < 31 ? 1 << nCode : 0;
}

inline std::int32_t Those(std::initializer_list<bool> abChosen) {
  std::int32_t lMask = 0;
  std::int32_t lBit = 1;
  for (const bool bChosen : abChosen) {
    lMask |= bChosen ? lBit : 0;
    lBit *= 2;
  }
  return lMask;
}

inline std::vector<ChoiceRow> ChoicesFor(const SectionSet& oSet, const clsCalculate& o) {
  const clsAuctionType& oType = o.m_oAuctionType;
  const clsPostage& oPost = o.m_oPostage;
  const SectionPanel& oKind = oSet.ctlAuctionTypeSection;
  const SectionPanel& oPayPal = oSet.ctlPayPalSection;
  const SectionPanel& oPostage = oSet.ctlPostageSection;
  const bool bSeveral = o.m_oOutlay.m_lQuantity >= 2;
  std::int32_t lFeatures = 0;
  for (std::int32_t lBit = 1; lBit <= kFeatureCarAd; lBit *= 2) {
    lFeatures |= o.m_oSellingFeatures.HasFeature(lBit) ? lBit : 0;
  }
  return {
      {oKind, "optStandardAution optMotorAuction optRealEstateAuction optBusinessAuction",
       OneOf(oType.m_eAuctionType)},
      {oKind, "optShop30Days optShop90Days optShopGoodTillCancelled - optShop60Days optShop120Days",
       OneOf(oType.m_eShopDuration)},
      {oKind, "optPassenger optMotorcycle optPowersports optPocketBikes optOtherVehicle optParts",
       OneOf(oType.m_eMotorType)},
      {oKind, "optRealEstateTimeShare optRealEstateOther", OneOf(oType.m_eRealEstateType)},
      {oKind,
       "optRealEstate10DayAuction optRealEstate30DayAuction optRealEstate30DayAd "
       "optRealEstate90DayAd",
       OneOf(oType.m_eRealEstateSaleFormat)},
      {oKind, "chkBuyItNow chkShopInventory chkRealEstateBinding",
       Those({oType.m_bBuyItNowOnly, oType.m_bShopInventory,
              oType.m_bRealEstateBinding && oType.m_eAuctionType == kAuctionRealEstate})},
      {oPayPal, "optPersonalAccount optPremierAccount optBusinessAccount",
       OneOf(o.m_oPayPal.m_eAccountType)},
      {oPayPal, "- optBand1 optBand2 optBand3 optBand4 optBand5",
       OneOf(o.m_oPayPal.m_nBusinessBand)},
      {oPayPal, "chkUsePayPal chkPayInduvidually",
       Those({o.m_oPayPal.m_bEnabled, o.m_oPayPal.m_bPayIndividually && bSeveral})},
      {oPostage, "optFirstClass optSecondClass optParcelService optManual",
       OneOf(oPost.m_ePostageClass)},
      {oPostage, "optBand1 optBand2 optBand3 optBand4", OneOf(oPost.m_eInsuranceBand)},
      {oPostage,
       "chkUsePostage chkSendInduvidually chkRecordedDelivery chkProofOfDelivery chkProfit",
       Those({oPost.m_bEnabled, oPost.m_bSendIndividually && bSeveral,
              oPost.m_bRecordedDelivery && oPost.CanHaveRecordedDelivery(),
              oPost.m_bProofOfDelivery && oPost.CanHaveProofOfDelivery(), oPost.m_bMakeProfit})},
      {oSet.ctlSellingFeaturesSection,
       "chkHomePageFeatured chkFeaturePlus chkHighlight chkItemSubtitle chkBold chkGallery "
       "chkFeaturedGallery chkBuyItNow chkScheduledListing chkListIn2Categories chkSlideShow "
       "chkSuperSizedPicures chkPicturePack chkListingDesigner chkFeaturedInSearch "
       "chk10DayDuration chkGiftServices chkPreviewPicture chkBorder chkListingItem chkCarAd",
       lFeatures},
  };
}

/// The inputs that are chosen and mustn't be, or must and aren't. A car ad's box that is open may
/// stand beside a car ad that was loaded.
inline std::string WrongChoices(const SectionSet& oSet, const clsCalculate& oAuction) {
  std::string sWrong;
  for (const auto& [oSection, sInputs, lChosen] : ChoicesFor(oSet, oAuction)) {
    std::istringstream oInputs(sInputs);
    std::string sInput;
    for (std::int32_t n = 0; oInputs >> sInput; ++n) {
      if (sInput == "-") {
        continue;
      }
      const auto& oInput = dynamic_cast<const Choice&>(ControlOf(oSection, sInput));
      const bool bCarAd = sInput == "chkCarAd" && oInput.Container()->Enabled();
      if ((oInput.Value() != 0) != ((lChosen >> n & 1) != 0) && !(bCarAd && oInput.Value() == 0)) {
        sWrong += sInput + " ";
      }
    }
  }
  return sWrong;
}

/// The boxes that show another number within their bounds, but for one that is being typed into.
inline std::string WrongNumbers(const SectionSet& oSet, const clsCalculate& oAuction) {
  const clsOutlay& oOutlay = oAuction.m_oOutlay;
  const clsPostage& oPostage = oAuction.m_oPostage;
  const struct {
    const SectionPanel& oSection;
    const char* sBox;
    double fValue;
  } kNumbers[] = {
      {oSet.ctlOutlaySection, "txtOutlay", oOutlay.m_fOutlay},
      {oSet.ctlOutlaySection, "txtStartingPrice", oOutlay.m_fStartingPrice},
      {oSet.ctlOutlaySection, "txtReservePrice", oOutlay.m_fReservePrice},
      {oSet.ctlOutlaySection, "txtEstimatedEndPrice", oOutlay.m_fEstimatedEndPrice},
      {oSet.ctlOutlaySection, "txtQuantity", double(oOutlay.m_lQuantity)},
      {oSet.ctlSellingFeaturesSection, "txtExtraPictures",
       double(oAuction.m_oSellingFeatures.m_lExtraImageCount)},
      {oSet.ctlPostageSection, "txtWeight", oPostage.m_fWeight},
      {oSet.ctlPostageSection, "txtManual", oPostage.m_fManualPostage},
      {oSet.ctlPostageSection, "txtProfit", oPostage.m_fProfit},
  };
  std::string sWrong;
  for (const auto& [oSection, sBox, fValue] : kNumbers) {
    const auto& oBox = dynamic_cast<const ctlNumericText&>(ControlOf(oSection, sBox));
    const bool bBounds = oBox.Min() < oBox.Max();
    const double fWanted = bBounds ? std::clamp<double>(fValue, oBox.Min(), oBox.Max()) : fValue;
    const double fOff = 0.006 + std::abs(fValue) * 1e-6;  // cents, or seven digits
    if (!oBox.TextBox()->hasFocus() && !(std::abs(oBox.Value() - fWanted) < fOff)) {
      sWrong += std::string(sBox) + "=" + oBox.Text() + " ";
    }
  }
  return sWrong;
}

/// What of the screen isn't as an auction has it: inputs, section totals, summary. The figures are
/// those of another auction with the same inputs, which has never been on view.
inline std::string WrongOnScreen(const SectionSet& oSet, clsCalculate& oAuction) {
  clsCalculate oFresh;
  std::string sText = TextOf(oAuction);
  oFresh.Serialize(sText, false);
  oFresh.m_oOutlay = oAuction.m_oOutlay;  // amounts have but seven digits in the text
  oFresh.m_oPostage = oAuction.m_oPostage;
  oFresh.DoCalc();
  ctlSellingCosts oSummary(nullptr);
  oSummary.ApplySellingCosts(oFresh);
  const std::string sShown = FiguresOf(oSet.ctlSellingCostsSection);
  std::string sWrong = WrongChoices(oSet, oFresh) + WrongNumbers(oSet, oFresh);
  if (sShown != FiguresOf(oSummary)) {
    sWrong += "summary " + sShown + "for " + FiguresOf(oSummary);
  }
  const std::pair<const SectionPanel&, Single> kTotals[] = {
      {oSet.ctlAuctionTypeSection, oFresh.m_oAuctionType.DoCalcAuto()},
      {oSet.ctlSellingFeaturesSection, oFresh.m_oSellingFeatures.LastFee()},
      {oSet.ctlPayPalSection, oFresh.m_fPayPayCost},
      {oSet.ctlPostageSection, oFresh.m_fPostageCost},
  };
  for (const auto& [oSection, fTotal] : kTotals) {
    const std::string sTotal = ControlOf(oSection, "lblTotal").Caption().toStdString();
    if (sTotal != "Section Total " + FormatMoney(fTotal)) {
      sWrong += sTotal + " for " + FormatMoney(fTotal) + " ";
    }
  }
  return sWrong.empty() ? "" : sWrong + "with " + sText;
}

}  // namespace quillet
