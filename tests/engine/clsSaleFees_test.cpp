// Today's fees: the figures of the shipped schedules, and the rules behind them.
#include "engine/clsSaleFees.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "engine/clsCalculate.h"
#include "engine/featureOffers.h"
#include "support/ByRegion.h"
#include "support/Prices.h"

namespace quillet {
namespace {

/// A sale under today's fees, and what it costs.
struct Row {
  const char* sName;
  std::int32_t nCategory;
  double fPrice;
  double fPostage;
  double fBuyerTax;
  double fInsertion;
  double fFinalValueFee;
};

/// Clears the schedule of today's fees for the tests that follow.
class SaleFees : public ::testing::Test {
 protected:
  SaleFees() {
    oAuction.m_oOutlay.m_lQuantity = 1;
    oAuction.m_oPostage.m_bEnabled = true;
    oAuction.m_oPostage.m_ePostageClass = kPostageManual;
  }
  ~SaleFees() override { UseSchedule(""); }

  /// A schedule with one category, whose rate table is in `sMore`.
  static void UsePlain(const std::string& sMore) {
    UseSchedule(
        "FeeModel,2\nCategoryCount,1\nCategory1Tiers,Plain\nOpeningRanges,0\n"
        "InsuranceBandValue1,0\n" +
        sMore);
  }

  Single FeeOf(double fPrice) {
    oAuction.m_oOutlay.m_fEstimatedEndPrice = fPrice;
    oAuction.DoCalc();
    return oAuction.m_fFinalValueFee;
  }

  void ExpectRows(const std::vector<Row>& aoRows) {
    for (const Row& oRow : aoRows) {
      oAuction.m_oSaleFees.m_oInputs.nCategory = oRow.nCategory;
      oAuction.m_oSaleFees.m_oInputs.fBuyerTax = oRow.fBuyerTax;
      oAuction.m_oPostage.m_fManualPostage = oRow.fPostage;
      EXPECT_EQ(FeeOf(oRow.fPrice), Single(oRow.fFinalValueFee)) << oRow.sName;
      EXPECT_EQ(oAuction.m_fListingCost, Single(oRow.fInsertion)) << oRow.sName;
    }
  }

