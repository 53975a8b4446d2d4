// A seller's entries in the calculator: clicks and typing, and the auction's text afterwards.
#include <sstream>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "controls/ComboBox.h"
#include "shell/frmMain.h"
#include "support/ByRegion.h"
#include "support/Prices.h"
#include "support/Screen.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

/// A script that clicks "name" and types "name=text" or chooses that line of a list; the section's
/// fields as saved afterwards; and its total, null if the region lacks a row.
struct Entry {
  const char* sScript;
  const char* sFields;
  const char* sUnitedStates = "";
  const char* sUnitedKingdom = "";
};

class Entries : public ::testing::Test {
 protected:
  Entries() {
    Registry().Set(settings::kStartMode, "1");
    m_oWindow.Show();
    m_oWindow.activateWindow();  // or leaving a box goes unnoticed
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_oWindow));
    StartAnew();
  }

  void StartAnew() {
    std::string sAuction =
        "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]0|10|0|30|1|False[OUTLAY]"
        "[FEATURES]0|0[FEATURES][PAYPAL]False|0|1|False[PAYPAL]"
        "[POSTAGE]False|0|0|0|0|False|False|False|0|False[POSTAGE]";
    WorkingAuction().Serialize(sAuction, false);
    WorkingAuction().SetDirty(false);
    m_oWindow.Calculator().RefreshSums(true);
  }

  /// A name that occurs twice means the one in `oSection`.
  void Play(const SectionPanel& oSection, const std::string& sScript) {
    std::istringstream oScript(sScript);
    for (std::string sStep; oScript >> sStep;) {
      const std::size_t nEquals = sStep.find('=');
      const std::string sName = sStep.substr(0, nEquals);
      const bool bHere = oSection.findChild<QWidget*>(QString::fromStdString(sName)) != nullptr;
      const QWidget& oPlace =
          bHere ? static_cast<const QWidget&>(oSection) : m_oWindow.Calculator();
      if (auto* const pList = oPlace.findChild<ComboBox*>(QString::fromStdString(sName))) {
        pList->setCurrentIndex(std::stoi(sStep.substr(nEquals + 1)) - 1);
      } else if (nEquals == std::string::npos) {
        ClickOn(oPlace, sName);
      } else {
        TypeInto(oPlace, sName, sStep.substr(nEquals + 1));
      }
    }
  }

  void Expect(const SectionPanel& oSection, const std::string& sMarker,
              const std::vector<Entry>& aoEntries) {
    for (const Entry& oEntry : aoEntries) {
      const char* const sTotal = ByRegion(oEntry.sUnitedKingdom, oEntry.sUnitedStates);
      if (sTotal == nullptr) {
        continue;
      }
      SCOPED_TRACE(oEntry.sScript);
      StartAnew();
      Play(oSection, oEntry.sScript);
      const std::string sText = TextOf(WorkingAuction());
      EXPECT_NE(sText.find(sMarker + oEntry.sFields + sMarker), std::string::npos) << sText;
      EXPECT_TRUE(WorkingAuction().IsDirty());
      EXPECT_EQ(m_oMirror.Differences(m_oSet, WorkingAuction()), "");
      if (*sTotal != '\0') {
        EXPECT_EQ(Caption(oSection, "lblTotal"), std::string("Section Total ") + sTotal);
      }
    }
  }

  static bool IsInput(const Control& o) {
    return dynamic_cast<const ctlNumericText*>(&o) != nullptr ||
           (dynamic_cast<const Choice*>(&o) != nullptr && !IsShowCheck(o));
  }

  static std::string Caption(const SectionPanel& oSection, const char* sName) {
    return ControlOf(oSection, sName).Caption().toStdString();
  }

  ScopedHost m_oHost;
  frmMain m_oWindow;
  const SectionSet& m_oSet = m_oWindow.Calculator().Set();
  Mirror m_oMirror;
};

