#include "sections/ctlAuctionType.h"

#include <QTest>

#include <gtest/gtest.h>

#include "sections/AuctionOptionsPanel.h"
#include "sections/VisibleList.h"
#include "support/PanelScript.h"

namespace quillet {
namespace {

TEST(AuctionTypeSection, TickedRowsAreStillTickedAtTheNextStart) {
  const auto fnStored = [](const char* sKey) {
    return LoadVisibleList(sKey).GetFlattenedSegments(0);
  };
  ctlAuctionType oSection(nullptr);
  oSection.show();
  oSection.SetShowConfig(true);
  ClickOn(oSection,
          "chkShowRealEstateBinding chkShowShop30Days chkShowTotal chkShowRealEstate30DayAd");
  ctlAuctionType oNext(nullptr);
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

TEST(AuctionTypeSection, ARealEstateListFromBeforeTheInnerPanelsReceivesThem) {
  clsTokeniser oOld;
  oOld.AddToArray("RealEstateBinding");
  SaveVisibleList("RealEstateOptions", oOld);
  ctlAuctionType oNext(nullptr);
  oNext.show();
  EXPECT_EQ(LoadVisibleList("RealEstateOptions").GetFlattenedSegments(0),
            "RealEstateBinding,ctlRealEstateOptionsLand1,ctlRealEstateOptionsSale1");
}

// No window of the program uses this template.
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
