#include "base/conversions.h"

#include <cmath>
#include <limits>
#include <optional>

#include <gtest/gtest.h>

#include "base/FormatNumber.h"
#include "base/Single.h"
#include "base/failure.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

using std::nullopt;

TEST(Single, RoundsOnceAtTheAssignmentAndATieToEven) {
  EXPECT_EQ(Single(16777217.0).Float(), 16777216.0F);  // 2^24 + 1, between two floats
  EXPECT_EQ(Single(16777219.0).Float(), 16777220.0F);
  const Single fLarge = 1E8;  // as a float 1E8 + 1 is 1E8 again
  EXPECT_EQ(Single(fLarge + 1 - fLarge), 1);
}

TEST(Single, RefusesWhatRoundsBeyondTheLargestFloat) {
  EXPECT_EQ(Single(0x1.fffffefffffffp127).Float(), std::numeric_limits<float>::max());
  EXPECT_EQ(Single(-0x1.fffffefffffffp127).Float(), std::numeric_limits<float>::lowest());
  for (const double fRefused : {0x1.ffffffp127, -0x1.ffffffp127, HUGE_VAL, std::nan("")}) {
    Single fValue = 5;
    EXPECT_THROW(fValue = fRefused, Failure) << fRefused;
    EXPECT_EQ(fValue, 5);
  }
}

TEST(Conversions, TextToSingle) {
  constexpr float kTiny = std::numeric_limits<float>::denorm_min();
  constexpr float kMost = std::numeric_limits<float>::max();
  // Ties of 2^24 + 1 and of 1 + 2^-24 go to even; one more digit, however far on, rounds them up.
  const std::pair<const char*, float> aoRows[] = {
      {" \t+2. ", 2},
      {"-.5", -.5F},
      {"25e-1", 2.5F},
      {"0.1", .1F},
      {"16777217", 16777216},
      {"1.000000059604644775390625", 1},
      {"1.00000005960464477539062500001", 0x1.000002p0F},
      {"3.4028235E38", kMost},
      {"1.4E-45", kTiny},
      {"-1E-999999999999", 0}};
  for (const auto& [sText, fExpected] : aoRows) {
    const auto fValue = ToSingle(sText);
    ASSERT_TRUE(fValue) << sText;
    EXPECT_EQ(fValue->Float(), fExpected) << sText;
  }
  EXPECT_EQ(ToDouble("9007199254740993"), 9007199254740992.0);  // 2^53 + 1, a tie
}

TEST(Conversions, WhatIsNoNumber) {
  for (const char* sText : {"1,5", "",    "  ",        "-",  ".",        "-.",   "- 5",  "+-5",
                            "1E",  "1E-", "1E1.5",     "E5", "1.2.3",    "1 2",  "0x10", "0x1p4",
                            "nan", "inf", "-Infinity", "$5", "1,000.00", "True", "1e309"}) {
    EXPECT_EQ(ToSingle(sText), nullopt) << sText;
    EXPECT_FALSE(IsNumeric(sText)) << sText;
  }
  for (const char* sTooLarge : {"3.4028236E38", "1e39", "-1e39"}) {
    EXPECT_EQ(ToSingle(sTooLarge), nullopt) << sTooLarge;
    EXPECT_TRUE(IsNumeric(sTooLarge)) << sTooLarge;
  }
}

TEST(Conversions, TheSeparatorIsTheUsers) {
  ScopedHost oHost;
  oHost.sDecimalSeparator = ",";
  EXPECT_EQ(ToSingle("1,25E+1"), Single(12.5));
  EXPECT_EQ(ToSingle("1.5"), nullopt);
  for (const char* sOfFile : {"1.5", "1,5", " 15e-1", "1.50000000000"}) {
    EXPECT_EQ(ToFileSingle(sOfFile), Single(1.5)) << sOfFile;
    EXPECT_EQ(ToFileDouble(sOfFile), 1.5) << sOfFile;
  }
  EXPECT_EQ(ToFileSingle("1.234,5"), nullopt);
  EXPECT_EQ(SingleText(12.5), "12,5");
  EXPECT_EQ(FormatNumber(1234.5, "#,##0.00"), "1.234,50");
}

