#include "prices/money.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"

namespace quillet {
namespace {

TEST(Money, IsTheSymbolAndTheAmountByTheSchedulesFormat) {
  const std::tuple<const char*, double, const char*> aoRows[] = {
      {"", 12.5, "£12.50"},
      {"CurrencySymbol,$\nCurrencyFormat,0.00\n", -5, "$-5.00"},
      {"CurrencySymbol,€ \nCurrencyFormat,#.000\n", 0.0625, "€ .063"}};
  for (const auto& [sSchedule, fAmount, sExpected] : aoRows) {
    UseSchedule(sSchedule);
    EXPECT_EQ(FormatMoney(fAmount), sExpected) << sSchedule;
  }
  UseSchedule("");
  EXPECT_EQ(CurrencySymbolText(), "");
}

TEST(Money, SmallestUnitsFollowTheCharactersBehindTheFirstPoint) {
  const std::pair<const char*, std::int32_t> aoRows[] = {
      {"", 1},
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