// Fixed price and shop exclude each other; a shop needs a standard auction, and without a shop
// there is no duration. A click on a grey option is kept; a grey box doesn't stay ticked.
TEST_F(Entries, TheKindOfListingIsTheOneClickedLast) {
  Expect(
      m_oSet.ctlAuctionTypeSection, "[TYPE]",
      {{"chkBuyItNow chkBuyItNow", "000|False|False|3|0|0|0|False"},
       {"chkShopInventory optShop30Days", "000|False|True|0|0|0|0|False"},
       {"chkShopInventory optShop90Days", "000|False|True|1|0|0|0|False"},
       {"chkShopInventory optShop90Days optShopGoodTillCancelled", "000|False|True|2|0|0|0|False"},
       {"chkShopInventory optShop90Days chkShopInventory", "000|False|False|3|0|0|0|False"},
       {"chkShopInventory optShop90Days chkBuyItNow", "000|True|False|3|0|0|0|False"},
       {"chkShopInventory optShop90Days optMotorAuction", "001|False|False|3|0|0|0|False"},
       {"chkBuyItNow chkShopInventory optShop30Days", "000|False|True|0|0|0|0|False"},
       {"optRealEstateAuction chkShopInventory optShop30Days", "000|False|True|0|0|0|0|False"},
       {"chkBuyItNow optRealEstateAuction", "002|True|False|3|0|0|0|False"},
       {"chkBuyItNow optMotorAuction optStandardAution", "000|True|False|3|0|0|0|False"},
       {"optShop90Days", "000|False|False|3|0|0|0|False"},
       {"chkShopInventory optBusinessAuction", "003|False|False|3|0|0|0|False", "", nullptr},
       {"chkShopInventory optShop60Days", "000|False|True|4|0|0|0|False", "", nullptr},
       {"chkShopInventory optShop120Days", "000|False|True|5|0|0|0|False", "", nullptr},
       {"optMotorAuction optMotorcycle", "001|False|False|3|1|0|0|False", "", nullptr},
       {"optMotorAuction optPowersports", "001|False|False|3|2|0|0|False", "", nullptr},
       {"optMotorAuction optPocketBikes", "001|False|False|3|3|0|0|False", "", nullptr},
       {"optMotorAuction optOtherVehicle", "001|False|False|3|4|0|0|False", "", nullptr},
       {"optMotorAuction optParts optPassenger", "001|False|False|3|0|0|0|False", "", nullptr},
       {"optParts", "000|False|False|3|5|0|0|False", "", nullptr},
       {"optRealEstateAuction optRealEstate30DayAuction", "002|False|False|3|0|0|1|False", "",
        nullptr},
       {"optRealEstateAuction optRealEstate30DayAd", "002|False|False|3|0|0|2|False", "", nullptr},
       {"optRealEstateAuction optRealEstate90DayAd", "002|False|False|3|0|0|3|False", "", nullptr},
       {"optRealEstateAuction chkRealEstateBinding optRealEstateOther",
        "002|False|False|3|0|1|0|True", "", nullptr},
       {"optRealEstateAuction chkRealEstateBinding optMotorAuction optRealEstateAuction",
        "002|False|False|3|0|0|0|False", "", nullptr},
       {"chkRealEstateBinding", "000|False|False|3|0|0|0|False", "", nullptr}});
}

TEST_F(Entries, EachAmountGoesIntoItsField) {
  Expect(m_oSet.ctlOutlaySection, "[OUTLAY]",
         {{"txtOutlay=40 txtStartingPrice=1 txtReservePrice=2.5 txtEstimatedEndPrice=149 "
           "txtQuantity=3",
           "40|1|2.5|149|3|False"},
          {"chkOutlayInclTax", "0|10|0|30|1|True", nullptr, ""}});
  Play(m_oSet.ctlAuctionTypeSection, "chkBuyItNow");
  EXPECT_EQ(Caption(m_oSet.ctlOutlaySection, "lblEstimatedEndPrice"), "Buy it Now Price");
}