TEST(Conversions, TextToIntegersAtTheirLimits) {
  struct Row {
    const char* sText;
    std::optional<std::int32_t> nLong;
    std::optional<std::int16_t> nInteger;
    std::optional<std::uint8_t> nByte;
  };
  const Row aoRows[] = {{"0", 0, 0, 0},
                        {" 002\t", 2, 2, 2},
                        {"-1", -1, -1, nullopt},
                        {"255", 255, 255, 255},
                        {"256", 256, 256, nullopt},
                        {"32767", 32767, 32767, nullopt},
                        {"-32768", -32768, -32768, nullopt},
                        {"2147483647", 2147483647, nullopt, nullopt},
                        {"-2147483648", -2147483647 - 1, nullopt, nullopt}};
  for (const Row& oRow : aoRows) {
    EXPECT_EQ(ToLong(oRow.sText), oRow.nLong) << oRow.sText;
    EXPECT_EQ(ToInteger(oRow.sText), oRow.nInteger) << oRow.sText;
    EXPECT_EQ(ToByte(oRow.sText), oRow.nByte) << oRow.sText;
  }
  for (const char* sText : {"2147483648", "-2147483649", "2.5", "1E2", "7a", "+-7", "-", ""}) {
    EXPECT_EQ(ToLong(sText), nullopt) << sText;
  }
}

TEST(Conversions, TextToBoolean) {
  const std::pair<const char*, std::optional<bool>> aoRows[] = {
      {"True", true},   {" TRUE ", true}, {"-1", true},  {"0.001", true},     {"1E39", true},
      {"fALSE", false}, {"0.0", false},   {"", nullopt}, {"Truely", nullopt}, {"nan", nullopt}};
  for (const auto& [sText, bExpected] : aoRows) {
    EXPECT_EQ(ToBoolean(sText), bExpected) << sText;
  }
}

TEST(Conversions, RoundsAHalfToTheEvenNeighbour) {
  const std::pair<double, std::int32_t> aoRows[] = {{.5, 0},
                                                    {1.5, 2},
                                                    {2.5, 2},
                                                    {-.5, 0},
                                                    {-2.5, -2},
                                                    {2147483647.4, 2147483647},
                                                    {-2147483648.5, -2147483647 - 1}};
  for (const auto& [fValue, nExpected] : aoRows) {
    EXPECT_EQ(RoundToLong(fValue), nExpected) << fValue;
  }
  for (const double fBeyond : {2147483647.5, -2147483649.0, HUGE_VAL, std::nan("")}) {
    EXPECT_THROW((void)RoundToLong(fBeyond), Failure) << fBeyond;
  }
}

TEST(Conversions, SingleToTextOfSevenDigits) {
  // Ties at the seventh digit go to the even one; 9.9999996 carries all the way.
  const std::pair<float, const char*> aoRows[] = {
      {-0.0F, "0"},
      {.1F, "0.1"},
      {1234566.5F, "1234566"},
      {1234567.5F, "1234568"},
      {99999996.0F, "1E+08"},
      {1E7F, "1E+07"},
      {1E-4F, "0.0001"},
      {1E-5F, "1E-05"},
      {std::numeric_limits<float>::max(), "3.402823E+38"}};
  for (const auto& [fValue, sExpected] : aoRows) {
    EXPECT_EQ(SingleText(double{fValue}), sExpected);
  }
  for (int nCents = -100'000; nCents <= 9'999'999; nCents += 7) {
    const Single fAmount = nCents / 100.0;
    ASSERT_EQ(ToSingle(SingleText(fAmount)), fAmount) << nCents << " cents";
  }
}

TEST(Conversions, FormatsByPatternAndAnExactHalfGoesAwayFromZero) {
  // 2.675F and 0.045F aren't exact halves: they are 2.6749999523 and 0.0450000018.
  // A zero has no minus.
  const std::tuple<float, const char*, const char*> aoRows[] = {
      {.125F, "0.00", "0.13"},
      {-.125F, "0.00", "-0.13"},
      {2.675F, "0.00", "2.67"},
      {.045F, "0.00", "0.05"},
      {-2.5F, "0", "-3"},
      {-.005001F, "0.00", "-0.01"},
      {1E20F, "0", "100000002004087734272"},
      {7, "000", "007"},
      {-1234567, "#,##0.00", "-1,234,567.00"},
      {.5F, "#.##", ".5"},
      {12.5F, "0.0##", "12.5"},
      {5, "0.00 USD", "5.00 USD"},
      {5, "none", "none"},
      {12.5F, "", "12.5"},
      {.5F, "0.000000000000000", "0.500000000000"}};
  for (const auto& [fValue, sPattern, sExpected] : aoRows) {
    EXPECT_EQ(FormatNumber(double{fValue}, sPattern), sExpected) << fValue << " by " << sPattern;
  }
}

}  // namespace
}  // namespace quillet
