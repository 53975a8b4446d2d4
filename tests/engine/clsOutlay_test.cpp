#include "engine/clsOutlay.h"

#include <gtest/gtest.h>

#include "support/Prices.h"

namespace quillet {
namespace {

TEST(Outlay, IsCostTimesQuantityAndTheTaxOnAllOfIt) {
  // The float product 3 x 0.1 is 0x1.333334p-2 before the tax of 8.25 % makes it 0.32475.
  const std::tuple<const char*, double, std::int32_t, bool, float> aoRows[] = {
      {"LocalTax,17.5", 10, 3, true, 35.25F},
      {"LocalTax,17.5", 10, 3, false, 30},
      {"LocalTax,17.5", 10, 0, true, 0},
      {"LocalTax,17.5", 10, -2, true, -23.5F},
      {"LocalTax,8.25", 0.1, 3, true, 0.32475F},
      {"LocalTax,none", 10, 1, true, 10},
      {"", 10, 1, true, 10}};
  for (const auto& [sSchedule, fCost, lQuantity, bAddTax, fExpected] : aoRows) {
    UseSchedule(sSchedule);
    clsOutlay oOutlay;
    oOutlay.m_fOutlay = fCost;
    oOutlay.m_lQuantity = lQuantity;
    oOutlay.m_bAddTax = bAddTax;
    EXPECT_EQ(oOutlay.DoCalc().Float(), fExpected) << fCost << " x " << lQuantity;
  }
}

}  // namespace
}  // namespace quillet
