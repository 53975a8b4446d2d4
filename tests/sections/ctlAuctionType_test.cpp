#include "sections/ctlAuctionType.h"

#include <array>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "sections/AuctionOptionsPanel.h"
#include "support/PanelTest.h"
#include "support/Screen.h"

namespace quillet {
namespace {

/// Calls with each field of a listing: its name, its value, and the value at rest, of a standard
/// auction without anything, whose shop duration the section has set to none.
template <typename Visitor>
void VisitFields(clsAuctionType& o, Visitor&& fnVisit) {
  fnVisit("kind", o.m_eAuctionType, kAuctionStandard);
  fnVisit("fixed", o.m_bBuyItNowOnly, 0);
  fnVisit("shop", o.m_bShopInventory, 0);
  fnVisit("duration", o.m_eShopDuration, kShopNone);
  fnVisit("motor", o.m_eMotorType, kMotorPassenger);
  fnVisit("land", o.m_eRealEstateType, kRealEstateTimeshare);
  fnVisit("sale", o.m_eRealEstateSaleFormat, kSaleAuction10);
  fnVisit("binding", o.m_bRealEstateBinding, 0);
}

/// The fields that differ from a listing at rest: "kind1 motor5".
std::string Fields(clsAuctionType o) {
  std::string sFields;
  VisitFields(o, [&](const char* sName, auto lValue, std::int32_t lAtRest) {
    if (lValue != lAtRest) {
      sFields += (sFields.empty() ? "" : " ") + std::string(sName) + std::to_string(lValue);
    }
  });
  return sFields;
}

/// A listing by its fields, as Fields tells them.
clsAuctionType Listing(const std::string& sFields) {
  clsAuctionType o;
  VisitFields(o, [&](const char* sName, auto& lValue, std::int32_t lAtRest) {
    const std::size_t nAt = sFields.find(sName);
    lValue =
        nAt == std::string::npos ? lAtRest : std::stoi(sFields.substr(nAt + std::strlen(sName)));
  });
  return o;
}

/// Item: starting price 10, end price 20, one of it.
class AuctionTypeSection : public PanelTest<ctlAuctionType> {
 protected:
  AuctionTypeSection() {
    m_oAuction.m_oOutlay.m_fStartingPrice = 10;
    m_oAuction.m_oOutlay.m_fEstimatedEndPrice = 20;
    SetScreen("");
  }

  /// A listing that lives as long as the section.
  clsAuctionType& NewListing(const std::string& sFields) {
    return *m_aoListings.emplace_back(std::make_unique<clsAuctionType>(Listing(sFields)));
  }
  void Apply(clsAuctionType& oListing) {
    static_cast<void>(oListing.DoCalc(m_oAuction.m_oOutlay));
    m_oSection.ApplyAuctionType(oListing);
  }
  /// Shows a listing at rest, whatever stood on screen before, and then clicks: that listing.
  clsAuctionType& SetScreen(const std::string& sClicks) {
    clsAuctionType& oListing = NewListing("");
    for (int i = 0; i < 3; ++i) {  // the first times the screen may overwrite the listing
      oListing = Listing("");
      Apply(oListing);
    }
    EXPECT_EQ(Fields(oListing), "");
    ClickOn(sClicks);
    return oListing;
  }
  static bool IsInput(const Control& o) {
    return dynamic_cast<const Choice*>(&o) != nullptr && !IsShowCheck(o);
  }

  /// What must hold whenever the section has come to rest.
  void ExpectScreenShowsListing(clsAuctionType& oListing) const {
    clsCalculate oAuction;
    oAuction.m_oAuctionType = oListing;
    oAuction.m_oOutlay = m_oAuction.m_oOutlay;
    oAuction.DoCalc();
    EXPECT_EQ(WrongIn(m_oSection, oAuction), "");
    const std::array<std::pair<const char*, bool>, 3> abActive = {
        {{"ctlMotorAuction", oListing.m_eAuctionType == 1},
         {"ctlRealEstateOption", oListing.m_eAuctionType == 2},
         {"ctlShopDuration", oListing.m_bShopInventory}}};
    for (const auto& [sName, bActive] : abActive) {
      const auto& oPanel = dynamic_cast<const SectionPanel&>(ControlOf(m_oSection, sName));
      EXPECT_EQ(NamesWhere(oPanel, IsGrey), bActive ? "" : NamesWhere(oPanel, IsInput)) << sName;
    }
  }

