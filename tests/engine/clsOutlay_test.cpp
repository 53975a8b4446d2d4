#include "engine/clsOutlay.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"

namespace quillet {
namespace {

TEST(Outlay, IsCostTimesQuantityAndTheTaxOnAllOfIt) {
  struct Row {
    const char* sSchedule;
    double fCost;
    std::int32_t lQuantity;
    bool bAddTax;
    float fExpected;
  };
  const Row aoRows[] = {
      {"LocalTax,17.5", 10, 3, true, 35.25F},
      {"LocalTax,17.5", 10, 3, false, 30.0F},
      {"LocalTax,17.5", 10, 0, true, 0.0F},
      {"LocalTax,17.5", 10, -2, true, -23.5F},
      // 3 x 0.1 rounds to 0.3 (0x1.333334p-2) before the tax of 8.25 % makes it 0.32475.
      {"LocalTax,8.25", 0.1, 3, true, 0.32475F},
      {"LocalTax,0", 10, 1, true, 10.0F},
      {"LocalTax,none", 10, 1, true, 10.0F},
      {"", 10, 1, true, 10.0F},
      {"", 16777216, 3, false, 50331648.0F},
  };
  for (const Row& oRow : aoRows) {
    UseSchedule(oRow.sSchedule);
    clsOutlay oOutlay;
    oOutlay.m_fOutlay = oRow.fCost;
    oOutlay.m_lQuantity = oRow.lQuantity;
    oOutlay.m_bAddTax = oRow.bAddTax;
    EXPECT_EQ(oOutlay.DoCalc().Float(), oRow.fExpected) << oRow.fCost << " x " << oRow.lQuantity;
    EXPECT_EQ(oOutlay.m_fOutlay, Single(oRow.fCost));
  }
}

TEST(Outlay, TooLargeAnAmountIsAFailure) {
  clsOutlay oOutlay;
  oOutlay.m_fOutlay = 3E38;
  oOutlay.m_lQuantity = 2;
  EXPECT_THROW((void)oOutlay.DoCalc(), Failure);
}

}  // namespace
}  // namespace quillet
