// What the sections and the summary of a view must show for an auction.
#pragma once

#include <QLineEdit>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "prices/money.h"
#include "shell/SectionSet.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"

namespace quillet {

/// Inputs of a section, separated by blanks; bit n of the mask is whether the nth of them is
/// chosen.
struct ChoiceRow {
  std::string sSection;
  const char* sInputs;
  std::int32_t lChosen;
};

struct NumberRow {
  std::string sSection;
  const char* sBox;
  double fValue;
};

inline std::vector<ChoiceRow> ChoicesFor(const clsCalculate& o) {
  const auto fnOne = [](std::int32_t nCode) { return nCode >= 0 && nCode < 31 ? 1 << nCode : 0; };
  const clsAuctionType& oType = o.m_oAuctionType;
  const clsPostage& oPost = o.m_oPostage;
  const bool bSeveral = o.m_oOutlay.m_lQuantity >= 2;
  std::int32_t lFeatures = 0;
  for (std::int32_t lBit = 1; lBit <= kFeatureCarAd; lBit *= 2) {
    lFeatures |= o.m_oSellingFeatures.HasFeature(lBit) ? lBit : 0;
  }
  return {
      {"AuctionType", "optStandardAution optMotorAuction optRealEstateAuction optBusinessAuction",
       fnOne(oType.m_eAuctionType)},
      {"AuctionType",
       "optShop30Days optShop90Days optShopGoodTillCancelled - optShop60Days optShop120Days",
       fnOne(oType.m_eShopDuration)},
      {"AuctionType",
       "optPassenger optMotorcycle optPowersports optPocketBikes optOtherVehicle optParts",
       fnOne(oType.m_eMotorType)},
      {"AuctionType", "optRealEstateTimeShare optRealEstateOther", fnOne(oType.m_eRealEstateType)},
      {"AuctionType",
       "optRealEstate10DayAuction optRealEstate30DayAuction optRealEstate30DayAd "
       "optRealEstate90DayAd",
       fnOne(oType.m_eRealEstateSaleFormat)},
      {"AuctionType", "chkBuyItNow", oType.m_bBuyItNowOnly},
      {"AuctionType", "chkShopInventory", oType.m_bShopInventory},
      {"AuctionType", "chkRealEstateBinding",
       oType.m_bRealEstateBinding && oType.m_eAuctionType == kAuctionRealEstate},
      {"SellingFeatures",
       "chkHomePageFeatured chkFeaturePlus chkHighlight chkItemSubtitle chkBold chkGallery "
       "chkFeaturedGallery chkBuyItNow chkScheduledListing chkListIn2Categories chkSlideShow "
       "chkSuperSizedPicures chkPicturePack chkListingDesigner chkFeaturedInSearch "
       "chk10DayDuration chkGiftServices chkPreviewPicture chkBorder chkListingItem chkCarAd",
       lFeatures},
      {"PayPal", "optPersonalAccount optPremierAccount optBusinessAccount",
       fnOne(o.m_oPayPal.m_eAccountType)},
      {"PayPal", "- optBand1 optBand2 optBand3 optBand4 optBand5",
       fnOne(o.m_oPayPal.m_nBusinessBand)},
      {"PayPal", "chkUsePayPal", o.m_oPayPal.m_bEnabled},
      {"PayPal", "chkPayInduvidually", o.m_oPayPal.m_bPayIndividually && bSeveral},
      {"Postage", "optFirstClass optSecondClass optParcelService optManual",
       fnOne(oPost.m_ePostageClass)},
      {"Postage", "optBand1 optBand2 optBand3 optBand4", fnOne(oPost.m_eInsuranceBand)},
      {"Postage", "chkUsePostage", oPost.m_bEnabled},
      {"Postage", "chkSendInduvidually", oPost.m_bSendIndividually && bSeveral},
      {"Postage", "chkRecordedDelivery",
       oPost.m_bRecordedDelivery && oPost.CanHaveRecordedDelivery()},
      {"Postage", "chkProofOfDelivery", oPost.m_bProofOfDelivery && oPost.CanHaveProofOfDelivery()},
      {"Postage", "chkProfit", oPost.m_bMakeProfit},
  };
}

inline std::vector<NumberRow> NumbersFor(const clsCalculate& o) {
  return {{"Outlay", "txtOutlay", o.m_oOutlay.m_fOutlay},
          {"Outlay", "txtStartingPrice", o.m_oOutlay.m_fStartingPrice},
          {"Outlay", "txtReservePrice", o.m_oOutlay.m_fReservePrice},
          {"Outlay", "txtEstimatedEndPrice", o.m_oOutlay.m_fEstimatedEndPrice},
          {"Outlay", "txtQuantity", double(o.m_oOutlay.m_lQuantity)},
          {"SellingFeatures", "txtExtraPictures", double(o.m_oSellingFeatures.m_lExtraImageCount)},
          {"Postage", "txtWeight", o.m_oPostage.m_fWeight},
          {"Postage", "txtManual", o.m_oPostage.m_fManualPostage},
          {"Postage", "txtProfit", o.m_oPostage.m_fProfit}};
}

/// A box shows a number within its bounds, to the cent or to seven digits; what is being typed
/// counts when the box is left.
inline bool ShowsNumber(const ctlNumericText& oBox, double fNumber) {
  const bool bBounds = oBox.Min() < oBox.Max();
  const double fWanted =
      bBounds ? std::clamp<double>(fNumber, oBox.Min(), oBox.Max()) : double{fNumber};
  return oBox.TextBox()->hasFocus() ||
         std::abs(oBox.Value() - fWanted) < 0.006 + std::abs(fNumber) * 1e-6;
}

/// How a section differs from a calculated auction: inputs, and the section's total. A loaded car
/// ad may go with a box that is enabled but not ticked.
inline std::string WrongIn(const SectionPanel& oSection, clsCalculate& oAuction) {
  std::string sWrong;
  const std::string sKey = oSection.SectionKey();
  for (const auto& [sSection, sInputs, lChosen] : ChoicesFor(oAuction)) {
    std::istringstream oInputs(sSection == sKey ? sInputs : "");
    std::string sInput;
    for (std::int32_t n = 0; oInputs >> sInput; ++n) {
      if (sInput != "-") {
        const auto& oInput = dynamic_cast<const Choice&>(ControlOf(oSection, sInput));
        const bool bMayBeOff = sInput == "chkCarAd" && oInput.Container()->Enabled();
        const bool bChosen = (lChosen >> n & 1) != 0 && !(bMayBeOff && oInput.Value() == 0);
        sWrong += (oInput.Value() != 0) == bChosen ? "" : sInput + " ";
      }
    }
  }
  for (const auto& [sSection, sBox, fNumber] : NumbersFor(oAuction)) {
    if (sSection == sKey &&
        !ShowsNumber(dynamic_cast<ctlNumericText&>(ControlOf(oSection, sBox)), fNumber)) {
      sWrong += std::string(sBox) + " ";
    }
  }
  const std::vector<std::pair<const char*, bool>> abInUse = {
      {"ctlMotorAuction", oAuction.m_oAuctionType.m_eAuctionType == kAuctionMotor},
      {"ctlRealEstateOption", oAuction.m_oAuctionType.m_eAuctionType == kAuctionRealEstate},
      {"ctlShopDuration", oAuction.m_oAuctionType.m_bShopInventory},
      {"ctlPaypalBusinessType", oAuction.m_oPayPal.m_eAccountType != kAccountPersonal}};
  for (const auto& [sPanel, bInUse] : abInUse) {
    if (auto* const pPanel = dynamic_cast<SectionPanel*>(oSection.Find(sPanel))) {
      sWrong += NamesWhere(*pPanel, [bInUse = bInUse](const Control& o) {
        return dynamic_cast<const Choice*>(&o) != nullptr && !IsShowCheck(o) && IsGrey(o) == bInUse;
      });
    }
  }
  const std::vector<std::pair<std::string, Single>> aoTotals = {
      {"AuctionType", oAuction.m_oAuctionType.DoCalcAuto()},
      {"SellingFeatures", oAuction.m_oSellingFeatures.LastFee()},
      {"PayPal", oAuction.m_fPayPayCost},
      {"Postage", oAuction.m_fPostageCost}};
  for (const auto& [sSection, fTotal] : aoTotals) {
    if (sSection == sKey && ControlOf(oSection, "lblTotal").Caption().toStdString() !=
                                "Section Total " + FormatMoney(fTotal)) {
      sWrong += "lblTotal of " + sSection + " ";
    }
  }
  return sWrong;
}

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

/// How a view differs from an auction. The figures come from another auction with the same inputs,
/// which has never been shown.
inline std::string WrongOnScreen(const SectionSet& oSet, clsCalculate& oAuction) {
  clsCalculate oFresh;
  std::string sText = TextOf(oAuction);
  oFresh.Serialize(sText, false);
  oFresh.m_oOutlay = oAuction.m_oOutlay;  // amounts have only seven digits in the text
  oFresh.m_oPostage = oAuction.m_oPostage;
  oFresh.DoCalc();
  std::string sWrong;
  for (const SectionPanel* const pSection : oSet.Sections()) {
    sWrong += WrongIn(*pSection, oFresh);
  }
  ctlSellingCosts oSummary(nullptr);
  oSummary.ApplySellingCosts(oFresh);
  if (FiguresOf(oSet.ctlSellingCostsSection) != FiguresOf(oSummary)) {
    sWrong += FiguresOf(oSet.ctlSellingCostsSection) + "for " + FiguresOf(oSummary);
  }
  return sWrong.empty() ? "" : sWrong + "with " + sText;
}

}  // namespace quillet