  std::vector<std::unique_ptr<clsAuctionType>> m_aoListings;
};

struct ClickRow {
  const char* sClicks;
  const char* sFields;
};

// Fixed price and shop put each other out; the shop goes with a standard auction only, and without
// it there is no duration. What a grey option is clicked to is kept; a grey box doesn't stay
// ticked.
TEST_F(AuctionTypeSection, ClicksReachTheListingAndGiveWayToTheLastOne) {
  const std::vector<ClickRow> aoEverywhere = {
      {"chkBuyItNow chkBuyItNow", ""},
      {"chkShopInventory optShop30Days", "shop1 duration0"},
      {"chkShopInventory optShop90Days", "shop1 duration1"},
      {"chkShopInventory optShop90Days optShopGoodTillCancelled", "shop1 duration2"},
      {"chkShopInventory optShop90Days chkShopInventory", ""},
      {"chkShopInventory optShop90Days chkBuyItNow", "fixed1"},
      {"chkShopInventory optShop90Days optMotorAuction", "kind1"},
      {"chkBuyItNow chkShopInventory", "shop1"},
      {"optRealEstateAuction chkShopInventory", "shop1"},
      {"chkBuyItNow optRealEstateAuction", "kind2 fixed1"},
      {"chkBuyItNow optMotorAuction optStandardAution", "fixed1"},
      {"optShop90Days", ""},
  };
  const std::vector<ClickRow> aoUnitedStates = {
      {"chkShopInventory optBusinessAuction", "kind3"},
      {"chkShopInventory optShop60Days", "shop1 duration4"},
      {"chkShopInventory optShop120Days", "shop1 duration5"},
      {"optMotorAuction optMotorcycle", "kind1 motor1"},
      {"optMotorAuction optPowersports", "kind1 motor2"},
      {"optMotorAuction optPocketBikes", "kind1 motor3"},
      {"optMotorAuction optOtherVehicle", "kind1 motor4"},
      {"optMotorAuction optParts optPassenger", "kind1"},
      {"optParts", "motor5"},
      {"optRealEstateAuction optRealEstate30DayAuction", "kind2 sale1"},
      {"optRealEstateAuction optRealEstate30DayAd", "kind2 sale2"},
      {"optRealEstateAuction optRealEstate90DayAd", "kind2 sale3"},
      {"optRealEstateAuction chkRealEstateBinding optRealEstateOther", "kind2 land1 binding1"},
      {"optRealEstateAuction chkRealEstateBinding optMotorAuction optRealEstateAuction", "kind2"},
      {"chkRealEstateBinding", ""},
  };
  for (const auto& aoRows : {aoEverywhere, ByRegion({}, aoUnitedStates)}) {
    for (const ClickRow& oRow : aoRows) {
      SCOPED_TRACE(oRow.sClicks);
      clsAuctionType& oListing = SetScreen(oRow.sClicks);
      EXPECT_EQ(Fields(oListing), oRow.sFields);
      EXPECT_TRUE(oListing.m_bDirty);
      ExpectScreenShowsListing(oListing);
    }
  }
}

// A listing of another kind than the one on screen takes the flags that were on screen.
TEST_F(AuctionTypeSection, AListingIsShownOrOverwrittenByWhatStoodOnScreen) {
  struct Row {
    const char* sOnScreen;
    const char* sListing;
    const char* sOutcome;
    bool bDirty;
  };
  const std::array aoRows = std::to_array<Row>({
      {"", "", "", false},
      {"", "fixed1", "fixed1", true},  // the box's own click writes it back
      {"chkBuyItNow", "", "", true},
      {"", "shop1 duration1", "shop1 duration1", true},
      {"", "kind1 fixed1", "kind1", true},
      {"chkBuyItNow", "kind1", "kind1 fixed1", true},
      {"optMotorAuction", "shop1 duration1", "", true},
      {"", "fixed1 shop1 duration1", "fixed1", true},
      {"", "binding1", "", true},
      {"optRealEstateAuction", "kind2 land1 binding1", "kind2 land1", true},
      {"optMotorAuction", "kind1 shop1 duration1", "shop1 duration1", true},
      {"", "kind-1 motor9 land7 sale-2", "kind-1 motor9 land7 sale-2", true},
      {"chkShopInventory", "shop1 duration77", "shop1 duration77", false},
  });
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(std::string(oRow.sOnScreen) + ", then " + oRow.sListing);
    const clsAuctionType& oBefore = SetScreen(oRow.sOnScreen);
    clsAuctionType& oListing = NewListing(oRow.sListing);
    const std::string sBefore = Fields(oBefore);
    Apply(oListing);
    EXPECT_EQ(Fields(oListing), oRow.sOutcome);
    EXPECT_EQ(oListing.m_bDirty, oRow.bDirty);
    EXPECT_EQ(Fields(oBefore), sBefore);
    ExpectScreenShowsListing(oListing);
    oListing.m_bDirty = false;
    Apply(oListing);
    EXPECT_EQ(Fields(oListing), oRow.sOutcome);
    EXPECT_FALSE(oListing.m_bDirty) << "the second time nothing changes";
  }
}

TEST_F(AuctionTypeSection, TickedRowsAreStillTickedAtTheNextStart) {
  const auto fnStored = [](const char* sKey) {
    return LoadVisibleList(sKey).GetFlattenedSegments(0);
  };
  m_oSection.SetShowConfig(true);
  ClickOn("chkShowRealEstateBinding chkShowShop30Days chkShowTotal chkShowRealEstate30DayAd");
  ctlAuctionType oNext(&m_oWindow);
  oNext.show();
  EXPECT_EQ(fnStored("AuctionType"), "BusinessAuction,Shop,BuyItNow,RealEstate,Motor,Standard");
  EXPECT_EQ(fnStored("ShopDuration"), "Shop60Days,Shop90Days,Shop120Days,ShopGoodTillCancelled");
  EXPECT_EQ(fnStored("RealEstateOptions"), "ctlRealEstateOptionsLand1,ctlRealEstateOptionsSale1")
      << "the inner panels have no boxes, and stay in the list";
  EXPECT_EQ(NamesWhere(oNext,
                       [](const Control& o) {
                         return IsShowCheck(o) && dynamic_cast<const Choice&>(o).Value() == 0;
                       }),
            "chkShowShop30Days chkShowRealEstate30DayAd chkShowRealEstateBinding chkShowTotal");
}

TEST_F(AuctionTypeSection, ARealEstateListFromBeforeTheInnerPanelsReceivesThem) {
  clsTokeniser oOld;
  oOld.AddToArray("RealEstateBinding");
  SaveVisibleList("RealEstateOptions", oOld);
  ctlAuctionType oNext(&m_oWindow);
  oNext.show();
  EXPECT_EQ(LoadVisibleList("RealEstateOptions").GetFlattenedSegments(0),
            "RealEstateBinding,ctlRealEstateOptionsLand1,ctlRealEstateOptionsSale1");
}

TEST_F(AuctionTypeSection, EachShowBoxStandsForItsRowAlone) {
  ExpectEachShowBoxStandsForItsRow(m_oSection, ByRegion(6U, 7U));
}

TEST_F(AuctionTypeSection, NoCaptionIsClippedAndEveryInputHasAName) {
  ShowSectionTotal(dynamic_cast<Label&>(ControlOf(m_oSection, "lblTotal")), 9999.99F);
  for (const bool bConfig : {false, true}) {
    m_oSection.SetShowConfig(bConfig);
    EXPECT_EQ(ClippedCaptionsIn(m_oSection), "") << (bConfig ? "in config mode" : "");
  }
  EXPECT_EQ(UnnamedInputsIn(m_oSection), "");
}

// The template stands in no window of the program.
TEST(SubControlExample, TheLaterOfTwoTicksWinsAndGreyBoxesAreUnticked) {
  clsAuctionType oListing;
  oListing.m_eAuctionType = kAuctionRealEstate;
  AuctionOptionsPanel oPanel(ctlSubControlExample, nullptr);
  oPanel.show();
  oPanel.SetShowConfig(false);
  oPanel.ApplyAuctionType(oListing);
  EXPECT_EQ(ChosenIn(oPanel), "chkCheck1");
  ClickOn(oPanel, "chkCheck2");
  EXPECT_EQ(ChosenIn(oPanel), "chkCheck2");
  EXPECT_EQ(oListing.m_eRealEstateType, kRealEstateOther);
  oListing.m_eAuctionType = kAuctionStandard;
  oPanel.ApplyAuctionType(oListing);
  EXPECT_EQ(ChosenIn(oPanel), "");
}

}  // namespace
}  // namespace quillet