TEST_F(Entries, EachFeatureIsABitAndItsFeeTheTotal) {
  Expect(m_oSet.ctlSellingFeaturesSection, "[FEATURES]",
         {{"chkHomePageFeatured", "1|0", "$39.95", "£49.95"},
          {"chkFeaturePlus", "2|0", "$19.95", "£9.95"},
          {"chkHighlight", "4|0", "$5.00", "£2.50"},
          {"chkItemSubtitle", "8|0", "$0.50", "£0.35"},
          {"chkBold", "16|0", "$1.00", "£0.75"},
          {"chkBold chkBold", "0|0", "$0.00", "£0.00"},
          {"chkGallery", "32|0", "$0.35", "£0.15"},
          {"chkFeaturedGallery", "64|0", "$19.95", "£15.95"},
          {"chkBuyItNow", "128|0", "$0.20", "£0.05"},  // United States: the tier of 30.00
          {"chkScheduledListing", "256|0", "$0.10", "£0.06"},
          {"chkListIn2Categories", "512|0", "$0.00", "£0.00"},  // doubles nothing
          {"chkSlideShow", "1024|0", "$0.25", "£0.15"},
          {"chkSuperSizedPicures", "2048|0", "$0.75", "£0.60"},
          {"chkListingDesigner", "8192|0", "$0.10", "£0.07"},
          {"chkShopInventory optShop30Days chkFeaturedInSearch", "16384|0", "$9.95", "£4.95"},
          {"chk10DayDuration", "32768|0", "$0.40", nullptr},
          {"chkGiftServices", "65536|0", "$0.25", nullptr},
          {"chkPreviewPicture", "131072|0", "$0.15", nullptr},
          {"chkBorder", "262144|0", "$3.00", nullptr},
          {"optMotorAuction chkListingItem", "524288|0", "$1.00", nullptr},
          {"optMotorAuction chkCarAd", "1048576|0", "$9.95", nullptr},
          // The picture pack takes at least one picture, and no more than its last tier.
          {"chkPicturePack", "4096|1", "$1.00", "£0.90"},
          {"txtExtraPictures=4 chkPicturePack", "4096|4"},
          {"txtExtraPictures=40 chkPicturePack", "4096|12"},
          {"txtExtraPictures=40 chkPicturePack chkPicturePack txtExtraPictures=100", "0|100"}});
}

TEST_F(Entries, PayPalIsChargedByTheAccountAndThePayments) {
  // United States: 2.9 % + 0.30 for a personal account and band 1, 2.2 % for band 3.
  // United Kingdom: 3.4 % + 0.20, and 2.4 %.
  Expect(m_oSet.ctlPayPalSection, "[PAYPAL]",
         {{"txtEstimatedEndPrice=100 chkUsePayPal", "True|0|1|False", "$3.20", "£3.60"},
          {"txtEstimatedEndPrice=100 chkUsePayPal optBand3 optPremierAccount", "True|1|3|False",
           "$2.50", "£2.60"},
          {"txtEstimatedEndPrice=100 optBusinessAccount optBand5 optPersonalAccount chkUsePayPal",
           "True|0|5|False", "$3.20", "£3.60"},
          // Two payments: the fixed charge applies twice. One can't be split.
          {"txtEstimatedEndPrice=50 txtQuantity=2 chkUsePayPal chkPayInduvidually", "True|0|1|True",
           "$3.50", "£3.80"},
          {"txtQuantity=2 chkPayInduvidually txtQuantity=1 optPremierAccount", "False|1|1|False"},
          {"chkPayInduvidually optPremierAccount", "False|1|1|False"}});
}

