// The United States rules by themselves: they can be asked in either region's program.
#include <gtest/gtest.h>

#include "engine/AuctionTypeSchedule.h"
#include "engine/clsAuctionType.h"

namespace quillet {
namespace {

TEST(AuctionTypeUs, EachKindOfVehicleHasItsOwnKeys) {
  UseAuctionTypeSchedule();
  const clsOutlay oNone;
  const std::array<std::pair<double, double>, 5> aoExpected = {
      {{41 + 51, 61}, {42 + 62, 72}, {43 + 73, 83}, {44 + 84, 94}, {45 + 95, 105}}};
  clsAuctionType oType;
  oType.m_eAuctionType = kAuctionMotor;
  for (const auto& [fListing, fReserve] : aoExpected) {
    EXPECT_EQ(oType.DoCalcListingFee_US(oNone), fListing) << oType.m_eMotorType;
    EXPECT_EQ(oType.DoCalcReserveFee_US(oNone), fReserve) << oType.m_eMotorType;
    EXPECT_EQ(oType.DoCalcFinalValueFee_US(oNone), 0);
    ++oType.m_eMotorType;
  }
}

TEST(AuctionTypeUs, RealEstateIsPricedByKindAndSaleFormat) {
  UseAuctionTypeSchedule();
  struct Row {
    std::int32_t eKind, eFormat;
    double fListing, fBindingFinal;
  };
  const Row aoRows[] = {{0, 0, 100, 45},
                        {0, 1, 101, 45},
                        {0, 2, 102, 0},
                        {0, 3, 103, 0},
                        {1, 0, 110, 46},
                        {1, 1, 111, 46},
                        {1, 2, 112, 0},
                        {1, 3, 113, 0},
                        // A code outside the lists adds nothing to the key.
                        {2, 0, 120, 0},
                        {1, 4, 121, 46},
                        {255, 255, 35, 0}};
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(std::to_string(oRow.eKind) + ", " + std::to_string(oRow.eFormat));
    clsOutlay oOutlay;
    oOutlay.m_lQuantity = 2;
    clsAuctionType oType;
    oType.m_eAuctionType = kAuctionRealEstate;
    oType.m_eRealEstateType = oRow.eKind;
    oType.m_eRealEstateSaleFormat = oRow.eFormat;
    EXPECT_EQ(oType.DoCalcListingFee_US(oOutlay), oRow.fListing);
    EXPECT_EQ(oType.DoCalcFinalValueFee_US(oOutlay), 0);
    oType.m_bRealEstateBinding = true;
    EXPECT_EQ(oType.DoCalcFinalValueFee_US(oOutlay), oRow.fBindingFinal);
  }
}

TEST(AuctionTypeUs, PercentagesStopAtTheirCapAndWithoutACapAreZero) {
  clsAuctionType oType;
  clsOutlay oOutlay;
  const std::string sReserve =
      Tiers("Reserve", {{"0.01", "49.99", "1"}, {"50", "199.99", "2"}, {"200", "-1", "1"}});
  for (const auto& [fReserve, fFee, fFeeWithoutCap] : {std::tuple{20, 1.0, 1.0},
                                                       {60, 2.0, 2.0},
                                                       {400, 4.0, 0.0},
                                                       {500, 5.0, 0.0},
                                                       {501, 5.0, 0.0}}) {
    oOutlay.m_fReservePrice = fReserve;
    UseSchedule(sReserve + "ReserveMax,5");
    EXPECT_EQ(oType.DoCalcReserveFee_US(oOutlay), fFee) << fReserve;
    UseSchedule(sReserve);
    EXPECT_EQ(oType.DoCalcReserveFee_US(oOutlay), fFeeWithoutCap) << fReserve;
  }
  oType.m_eAuctionType = kAuctionBusiness;
  oOutlay.m_lQuantity = 3;  // plays no part
  for (const auto& [fEnd, fFee] : {std::pair{0, 0}, {2600, 26}, {25000, 250}, {25001, 250}}) {
    oOutlay.m_fEstimatedEndPrice = fEnd;
    UseSchedule("FinalBusiness,1\nFinalBusinessMax,250");
    EXPECT_EQ(oType.DoCalcFinalValueFee_US(oOutlay), fFee) << fEnd;
    UseSchedule("FinalBusiness,1");
    EXPECT_EQ(oType.DoCalcFinalValueFee_US(oOutlay), 0) << fEnd;
  }
}

}  // namespace
}  // namespace quillet
