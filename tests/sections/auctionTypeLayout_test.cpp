// Which rows of the section of the kind of listing exist, where they stand, and what is stored.
#include <array>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "base/region.h"
#include "sections/VisibleList.h"
#include "sections/ctlAuctionType.h"
#include "sections/ctlSubControlExample.h"
#include "support/ByRegion.h"
#include "support/PanelTest.h"

namespace quillet {
namespace {

class AuctionTypeLayout : public ::testing::Test {
 protected:
  AuctionTypeLayout() { Start(); }

  /// A start of the program, as far as the section goes.
  void Start() {
    m_oWindow = std::make_unique<QWidget>();
    m_pSection = new ctlAuctionType(m_oWindow.get());
    m_oWindow->resize(600, 900);
    m_oWindow->show();
    m_pSection->SetShowConfig(false);
  }
  /// Unticks or ticks Show boxes in config mode.
  void Toggle(const std::string& sShowBoxes) {
    m_pSection->SetShowConfig(true);
    ClickOn(*m_pSection, sShowBoxes);
    m_pSection->SetShowConfig(false);
  }

  std::unique_ptr<QWidget> m_oWindow;
  ctlAuctionType* m_pSection = nullptr;
};

// Every panel is packed first: of its design's height it gives back, or takes, what its last row
// ends before or behind. United States: vehicles 1655 of 1680, real estate 1885 of 1935, durations
// 1375 of 1335. United Kingdom: none, gone, 815.
TEST_F(AuctionTypeLayout, TheSectionPacksWithTheHeightsOfItsPanels) {
  struct Row {
    const char* sUnticked;
    const char* sUnitedStates;
    const char* sUnitedKingdom;
    int nUsHeight;
    int nUkHeight;
  };
  const std::array aoRows = std::to_array<Row>({
      {"",
       "ctlShopDuration@5610 ctlRealEstateOption@2855 ctlMotorAuction@915 "
       "optBusinessAuction@4765 chkShopInventory@5325 chkBuyItNow@5045 optMotorAuction@640 "
       "optRealEstateAuction@2575 optStandardAution@360 lblTotal@7045",
       "ctlShopDuration@1765 ctlMotorAuction@915 chkShopInventory@1480 chkBuyItNow@1200 "
       "optMotorAuction@640 optRealEstateAuction@920 optStandardAution@360 lblTotal@2640",
       7300, 2895},
      {"chkShowMotor chkShowShopInventory chkShowRealEstate chkShowTotal",
       "optBusinessAuction@640 chkBuyItNow@920 optStandardAution@360",
       "chkBuyItNow@640 optStandardAution@360", 1175, 895},
      {"chkShowMotor chkShowShopInventory chkShowRealEstate chkShowTotal chkShowStandard "
       "chkShowBuyItNow",
       "optBusinessAuction@360", "", 615, 0},
  });
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(oRow.sUnticked);
    Toggle(oRow.sUnticked);
    EXPECT_EQ(PlacesIn(*m_pSection), ByRegion(oRow.sUnitedKingdom, oRow.sUnitedStates));
    EXPECT_EQ(m_pSection->Height(), ByRegion(oRow.nUkHeight, oRow.nUsHeight));
    Toggle(oRow.sUnticked);
    EXPECT_EQ(PlacesIn(*m_pSection), ByRegion(aoRows[0].sUnitedKingdom, aoRows[0].sUnitedStates));
  }
}

TEST_F(AuctionTypeLayout, TickedRowsAreStillTickedAtTheNextStart) {
  const auto fnStored = [](const char* sKey) {
    return LoadVisibleList(sKey).GetFlattenedSegments(0);
  };
  Toggle("chkShowRealEstateBinding chkShowShop30Days chkShowTotal chkShowRealEstate30DayAd");
  Start();
  EXPECT_EQ(fnStored("AuctionType"), "BusinessAuction,Shop,BuyItNow,RealEstate,Motor,Standard");
  EXPECT_EQ(fnStored("ShopDuration"), "Shop60Days,Shop90Days,Shop120Days,ShopGoodTillCancelled");
  EXPECT_EQ(fnStored("RealEstateSaleOptions"), "10DayAuction,30DayAuction,90DayAd");
  EXPECT_EQ(fnStored("RealEstateOptions"), "ctlRealEstateOptionsLand1,ctlRealEstateOptionsSale1")
      << "the inner panels have no boxes, and stay in the list";
  EXPECT_EQ(NamesWhere(*m_pSection,
                       [](const Control& o) {
                         return IsShowCheck(o) && dynamic_cast<const Choice&>(o).Value() == 0;
                       }),
            "chkShowShop30Days chkShowRealEstate30DayAd chkShowRealEstateBinding chkShowTotal");
}

TEST_F(AuctionTypeLayout, ARealEstateListFromBeforeTheInnerPanelsReceivesThem) {
  clsTokeniser oOld;
  oOld.AddToArray("RealEstateBinding");
  SaveVisibleList("RealEstateOptions", oOld);
  Start();
  EXPECT_EQ(LoadVisibleList("RealEstateOptions").GetFlattenedSegments(0),
            "RealEstateBinding,ctlRealEstateOptionsLand1,ctlRealEstateOptionsSale1");
}

TEST_F(AuctionTypeLayout, InConfigModeEachShowBoxStandsBesideItsRow) {
  m_pSection->SetShowConfig(true);
  for (const Control* const pBox : AllControls(*m_pSection)) {
    if (!IsShowCheck(*pBox) || !pBox->Visible()) {
      continue;
    }
    int nRows = 0;
    for (const Control* const pRow : AllControls(*m_pSection)) {
      const bool bSameRow = pRow != pBox && pRow->Container() == pBox->Container() &&
                            pRow->Visible() && pRow->Top() == pBox->Top();
      nRows += bSameRow && pRow->Name().find(pBox->Tag()) != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(nRows, 1) << pBox->Name();
  }
  EXPECT_EQ(NamesWhere(*m_pSection, [](auto& o) { return IsShowCheck(o) && !o.Visible(); }),
            ByRegion("chkShowShop60Days chkShowShop120Days chkShowPassenger chkShowMotorcycle "
                     "chkShowPowersports chkShowPocketBikes chkShowOtherVehicle chkShowParts "
                     "chkShowBusinessAuction",
                     ""));
}

TEST_F(AuctionTypeLayout, NoCaptionIsClippedAndEveryInputHasAName) {
  ShowSectionTotal(dynamic_cast<Label&>(ControlOf(*m_pSection, "lblTotal")), 9999.99F);
  for (const bool bConfig : {false, true}) {
    m_pSection->SetShowConfig(bConfig);
    EXPECT_EQ(ClippedCaptionsIn(*m_pSection), "") << (bConfig ? "in config mode" : "");
  }
  EXPECT_EQ(UnnamedInputsIn(*m_pSection), "");
}

// The template stands in no window of the program.
TEST(SubControlExample, TheLaterOfTwoTicksWinsAndGreyBoxesAreUnticked) {
  clsAuctionType oListing;
  oListing.m_eAuctionType = kAuctionRealEstate;
  ctlSubControlExample oPanel(nullptr);
  oPanel.show();
  oPanel.SetShowConfig(false);
  oPanel.ApplyAuctionType(oListing);
  EXPECT_EQ(ChosenIn(oPanel), "chkCheck1");
  ClickOn(oPanel, "chkCheck2");
  EXPECT_EQ(ChosenIn(oPanel), "chkCheck2");
  EXPECT_EQ(oListing.m_eRealEstateType, kRealEstateOther);
  ClickOn(oPanel, "chkCheck1");
  EXPECT_EQ(ChosenIn(oPanel), "chkCheck2");
  oListing.m_eAuctionType = kAuctionStandard;
  oPanel.ApplyAuctionType(oListing);
  EXPECT_EQ(ChosenIn(oPanel), "");
  ClickOn(oPanel, "chkCheck1");
  EXPECT_EQ(ChosenIn(oPanel), "");
  EXPECT_EQ(oListing.m_eRealEstateType, kRealEstateTimeshare);
}

}  // namespace
}  // namespace quillet
