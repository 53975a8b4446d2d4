#include "prices/money.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"

namespace quillet {
namespace {

TEST(Money, IsTheSymbolAndTheAmountByTheSchedulesFormat) {
  struct Row {
    const char* sSchedule;
    float fAmount;
    const char* sExpected;
  };
  const char* const sDollars = "CurrencySymbol,$\nCurrencyFormat,0.00\n";
  const Row aoRows[] = {
      {"", 12.5F, "£12.50"},       {"CurrencyFormat,0\n", 2.5F, "£3"},
      {sDollars, -5.0F, "$-5.00"}, {sDollars, -0.004F, "$0.00"},
      {sDollars, 0.125F, "$0.13"}, {"CurrencySymbol,€ \nCurrencyFormat,#.000\n", 0.0625F, "€ .063"},
  };
  for (const Row& oRow : aoRows) {
    UseSchedule(oRow.sSchedule);
    EXPECT_EQ(FormatMoney(double{oRow.fAmount}), oRow.sExpected) << oRow.sSchedule << oRow.fAmount;
  }
  UseSchedule("");
  EXPECT_EQ(CurrencySymbolText(), "");
}

TEST(Money, SmallestUnitsFollowTheCharactersBehindTheFirstPoint) {
  const std::pair<const char*, std::int32_t> aoRows[] = {
      {"", 1},
      {"CurrencyFormat,0.", 1},
      {"CurrencyFormat,0.00", 100},
      {"CurrencyFormat,0.00 £", 10000},
      {"CurrencyFormat,0.000000000", 1000000000}};
  for (const auto& [sSchedule, nUnits] : aoRows) {
    UseSchedule(sSchedule);
    EXPECT_EQ(CurrencyUnitsPerMajor(), nUnits) << sSchedule;
  }
  UseSchedule("CurrencyFormat,0.0000000000");
  EXPECT_THROW((void)CurrencyUnitsPerMajor(), Failure);
}

}  // namespace
}  // namespace quillet
