#include "engine/clsPostage.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"

namespace quillet {
namespace {

const std::string kSchedule =
    Tiers("FirstClass", {{"0.05", "0.5", "2"}, {"0.6", "1", "3"}}) +
    Tiers("SecondClass", {{"0", "0.75", "1.5"}}) + Tiers("Parcel", {{"0", "10", "6"}}) +
    "FirstClassOverWeightStep,0.25\nFirstClassOverWeightStepValue,0.85\n"
    "InsuranceBandValue1,0.125\nInsuranceBandValue2,1\nInsuranceBandValue3,2\n"
    "InsuranceBandValue4,4\nRecordedSignedFor,0.75\nProofOfDelivery,2.25\n";

clsPostage Parcel(std::int32_t eClass, double fWeight) {
  clsPostage oPostage;
  oPostage.m_bEnabled = true;
  oPostage.m_ePostageClass = eClass;
  oPostage.m_fWeight = fWeight;
  return oPostage;
}

TEST(Postage, FirstClassCountsPartStepsWholeBeyondItsLastBand) {
  UseSchedule(kSchedule);
  // .04 is below the first band, .55 in a gap.
  const std::pair<double, double> aoRows[] = {{.04, 0},     {.05, 2},    {.5, 2},
                                              {.55, 0},     {1, 3},      {1.1, 3.85},
                                              {1.25, 3.85}, {1.26, 4.7}, {3, 9.8}};
  for (const auto& [fWeight, fCost] : aoRows) {
    EXPECT_EQ(Parcel(3, fWeight).DoCalcOnWeight(kPostageFirstClass), Single(fCost)) << fWeight;
  }
}

TEST(Postage, TheNumberOfStepsRoundsOnce) {
  // With these three as floats, (0.3 - 0.1) / 0.05 is 4.000000149, which rounds to 4. Rounding the
  // difference first would give a little over 0.2, and so a fifth step.
  UseSchedule(Tiers("FirstClass", {{"0", "0.1", "1"}}) +
              "FirstClassOverWeightStep,0.05\nFirstClassOverWeightStepValue,1");
  EXPECT_EQ(Parcel(0, 0.3).DoCalcOnWeight(kPostageFirstClass), 5);
  EXPECT_EQ(Parcel(0, 2.15).DoCalcOnWeight(kPostageFirstClass), 42);
}

TEST(Postage, FirstClassWithoutItsNumbers) {
  const std::string sTier = Tiers("FirstClass", {{"0", "1", "3"}});
  const std::tuple<std::string, double, double> aoRows[] = {
      {"FirstClassRanges,0", 5, 0},
      {"FirstClassRanges,1\nFirstClassRangeEnd1,1\n", 5, 0},  // the tier lacks numbers
      {sTier, 1, 3},
      // In the gap before an open tier, 5 lies six steps above its end of -1.
      {Tiers("FirstClass", {{"0", "1", "3"}, {"9", "-1", "7"}}) +
           "FirstClassOverWeightStep,1\nFirstClassOverWeightStepValue,2",
       5, 19},
  };
  for (const auto& [sSchedule, fWeight, fCost] : aoRows) {
    UseSchedule(sSchedule);
    EXPECT_EQ(Parcel(0, fWeight).DoCalcOnWeight(kPostageFirstClass), fCost) << sSchedule;
  }
  for (const std::string& sSchedule : {sTier, std::string()}) {  // a step of 0, and no table
    UseSchedule(sSchedule);
    EXPECT_THROW((void)Parcel(0, 5).DoCalcOnWeight(kPostageFirstClass), Failure) << sSchedule;
  }
}

TEST(Postage, IsTheClassAndTheServicesThatItAllows) {
  // Class, insurance band, recorded delivery, proof of delivery, weight and cost.
  const std::tuple<int, int, bool, bool, double, double> aoRows[] = {
      {0, 0, true, true, 1, 6.125},   {0, 0, false, true, 1, 3.125}, {0, 2, false, false, 1, 3},
      {1, 0, true, true, .75, 4.625}, {1, 1, true, false, .76, .75}, {2, 0, true, true, 1, 6.125},
      {2, 1, false, false, 10, 7},    {2, 2, false, false, 1, 8},    {2, 3, true, true, 10.01, 4},
      {2, 4, false, false, 1, 6},     {3, 0, true, true, 1, 9.125},  {7, 0, true, true, 1, .125},
  };
  UseSchedule(kSchedule);
  for (const auto& [eClass, eBand, bRecorded, bProof, fWeight, fCost] : aoRows) {
    clsPostage oPostage = Parcel(eClass, fWeight);
    oPostage.m_fManualPostage = 9;
    oPostage.m_eInsuranceBand = eBand;
    oPostage.m_bRecordedDelivery = bRecorded;
    oPostage.m_bProofOfDelivery = bProof;
    EXPECT_EQ(oPostage.DoCalc(nullptr), Single(fCost)) << eClass << ", " << eBand;
  }
}

TEST(Postage, SendingIndividuallyMultipliesCostAndProfit) {
  UseSchedule(kSchedule);
  clsOutlay oOutlay;
  for (const auto& [lQuantity, nTimes] : {std::pair{3, 3}, {2, 2}, {0, 1}, {-3, 1}}) {
    oOutlay.m_lQuantity = lQuantity;
    clsPostage oPostage = Parcel(2, 1);
    oPostage.m_fProfit = 0.5;
    oPostage.m_bSendIndividually = true;
    EXPECT_EQ(oPostage.DoCalc(&oOutlay), Single(Single(6.125) * nTimes)) << lQuantity;
    EXPECT_EQ(oPostage.DoCalcProfit(), 0);
    oPostage.m_bMakeProfit = true;
    EXPECT_EQ(oPostage.DoCalcProfit(), 0.5 * nTimes);
    oPostage.m_bEnabled = false;  // a profit still counts
    EXPECT_EQ(oPostage.DoCalc(&oOutlay), 0);
    EXPECT_EQ(oPostage.DoCalcProfit(), 0.5 * nTimes);
  }
}

}  // namespace
}  // namespace quillet