  clsCalculate oAuction;
  SaleInputs& oInputs = oAuction.m_oSaleFees.m_oInputs;
};

TEST_F(SaleFees, OfTheShippedSchedulesComeOutToTheCent) {
  if (RegionCode() == 1) {
    UseShippedSchedule("UpdateUS_2026-10.dat");
    ExpectRows({{"most", 1, 400, 0, 6, 0.35, 58.06},
                {"camera", 1, 149, 8.5, 7, 0.35, 23.32},
                {"book", 2, 24, 4.5, 7, 0.35, 5.07},
                {"order up to 10.00", 1, 8, 0, 7, 0.35, 1.46},
                {"guitar", 5, 500, 0, 0, 0, 33.90},
                {"shoes", 10, 150, 0, 0, 0, 12.00},
                {"shoes below", 10, 149.99, 0, 0, 0.35, 20.80},
                {"bag", 6, 2000, 0, 0, 0.35, 300.40},
                {"bag above", 6, 2000.01, 0, 0, 0.35, 180.40},
                {"watch", 9, 8000, 0, 0, 0.35, 587.90},
                {"heavy", 11, 20000, 0, 0, 20, 475.40}});
    oAuction.m_oAuctionType.m_bBuyItNowOnly = true;
    for (const auto lNotOnOffer : {kFeaturePlus, kFeatureHomePage, kFeatureListIn2Categories}) {
      oAuction.m_oSellingFeatures.AddFeature(lNotOnOffer);
    }
    oAuction.m_oSellingFeatures.AddFeature(kFeatureBold);
    ExpectRows({{"card", 3, 9500, 0, 6, 0.35, 1054.55}});
    EXPECT_EQ(oAuction.m_fSellCost, Single(1058.90));
    oAuction.m_oSellingFeatures.Clear();
    oAuction.m_oAuctionType.m_bBuyItNowOnly = false;
    oAuction.m_oAuctionType.m_bShopInventory = true;
    ExpectRows({{"coins in a store", 4, 5000, 0, 0, 0.25, 383.90}});
  } else {
    UseShippedSchedule("UpdateUK_2026-10.dat");
    ExpectRows({{"clothes", 2, 45, 3.99, 0, 0.30, 7.68},
                {"phone", 6, 1200, 6, 0, 0.30, 95.76},
                {"trainers by their price alone", 17, 99.99, 5, 0, 0.30, 15.91},
                {"trainers from 100", 17, 100, 5, 0, 0.30, 9.74}});
    oInputs.bTaxIsCost = false;
    ExpectRows({{"clothes of who is registered", 2, 45, 3.99, 0, 0.30, 6.40}});
    UseShippedSchedule("UpdateUK_2026-10-private.dat");
    ExpectRows({{"private", 1, 1234.56, 7.89, 0, 0.35, 0}, {"as before", 6, 8, 0, 0, 0.35, 0}});
  }
}

TEST_F(SaleFees, AnOrderIsRoundedAsByHandAndItsPartsAddUp) {
  const std::tuple<double, const char*, const char*, double> aoRows[] = {
      {26.75, "10", "0", 2.68},    // 2.675, which as a double is a little less
      {10.05, "10", "0", 1.01},    // 1.005
      {10.04, "10", "0", 1.00},    // 1.004
      {0.25, "13", "5", 0.05},     // 0.0325 + 0.0125
      {8.50, "14.5", "0.5", 1.28}  // 1.2325 + 0.0425: only the sum is a half
  };
  for (const auto& [fPrice, sRate, sAlways, fFee] : aoRows) {
    UsePlain(std::string("FinalBase,1\nOrderFeeRanges,0\nAlwaysPercent,") + sAlways + "\n" +
             Tiers("Plain", {{"0", "-1", sRate}}));
    EXPECT_EQ(FeeOf(fPrice), Single(fFee)) << fPrice << " at " << sRate;
    const SaleParts& oParts = oAuction.m_oSaleFees.LastParts();
    EXPECT_NEAR(oParts.fCategory + oParts.fRegulatory, fFee, 1e-6);
  }
}

TEST_F(SaleFees, AreBilledByTheOrder) {
  UsePlain(Tiers("Plain", {{"0", "10", "10"}, {"10", "-1", "5"}}) +
           Tiers("OrderFee", {{"0", "10", "0.3"}, {"10", "-1", "0.4"}}) +
           "FinalBase,3\nFeeTax,20\nAlwaysPercent,1\nExtraPercentCount,2\nExtraPercent1Value,2\n"
           "ExtraPercent2Value,4\n");
  oAuction.m_oOutlay.m_lQuantity = 3;
  oAuction.m_oPostage.m_fManualPostage = 2;
  oAuction.m_oPostage.m_bMakeProfit = true;
  oAuction.m_oPostage.m_fProfit = 1;
  oInputs.fBuyerTax = 10;
  // One order of 33.00: each item's share of 11.00 pays 1.05.
  EXPECT_EQ(FeeOf(9), Single(4.66));  // 0.40 + 3.15 + 0.33 = 3.88, and 0.776 of tax
  oInputs.lExtras = 2;
  oInputs.fAdvertising = 2.5;
  oInputs.bTaxIsCost = false;
  EXPECT_EQ(FeeOf(9), Single(6.03));  // 1.32 and 0.825 more
  const SaleParts& oParts = oAuction.m_oSaleFees.LastParts();
  EXPECT_EQ(oParts.fOrder, Single(0.40));
  EXPECT_EQ(oParts.fCategory, Single(3.15));
  EXPECT_EQ(oParts.fRegulatory, Single(0.33));
  EXPECT_NEAR(oParts.fAdvertising + oParts.fExtras, 2.15, 1e-6);
  oAuction.m_oPostage.m_bSendIndividually = true;
  oInputs = {};
  oInputs.fBuyerTax = 10;
  // Three orders of 13.20: 0.40 + 1.16 + 0.132 = 1.69 each, and 0.34 of tax.
  EXPECT_EQ(FeeOf(9), Single(6.09));
  EXPECT_EQ(oAuction.m_oSaleFees.LastParts().fTax, Single(1.02));
  oAuction.m_oOutlay.m_lQuantity = 0;
  EXPECT_EQ(FeeOf(9), 0);
  EXPECT_EQ(oAuction.m_oSaleFees.LastParts().fOrder, 0);
}

TEST_F(SaleFees, ATableThatIsMissingStopsTheCalculationAndAnUnknownCategoryDoesNot) {
  UsePlain("FinalBase,1\n");
  EXPECT_THROW((void)FeeOf(9), Failure);
  UsePlain("FinalBase,1\nOrderFeeRanges,0\n");
  EXPECT_THROW((void)FeeOf(9), Failure);
  oInputs.nCategory = 2;
  EXPECT_EQ(FeeOf(9), 0);
  EXPECT_THROW((void)FeeOf(2e14), Failure);
}

TEST_F(SaleFees, ASubtitleGoesByWhatTheListingStartsAtOrIsSoldFor) {
  UsePlain(Tiers("Plain", {{"0", "-1", "10"}}) +
           Tiers("FeatureItemSubtitle", {{"100.01", "150", "1.5"}, {"150.01", "-1", "3"}}) +
           Tiers("FixedFeatureItemSubtitle", {{"0", "150", "2"}, {"150.01", "-1", "6"}}) +
           "OrderFeeRanges,0\nFeatureItemSubtitle,1\nFixedFeatureItemSubtitle,9\n");
  oAuction.m_oSellingFeatures.AddFeature(kFeatureItemSubtitle);
  clsAuctionType& oType = oAuction.m_oAuctionType;
  const std::tuple<bool clsAuctionType::*, double, double, double> aoRows[] = {
      {nullptr, 100, 151, 1},
      {nullptr, 150, 151, 1.5},
      {nullptr, 150.01, 151, 3},
      {&clsAuctionType::m_bBuyItNowOnly, 151, 150, 2},
      {&clsAuctionType::m_bBuyItNowOnly, 0, 150.01, 6},
      {&clsAuctionType::m_bShopInventory, 0, 150.01, 6}};
  for (const auto& [bKind, fStart, fPrice, fFee] : aoRows) {
    oType.Clear();
    if (bKind != nullptr) {
      oType.*bKind = true;
    }
    oAuction.m_oOutlay.m_fStartingPrice = fStart;
    (void)FeeOf(fPrice);
    EXPECT_EQ(oAuction.m_oSellingFeatures.LastFee(), Single(fFee)) << fStart << ", " << fPrice;
    DropWhatIsNotOnOffer(oAuction.m_oSellingFeatures, oType);
    EXPECT_TRUE(oAuction.m_oSellingFeatures.HasFeature(kFeatureItemSubtitle)) << fPrice;
  }
}

TEST_F(SaleFees, ReserveAndKindsOfListingGoByTheSchedule) {
  UsePlain(
      Tiers("Plain", {{"0", "-1", "10"}}) +
      Tiers("Reserve", {{"0.01", "33.33", "5"}, {"33.34", "66.66", "5"}, {"66.67", "-1", "5"}}) +
      "OrderFeeRanges,0\nReserveMax,250\nReserveWhenSold,True\nAuctionTypeMotor,-1\n"
      "AuctionTypeMotorOther,9\nAuctionTypeMotorPassenger,-1\nAuctionTypeRealEstate,0\n");
  oAuction.m_oOutlay.m_fReservePrice = 20;
  EXPECT_EQ(FeeOf(9), Single(0.90));
  EXPECT_EQ(oAuction.m_fReserveCost, 5);
  oAuction.m_oAuctionType.m_bBuyItNowOnly = true;
  (void)FeeOf(9);
  EXPECT_EQ(oAuction.m_fReserveCost, 0);
  oAuction.m_oAuctionType.m_eAuctionType = kAuctionMotor;
  EXPECT_EQ(FeeOf(9), 0);
  EXPECT_EQ(oAuction.m_fListingCost, 0) << "not -1";
  EXPECT_TRUE(clsAuctionType::IsOnOffer(kAuctionStandard));
  EXPECT_EQ(clsAuctionType::IsOnOffer(kAuctionMotor), RegionCode() == 1) << "parts";
  EXPECT_EQ(clsAuctionType::IsOnOffer(kAuctionRealEstate), RegionCode() == 0);
  EXPECT_TRUE(clsAuctionType::IsVehicleOnOffer(kMotorParts));
  EXPECT_TRUE(clsAuctionType::IsVehicleOnOffer(kMotorOther));
  EXPECT_FALSE(clsAuctionType::IsVehicleOnOffer(kMotorPassenger));
  EXPECT_FALSE(clsAuctionType::IsVehicleOnOffer(kMotorPocketBikes));
  UseSchedule("AuctionTypeMotor,-1\n");
  EXPECT_TRUE(clsAuctionType::IsOnOffer(kAuctionMotor));
  EXPECT_TRUE(clsAuctionType::IsVehicleOnOffer(kMotorPassenger));
}

}  // namespace
}  // namespace quillet