TEST_F(Entries, PostageGoesOnToTheServiceThatTakesTheParcel) {
  Expect(m_oSet.ctlPostageSection, "[POSTAGE]",
         {{"chkUsePostage txtWeight=0.2 optSecondClass", "True|0.2|1|0|0|False|False|False|0|False",
           nullptr, "£1.09"},
          // Too heavy for second class: on to parcel. Too heavy for that: on to manual.
          {"chkUsePostage txtWeight=1.1 optSecondClass", "True|1.1|2|0|0|False|False|False|0|False",
           nullptr, "£3.85"},
          {"chkUsePostage optParcelService txtWeight=20.5",
           "True|20.5|3|0|0|False|False|False|0|False", nullptr, "£0.00"},
          // First class has no limit: 4.74, and 0.85 for each of three quarter kilograms.
          {"chkUsePostage txtWeight=2", "True|2|0|0|0|False|False|False|0|False", nullptr, "£7.29"},
          {"chkUsePostage optManual txtManual=8.5", "True|0|3|8.5|0|False|False|False|0|False",
           "$8.50", "£8.50"},
          {"chkUsePostage optManual txtManual=8.5 txtManual=abc",
           "True|0|3|8.5|0|False|False|False|0|False", "$8.50", "£8.50"},
          {"txtQuantity=3 chkUsePostage optManual txtManual=8.5 chkSendInduvidually",
           "True|0|3|8.5|0|False|False|False|0|True", "$25.50", "£25.50"},
          {"chkProfit txtProfit=2 optManual", "False|0|3|0|0|False|False|True|2|False"},
          // Only a parcel is insured above the first band. Another class keeps the band, without
          // a premium, until a band is clicked.
          {"chkUsePostage optParcelService optBand3", "True|0|2|0|2|False|False|False|0|False",
           nullptr, "£6.10"},
          {"chkUsePostage optBand3", "True|0|0|0|0|False|False|False|0|False", nullptr, "£1.00"},
          {"chkUsePostage optParcelService optBand3 optFirstClass",
           "True|0|0|0|2|False|False|False|0|False", nullptr, "£1.00"},
          {"chkUsePostage optParcelService optBand3 optFirstClass optBand2",
           "True|0|0|0|0|False|False|False|0|False", nullptr, "£1.00"},
          // Proof of delivery needs recorded delivery, and that needs a letter class.
          {"chkUsePostage chkRecordedDelivery chkProofOfDelivery",
           "True|0|0|0|0|True|True|False|0|False", nullptr, "£3.88"},
          {"chkUsePostage chkRecordedDelivery chkProofOfDelivery chkRecordedDelivery",
           "True|0|0|0|0|False|False|False|0|False", nullptr, "£1.00"},
          {"txtQuantity=2 chkUsePostage chkRecordedDelivery optParcelService chkSendInduvidually",
           "True|0|2|0|0|False|False|False|0|True", nullptr, "£7.70"}});
}

struct FeesOfToday {
  FeesOfToday() { UseScheduleOfToday(); }
};

class EntriesOfToday : private FeesOfToday, public Entries {
 protected:
  /// The captions of the rows on view.
  [[nodiscard]] std::string Rows() const {
    std::string sRows;
    for (const QWidget* const pInput : m_oSet.ctlSaleFeesSection.InputsInReadingOrder()) {
      const auto* const pBox = qobject_cast<const QCheckBox*>(pInput);
      sRows += !pInput->isVisible() ? ""
               : pBox != nullptr    ? pBox->text().toStdString() + "|"
                                    : pInput->accessibleName().toStdString() + "|";
    }
    return sRows;
  }
};

TEST_F(EntriesOfToday, TheSaleFeeIsTheSumOfWhatIsChosen) {
  const char* const sCamera =
      "txtEstimatedEndPrice=149 chkUsePostage optManual txtManual=8.5 txtBuyerTax=7";
  const char* const sClothes =
      "txtEstimatedEndPrice=45 chkUsePostage optManual txtManual=3.99 lstCategory=2";
  Expect(
      m_oSet.ctlSaleFeesSection, "[FEES]",
      {{sCamera, "1|7|0|0|False|True", "$23.32", nullptr},
       {"txtEstimatedEndPrice=150 lstCategory=10", "10|0|0|0|False|True", "$12.00", nullptr},
       {"txtEstimatedEndPrice=100 txtBuyerTax=8.875", "1|8.875|0|0|False|True", "$15.21", nullptr},
       {"txtEstimatedEndPrice=100 txtAdvertising=2.5 chkExtra01 chkExtra03", "1|0|2.5|5|False|True",
        "$23.15", "£20.64"},
       {"txtAdvertising=4 txtAdvertising=abc chkExtra02 chkExtra02", "1|0|4|0|False|True"},
       {"txtAdvertising=100.5", "1|0|100|0|False|True"},  // back to the last good text
       {"txtAdvertising=-1 chkFreeListing", "1|0|0|0|True|True"},
       {sClothes, "2|0|0|0|False|True", nullptr, "£7.68"},
       {"txtEstimatedEndPrice=45 lstCategory=2 chkTaxIsCost", "2|0|0|0|False|False", nullptr,
        "£5.91"}});
}

