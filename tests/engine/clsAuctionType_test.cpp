#include "engine/clsAuctionType.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/ByRegion.h"
#include "support/Prices.h"

namespace quillet {
namespace {

// A schedule in which no two prices are alike, so that a mixed-up key shows.
void UseAuctionTypeSchedule() {
  UseSchedule(
      Tiers("Opening", {{"0.01", "0.99", "0.2"}, {"1", "9.99", "0.4"}, {"10", "-1", "0.6"}}) +
      Tiers("Reserve", {{"0.01", "49.99", "1"},
                        {"50", "199.99", "2"},
                        {"200", "1999.99", "3"},
                        {"2000", "-1", "4"}}) +
      Tiers("ReserveRealEstate",
            {{"0.01", "49.99", "5"}, {"50", "199.99", "6"}, {"200", "-1", "1"}}) +
      Tiers("Final", {{"0", "25", "5"}, {"25", "1000", "2.5"}, {"1000", "-1", "1"}}) +
      Tiers("ShopFinal", {{"0", "-1", "10"}}) +
      Tiers("FinalMotor", {{"1", "100", "20"}, {"100", "500", "5"}, {"500", "900", "30"}}) +
      "ReserveMax,20\nReserveRealEstateMax,7\n"
      "AuctionTypeMotor,16\nAuctionTypeRealEstate,35\nFinalRealEstate,55\n"
      "ReserveMotor,13\nReserveRealEstate,8\n"
      "AuctionTypeMotorPassenger,41\nTransactionFeeMotorPassenger,51\nReserveMotorPassenger,61\n"
      "AuctionTypeMotorMotorcycle,42\nTransactionFeeMotorMotorcycle,62\nReserveMotorMotorbike,72\n"
      "AuctionTypeMotorPowersports,43\nTransactionFeeMotorPowersports,73\n"
      "ReserveMotorPowersports,83\n"
      "AuctionTypeMotorPocketBikes,44\nTransactionFeeMotorPocketBikes,84\n"
      "ReserveMotorPocketBikes,94\n"
      "AuctionTypeMotorOther,45\nTransactionFeeMotorOther,95\nReserveMotorOther,105\n"
      "AuctionTypeRealEstateTimeshareAuction10,100\nAuctionTypeRealEstateTimeshareAuction30,101\n"
      "AuctionTypeRealEstateTimeshareAd30,102\nAuctionTypeRealEstateTimeshareAd90,103\n"
      "AuctionTypeRealEstateOtherAuction10,110\nAuctionTypeRealEstateOtherAuction30,111\n"
      "AuctionTypeRealEstateOtherAd30,112\nAuctionTypeRealEstateOtherAd90,113\n"
      "AuctionTypeRealEstateAuction10,120\nAuctionTypeRealEstateOther,121\n"
      "FinalRealEstateTimeshare,45\nFinalRealEstateOther,46\n"
      "AuctionTypeBusiness,21\nReserveBusiness,22\nFinalBusiness,1\nFinalBusinessMax,250\n"
      "ShopInsertionFee,0.07\nShopInsertionFee90,0.05\nShopInsertionSurcharge90,0.1\n"
      "ShopInsertionSurcharge60,0.5\n");
}

struct TypeRow {
  const char* sRule;
  std::int32_t eType;
  const char* sFlags;  ///< B fixed price, S shop, and its duration or else the kind of motor
  // Starting, reserve and end price, quantity.
  double fStart, fReserve, fEnd;
  std::int32_t lQuantity;
  // Listing, reserve and final value fee: United Kingdom, United States.
  std::array<double, 3> afUk, afUs;
};

clsAuctionType TypeOf(const TypeRow& oRow) {
  clsAuctionType oType;
  oType.m_eAuctionType = oRow.eType;
  for (const char c : std::string(oRow.sFlags)) {
    oType.m_bBuyItNowOnly |= c == 'B';
    oType.m_bShopInventory |= c == 'S';
    if (c >= '0' && c <= '9') {
      (oType.m_bShopInventory ? oType.m_eShopDuration : oType.m_eMotorType) = c - '0';
    }
  }
  return oType;
}

clsOutlay OutlayOf(const TypeRow& oRow) {
  clsOutlay oOutlay;
  oOutlay.m_fStartingPrice = oRow.fStart;
  oOutlay.m_fReservePrice = oRow.fReserve;
  oOutlay.m_fEstimatedEndPrice = oRow.fEnd;
  oOutlay.m_lQuantity = oRow.lQuantity;
  return oOutlay;
}

TEST(AuctionType, TheThreeFeesByRegion) {
  const TypeRow aoRows[] = {
      {"one item opens at its start", 0, "", 5, 0, 0, 1, {.4, 0, 0}, {.4, 0, 0}},
      {"one item opens at its reserve", 0, "", 5, 20, 25, 1, {.6, 0, 1.25}, {.6, 0, 1.25}},
      {"fixed price opens at the end price", 0, "B", 99, 20, .5, 1, {.2, 0, .025}, {.2, 0, .025}},
      {"several at a fixed price", 0, "B", .1, 20, 4, 3, {.6, 0, .6}, {.6, 0, .6}},
      {"in a gap", 0, "", .995, 49.995, 30, 0, {0, 0, 0}, {0, 0, 0}},
      {"negative quantity", 0, "", 5, 20, 10, -2, {0, 0, -1}, {0, 0, -1}},
      // Quantity 0: the reserve is charged. Tier 2 is a percentage in the UK, tier 3 in the US.
      {"reserve, tier 2", 0, "", 5, 60, 30, 0, {0, 1.2, 0}, {0, 2, 0}},
      {"reserve, tier 3", 0, "", 5, 300, 30, 0, {0, 3, 0}, {0, 9, 0}},
      {"reserve, tier 3 above the cap", 0, "", 5, 1000, 30, 0, {0, 3, 0}, {0, 20, 0}},
      {"reserve, tier 4", 0, "", 5, 3000, 30, 0, {0, 0, 0}, {0, 0, 0}},
      {"reserve in a shop", 0, "S1", 5, 20, 30, 0, {.15, 1, 0}, {.15, 0, 0}},
      {"a shop without a duration", 0, "S3", 5, 0, 30, 1, {.07, 0, 3}, {.07, 0, 3}},
      {"a duration with a surcharge only", 0, "S4", 20, 0, 30, 1, {1.1, 0, 3}, {1.1, 0, 3}},
      {"motor", 1, "", 5, 20, 50, 2, {16, 0, 40}, {92, 0, 0}},
      {"motor at a fixed price", 1, "B", 5, 20, 50, 3, {48, 0, 60}, {92, 0, 0}},
      {"motor, reserve", 1, "", 5, 10, 50, 0, {16, 13, 0}, {92, 61, 0}},
      {"motor, percentage tier", 1, "", 5, 0, 200, 2, {16, 0, 20}, {92, 0, 0}},
      {"motor above all tiers", 1, "", 5, 0, 950, 2, {16, 0, 60}, {92, 0, 0}},
      {"motorcycle", 1, "1", 5, 20, 50, 0, {16, 13, 0}, {104, 72, 0}},
      {"powersports", 1, "2", 5, 20, 50, 0, {16, 13, 0}, {116, 83, 0}},
      {"pocket bike", 1, "3", 5, 20, 50, 0, {16, 13, 0}, {128, 94, 0}},
      {"other vehicle", 1, "4", 5, 20, 50, 0, {16, 13, 0}, {140, 105, 0}},
      {"motor in a shop", 1, "S1", 5, 10, 50, 0, {.15, 13, 0}, {.15, 0, 0}},
      {"parts", 1, "5", 5, 20, 50, 1, {16, 0, 20}, {.6, 0, 0}},
      {"parts, reserve", 1, "5", 5, 300, 50, 0, {16, 13, 0}, {0, 9, 0}},
      {"unknown kind of motor", 1, "6", 5, 20, 50, 0, {16, 13, 0}, {0, 0, 0}},
      {"real estate", 2, "", 5, 60, 90, 2, {35, 0, 55}, {100, 0, 0}},
      {"real estate at a fixed price", 2, "B", 5, 0, 90, 2, {70, 0, 55}, {200, 0, 0}},
      {"real estate, reserve", 2, "", 5, 60, 90, 0, {35, 8, 55}, {100, 6, 0}},
      {"real estate, reserve above the cap", 2, "", 5, 900, 90, 0, {35, 8, 55}, {100, 7, 0}},
      {"business", 3, "", 5, 0, 90, 2, {0, 0, 0}, {21, 0, .9}},
      {"business above the cap", 3, "", 5, 0, 26000, 1, {0, 0, 0}, {21, 0, 250}},
      {"business, none, no reserve", 3, "", 5, 0, 90, 0, {0, 0, 0}, {21, 22, .9}},
      {"unknown type", 7, "", 5, 20, 90, 0, {0, 0, 0}, {0, 0, 0}},
  };
  UseAuctionTypeSchedule();
  for (const TypeRow& oRow : aoRows) {
    SCOPED_TRACE(oRow.sRule);
    const std::array<double, 3> afExpected = ByRegion(oRow.afUk, oRow.afUs);
    clsAuctionType oType = TypeOf(oRow);
    const clsOutlay oOutlay = OutlayOf(oRow);
    EXPECT_EQ(oType.DoCalcListingFee(oOutlay), Single(afExpected[0]));
    EXPECT_EQ(oType.DoCalcReserveFee(oOutlay), Single(afExpected[1]));
    EXPECT_EQ(oType.DoCalcFinalValueFee(oOutlay), Single(afExpected[2]));
  }
}

TEST(AuctionType, SlicesSkipAGapAndATierThatStartsAtThePrice) {
  UseSchedule(Tiers("Final", {{"0", "10", "5"}, {"20", "30", "10"}, {"30", "-1", "50"}}));
  for (const auto& [fEnd, fExpected] :
       {std::pair{15.0, .5}, {20.0, .5}, {25.0, 1.0}, {30.0, 1.5}, {32.0, 2.5}, {-5.0, 0.0}}) {
    const clsOutlay oOutlay = OutlayOf({"", 0, "", 0, 0, fEnd, 1, {}, {}});
    EXPECT_EQ(clsAuctionType().DoCalcFinalValueFee(oOutlay), Single(fExpected)) << fEnd;
  }
}

TEST(AuctionType, WhatTheScheduleLacksIsZeroButForTierTables) {
  UseSchedule("");
  clsAuctionType oType;
  clsOutlay oOutlay;
  EXPECT_THROW((void)oType.DoCalcListingFee(oOutlay), Failure);
  oType.m_eAuctionType = kAuctionRealEstate;
  EXPECT_EQ(oType.DoCalc(oOutlay), 0);
  oOutlay.m_fReservePrice = 400;
  oOutlay.m_fEstimatedEndPrice = 400;
  UseSchedule("ReserveRanges,3\nReserveRangeEnd3,-1\nReserveRangeValue3,1\nFinalBusiness,1\n");
  EXPECT_EQ(clsAuctionType().DoCalcReserveFee_US(oOutlay), 0) << "a percentage without its cap";
  oType.m_eAuctionType = kAuctionBusiness;
  EXPECT_EQ(oType.DoCalcFinalValueFee_US(oOutlay), 0) << "a percentage without its cap";
}

// The United States rules, which both regions' programs contain.
TEST(AuctionTypeUs, RealEstateIsPricedByKindAndSaleFormat) {
  UseAuctionTypeSchedule();
  // Kind, format, listing fee, and final value fee if the sale is binding. An unknown code adds
  // nothing to the key.
  const std::tuple<std::int32_t, std::int32_t, double, double> aoRows[] = {
      {0, 0, 100, 45}, {0, 3, 103, 0},  {1, 1, 111, 46},   {1, 2, 112, 0},
      {2, 0, 120, 0},  {1, 4, 121, 46}, {255, 255, 35, 0},
  };
  for (const auto& [eKind, eFormat, fListing, fBindingFinal] : aoRows) {
    clsAuctionType oType;
    oType.m_eAuctionType = kAuctionRealEstate;
    oType.m_eRealEstateType = eKind;
    oType.m_eRealEstateSaleFormat = eFormat;
    EXPECT_EQ(oType.DoCalcListingFee_US({}), fListing) << eKind << ", " << eFormat;
    EXPECT_EQ(oType.DoCalcFinalValueFee_US({}), 0);
    oType.m_bRealEstateBinding = true;
    EXPECT_EQ(oType.DoCalcFinalValueFee_US({}), fBindingFinal) << eKind << ", " << eFormat;
  }
}

}  // namespace
}  // namespace quillet
