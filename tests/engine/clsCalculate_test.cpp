#include "engine/clsCalculate.h"

#include <gtest/gtest.h>

#include "support/Auctions.h"
#include "support/ByRegion.h"
#include "support/Prices.h"

namespace quillet {
namespace {

TEST(Outlay, IsCostTimesQuantityAndTheTaxOnAllOfIt) {
  // 3 x 0.1 is rounded before the tax is added, so the result is one float above 0.3525.
  const std::tuple<const char*, double, std::int32_t, bool, float> aoRows[] = {
      {"LocalTax,17.5", 10, 3, true, 35.25F},
      {"LocalTax,17.5", 10, 3, false, 30},
      {"LocalTax,17.5", 10, -2, true, -23.5F},
      {"LocalTax,17.5", 0.1, 3, true, 0x1.68f5c4p-2F},
      {"LocalTax,none", 10, 1, true, 10}};
  for (const auto& [sSchedule, fCost, lQuantity, bAddTax, fExpected] : aoRows) {
    UseSchedule(sSchedule);
    clsOutlay oOutlay;
    oOutlay.m_fOutlay = fCost;
    oOutlay.m_lQuantity = lQuantity;
    oOutlay.m_bAddTax = bAddTax;
    EXPECT_EQ(oOutlay.DoCalc().Float(), fExpected) << fCost << " x " << lQuantity;
  }
}

TEST(Calculate, EveryTotalOfABusyAuctionBitForBit) {
  UseSchedule(Tiers("Opening", {{"0.01", "9.99", "0.4"}, {"10", "-1", "0.6"}}) +
              Tiers("Final", {{"0", "25", "5.25"}, {"25", "1000", "3.25"}, {"1000", "-1", "1.5"}}) +
              "LocalTax,8.25\nFeatureBold,1.1\nFeatureItemSubtitle,0.3\nFeatureGallery,0.35\n"
              "FeatureExtraImage,0.15\nFeatureListIn2Categories,1.3\nFeatureScheduledListings,0.1\n"
              "InsuranceBandValue1,0.07\nPersonalRatePounds%,2.9\nPersonalRatePoundsFixed,0.3\n"
              "CurrencyFormat,0.00\n");
  clsCalculate oAuction;
  std::string sText =
      "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]12.34|5.55|0|47.74|3|True[OUTLAY]"
      "[FEATURES]824|4[FEATURES][PAYPAL]True|0|1|True[PAYPAL]"
      "[POSTAGE]True|0|3|4.45|0|False|False|True|0.65|True[POSTAGE]";
  oAuction.Serialize(sText, false);
  oAuction.DoCalc();
  // Worked out apart from this program, with each line of the calculation rounded to 32 bits.
  EXPECT_EQ(oAuction.m_fListingCost.Float(), 0x1.333334p-1F);    // 0.6, for 3 x 5.55
  EXPECT_EQ(oAuction.m_fFinalValueFee.Float(), 0x1.89e5ccp+2F);  // 6.15465
  EXPECT_EQ(oAuction.m_fPostageCost.Float(), 0x1.b1eb84p+3F);    // 3 x 4.52
  EXPECT_EQ(oAuction.m_fPostageProfit.Float(), 0x1.f33332p+0F);  // 3 x 0.65
  EXPECT_EQ(oAuction.m_fPayPayCost.Float(), 5.5F);               // 158.73 x 2.9 % + 3 x 0.3
  EXPECT_EQ(oAuction.m_fSellCost.Float(), 0x1.bbded2p+5F);       // 55.4838
  EXPECT_EQ(oAuction.m_fProfit.Float(), 0x1.66beaep+6F);         // 89.6862
}

TEST(Calculate, WithoutAnythingSoldTheFinalValueFeeIsHiddenAndYetPaid) {
  UseSchedule("FinalRealEstate,40\nFinalRealEstateTimeshare,35\n");
  clsCalculate oAuction;
  oAuction.m_oAuctionType.m_eAuctionType = kAuctionRealEstate;
  oAuction.m_oAuctionType.m_bRealEstateBinding = true;
  const double fFee = ByRegion(40, 35);
  for (const auto& [lQuantity, fShown] : {std::pair{0, 0.0}, {-1, 0.0}, {1, fFee}}) {
    oAuction.m_oOutlay.m_lQuantity = lQuantity;
    oAuction.DoCalc();
    EXPECT_EQ(oAuction.m_fFinalValueFee, fShown) << lQuantity;
    EXPECT_EQ(oAuction.m_fSellCost, fFee) << lQuantity;
    EXPECT_EQ(oAuction.m_fProfit, -fFee) << lQuantity;
  }
}

TEST(Calculate, CopyAndClearTakeTheInputsAndLeaveTheRest) {
  clsCalculate oSource;
  oSource.m_oOutlay.m_fOutlay = 7;
  oSource.SetDirty(true);
  clsCalculate oAuction("target");
  oAuction.Copy(oSource);
  EXPECT_EQ(TextOf(oAuction), TextOf(oSource));
  EXPECT_FALSE(oAuction.IsDirty());
  oAuction.SetDirty(true);
  oAuction.Clear();
  clsCalculate oFresh;
  EXPECT_EQ(TextOf(oAuction), TextOf(oFresh));
  EXPECT_EQ(oAuction.m_sName, "target");
  EXPECT_TRUE(oAuction.IsDirty());
}

}  // namespace
}  // namespace quillet