TEST_F(EntriesOfToday, TheSectionFollowsTheSchedule) {
  const auto fnFollow = [this] { m_oWindow.Calculator().FollowSchedule(); };
  EXPECT_EQ(Rows(),
            ByRegion("Category|Advertising (%)|Buyer in Europe|Buyer in US or CA|Buyer elsewhere|"
                     "Below standard|Free Listing|VAT Is a Cost|",
                     "Category|Buyer's Tax (%)|Advertising (%)|Buyer abroad|Below standard|"
                     "Many returns|Free Listing|"));
  Play(m_oSet.ctlSaleFeesSection, "lstCategory=9 chkExtra03 txtAdvertising=3");
  UseSchedule("FeeModel,2\nCategoryCount,1\nCategory1Tiers,Plain\nCategory1Name,This & that\n" +
              Tiers("Plain", {{"0", "-1", "10"}}) +
              "OrderFeeRanges,0\nOpeningRanges,0\nFinalBase,3\nExtraPercentCount,1\n"
              "ExtraPercent1Name,All & sundry\nExtraPercent1Value,1\nFeeTax,5\nFeeTaxName,GST\n");
  fnFollow();
  EXPECT_EQ(Rows(),
            "Category|Buyer's Tax (%)|Advertising (%)|All && sundry|Free Listing|"
            "GST Is a Cost|");
  Play(m_oSet.ctlSaleFeesSection, "chkExtra01");
  const std::string sFees = "[FEES]9|0|3|5|False|True[FEES]";  // hidden inputs are kept
  EXPECT_NE(TextOf(WorkingAuction()).find(sFees), std::string::npos) << TextOf(WorkingAuction());
  UseShippedSchedule();
  fnFollow();
  EXPECT_EQ(Rows(), "");
  EXPECT_NE(TextOf(WorkingAuction()).find(sFees), std::string::npos);
}

// A loaded listing keeps a kind that isn't on offer. Vehicle parts are always on offer.
TEST_F(EntriesOfToday, WhatIsNotOnOfferIsClosedAndAListingKeepsIt) {
  const SectionPanel& oKinds = m_oSet.ctlAuctionTypeSection;
  std::string sAuction = TextOf(WorkingAuction()).replace(0, 9, "[TYPE]001");
  WorkingAuction().Serialize(sAuction, false);
  m_oWindow.Calculator().RefreshSums(true);
  EXPECT_EQ(TextOf(WorkingAuction()), sAuction);
  EXPECT_EQ(NamesWhere(oKinds,
                       [](const Control& o) {
                         return IsInput(o) && o.Widget().isVisible() && !o.Enabled();
                       }),
            ByRegion("optMotorAuction optRealEstateAuction",
                     "optPassenger optMotorcycle optPowersports optPocketBikes optOtherVehicle"));
  EXPECT_EQ(m_oMirror.Differences(m_oSet, WorkingAuction()), "");
  Play(oKinds, "optStandardAution optMotorAuction");
  EXPECT_EQ(TextOf(WorkingAuction()).substr(0, 28),
            ByRegion("[TYPE]000|False|False|3|0|0|", "[TYPE]001|False|False|3|5|0|"));
}

// A section that was never shown must not be written to the settings.
TEST_F(Entries, UnderTheFeesOf2007NothingIsKnownOfTodays) {
  m_oWindow.ClickButton(kButtonConfig);
  m_oWindow.ClickButton(kButtonWizard);
  m_oWindow.ClickButton(kButtonCalculator);
  m_oWindow.Calculator().ResetControlPositions();
  EXPECT_FALSE(Registry().Find("Controls\\SaleFees", settings::kVisible));
  EXPECT_FALSE(Registry().Find("Controls\\SaleFees", settings::kTop));
  EXPECT_TRUE(Registry().Find("Controls\\Outlay", settings::kTop));
}

TEST_F(Entries, AScheduleWithoutTheTiersLeavesTheSectionUsable) {
  UseSchedule("");
  Play(m_oSet.ctlPostageSection, "chkUsePostage");
  UseShippedSchedule();
  Play(m_oSet.ctlPostageSection, "chkUsePostage");
  EXPECT_EQ(m_oMirror.Differences(m_oSet, WorkingAuction()), "");
}

TEST_F(Entries, TheScheduleNamesThePostAndTheBandsAndPricesTheServices) {
  const SectionPanel& oPostage = m_oSet.ctlPostageSection;
  EXPECT_EQ(Caption(oPostage, "chkUsePostage"), ByRegion("Use Royal Mail Postage", "Use Postage"));
  EXPECT_EQ(ControlOf(oPostage, "chkShowUsePostage").Widget().accessibleName().toStdString(),
            ByRegion("Show Use Royal Mail Postage", "Show Use Postage"));
  EXPECT_EQ(Caption(oPostage, "optBand4"), ByRegion("up to £2500", "not offered"));
  EXPECT_EQ(Caption(m_oSet.ctlPayPalSection, "optBand2"), ByRegion("to £6000", "to $10000"));
  Play(oPostage, "optParcelService optBand4 txtWeight=0.3");
  const std::string sInsurance = Caption(oPostage, "lblParcelInsuranceCost");
  Play(oPostage, "optFirstClass chkRecordedDelivery chkProofOfDelivery");
  std::string sPrices = sInsurance;
  for (const char* const sLabel : {"lblSecondClass", "lblFirstClass", "lblParcelService",
                                   "lblRecordedDelivery", "lblProofOfDelivery"}) {
    sPrices += " " + Caption(oPostage, sLabel);
  }
  EXPECT_EQ(sPrices,
            ByRegion("£8.00 £1.44 £1.70 £3.85 £0.68 £2.20", "$0.00 $0.00 $0.00 $0.00 $0.00 $0.00"));
}

TEST_F(Entries, WhatCannotBeChosenIsGreyAndInAFrameDisabled) {
  const SectionPanel& oOutlay = m_oSet.ctlOutlaySection;
  const SectionPanel& oFeatures = m_oSet.ctlSellingFeaturesSection;
  const std::string sOffered = ByRegion("chkGiftServices chkCarAd chkPreviewPicture", "chkCarAd");
  const std::tuple<const SectionPanel&, const char*, std::string> aoRows[] = {
      {oOutlay, "", ""},
      {oOutlay, "chkBuyItNow", "txtReservePrice txtStartingPrice lblReservePrice lblStartingPrice"},
      {oFeatures, "", "chkFeaturedInSearch chkListingItem " + sOffered},
      {oFeatures, "chkBuyItNow", "chkBuyItNow chkFeaturedInSearch chkListingItem " + sOffered},
      {oFeatures, "chkShopInventory",
       "chkHomePageFeatured chkFeaturePlus chkItemSubtitle chkFeaturedGallery chkBuyItNow "
       "chkScheduledListing chkListingItem " +
           sOffered},
      {oFeatures, "optMotorAuction",
       ByRegion("chkFeaturedInSearch chkGiftServices chkCarAd chkPreviewPicture",
                "chkFeaturedInSearch chkGiftServices")},
      {oFeatures, "optMotorAuction optParts",
       ByRegion("chkFeaturedInSearch chkListingItem chkGiftServices chkCarAd chkPreviewPicture",
                "chkFeaturedInSearch chkListingItem")},
  };
  for (const auto& [oSection, sScript, sGrey] : aoRows) {
    SCOPED_TRACE(sScript);
    StartAnew();
    Play(m_oSet.ctlAuctionTypeSection, sScript);
    EXPECT_EQ(NamesWhere(oSection, IsGrey), sGrey);
    EXPECT_EQ(NamesWhere(oSection,
                         [](const Control& o) { return IsInput(o) && !o.Widget().isEnabled(); }),
              NamesWhere(oSection, [](const Control& o) { return IsInput(o) && IsGrey(o); }));
  }
}

}  // namespace
}  // namespace quillet
