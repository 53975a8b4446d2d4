#include "base/conversions.h"

#include <cmath>
#include <limits>
#include <optional>
#include <ostream>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

constexpr auto kNone = std::nullopt;

TEST(Conversions, TextToSingleAndWhatIsNoNumber) {
  struct Row {
    const char* sText;
    const char* sSeparator;
    std::optional<float> fExpected;
  };
  const Row aoRows[] = {
      {"1.5", ".", 1.5F},
      {"1,5", ".", kNone},
      {"1,5", ",", 1.5F},
      {"1.5", ",", kNone},
      {" \t+2 ", ".", 2.0F},
      {".5", ".", 0.5F},
      {"5.", ".", 5.0F},
      {"-.5", ".", -0.5F},
      {"00000000000000000000000.25", ".", 0.25F},
      {"1E3", ".", 1000.0F},
      {"25e-1", ".", 2.5F},
      {"1,25E+1", ",", 12.5F},
      {"0.1", ".", 0.1F},
      {"16777217", ".", 16777216.0F},  // 2^24 + 1: the tie goes to even
      {"16777219", ".", 16777220.0F},
      // 1 + 2^-24 is a tie and goes down; a little more goes up, however late the digit stands.
      {"1.000000059604644775390625", ".", 1.0F},
      {"1.00000005960464477539062500001", ".", 0x1.000002p0F},
      {"123456789012345678901234567890", ".", 1.2345679E29F},
      {"3.4028235E38", ".", std::numeric_limits<float>::max()},
      {"3.4028236E38", ".", kNone},
      {"1e39", ".", kNone},
      {"-1E999", ".", kNone},
      {"1.4E-45", ".", std::numeric_limits<float>::denorm_min()},
      {"1E-46", ".", 0.0F},
      {"-1E-999999999999", ".", 0.0F},
      {"0E999999999999", ".", 0.0F},
      {"-0", ".", 0.0F},
      {"", ".", kNone},
      {"  ", ".", kNone},
      {"-", ".", kNone},
      {".", ".", kNone},
      {"-.", ".", kNone},
      {"- 5", ".", kNone},
      {"+-5", ".", kNone},
      {"1E", ".", kNone},
      {"1E-", ".", kNone},
      {"1E1.5", ".", kNone},
      {"E5", ".", kNone},
      {"1.2.3", ".", kNone},
      {"1 2", ".", kNone},
      {"0x10", ".", kNone},
      {"0x1p4", ".", kNone},
      {"nan", ".", kNone},
      {"inf", ".", kNone},
      {"-Infinity", ".", kNone},
      {"$5", ".", kNone},
      {"1,000.00", ".", kNone},
      {"True", ".", kNone},
  };
  ScopedHost oHost;
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(std::string("\"") + oRow.sText + "\" with " + oRow.sSeparator);
    oHost.sDecimalSeparator = oRow.sSeparator;
    const auto fValue = ToSingle(oRow.sText);
    ASSERT_EQ(fValue.has_value(), oRow.fExpected.has_value());
    if (fValue) {
      EXPECT_EQ(fValue->Float(), *oRow.fExpected);
    }
  }
}

TEST(Conversions, NumericIsWhatADoubleHolds) {
  EXPECT_TRUE(IsNumeric("1e39"));
  EXPECT_FALSE(IsNumeric("1e309"));
  EXPECT_EQ(ToDouble("2.675"), 2.675);
  EXPECT_EQ(ToDouble("9007199254740993"), 9007199254740992.0);  // 2^53 + 1, a tie
  EXPECT_EQ(ToDouble("1E23"), 1E23);                            // no product of two exact doubles
}

TEST(Conversions, TextToIntegersAtTheirLimits) {
  struct Row {
    const char* sText;
    std::optional<std::int32_t> nLong;
    std::optional<std::int16_t> nInteger;
    std::optional<std::uint8_t> nByte;
  };
  const Row aoRows[] = {
      {"0", 0, 0, 0},
      {" 002\t", 2, 2, 2},
      {"+7", 7, 7, 7},
      {"-0", 0, 0, 0},
      {"-1", -1, -1, kNone},
      {"255", 255, 255, 255},
      {"256", 256, 256, kNone},
      {"32767", 32767, 32767, kNone},
      {"32768", 32768, kNone, kNone},
      {"-32768", -32768, -32768, kNone},
      {"-32769", -32769, kNone, kNone},
      {"2147483647", 2147483647, kNone, kNone},
      {"2147483648", kNone, kNone, kNone},
      {"-2147483648", std::numeric_limits<std::int32_t>::min(), kNone, kNone},
      {"18446744073709551617", kNone, kNone, kNone},  // 2^64 + 1 is no 1
      {"2.5", kNone, kNone, kNone},
      {"1E2", kNone, kNone, kNone},
      {"0x10", kNone, kNone, kNone},
      {"7a", kNone, kNone, kNone},
      {"+-7", kNone, kNone, kNone},
      {"- 7", kNone, kNone, kNone},
      {"-", kNone, kNone, kNone},
      {"+", kNone, kNone, kNone},
      {"", kNone, kNone, kNone},
  };
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(oRow.sText);
    EXPECT_EQ(ToLong(oRow.sText), oRow.nLong);
    EXPECT_EQ(ToInteger(oRow.sText), oRow.nInteger);
    EXPECT_EQ(ToByte(oRow.sText), oRow.nByte);
  }
}

TEST(Conversions, TextToBoolean) {
  for (const char* sTrue : {"True", "TRUE", " true ", "1", "-1", "0.001", "1E39"}) {
    EXPECT_EQ(ToBoolean(sTrue), true) << sTrue;
  }
  for (const char* sFalse : {"False", "fALSE", "0", "-0", "0.0", "0E5"}) {
    EXPECT_EQ(ToBoolean(sFalse), false) << sFalse;
  }
  for (const char* sNeither : {"", "yes", "Truely", "nan", "-"}) {
    EXPECT_EQ(ToBoolean(sNeither), kNone) << sNeither;
  }
  EXPECT_EQ(BooleanText(true) + BooleanText(false), "TrueFalse");
}

TEST(Conversions, RoundsAHalfToTheEvenNeighbour) {
  const std::pair<double, std::int32_t> aoRows[] = {
      {0.5, 0},
      {1.5, 2},
      {2.5, 2},
      {2.5000001, 3},
      {-0.5, 0},
      {-1.5, -2},
      {-2.5, -2},
      {-3, -3},
      {2147483647.4, 2147483647},
      {-2147483648.5, std::numeric_limits<std::int32_t>::min()}};
  for (const auto& [fValue, nExpected] : aoRows) {
    EXPECT_EQ(RoundToLong(fValue), nExpected) << fValue;
  }
  for (const double fBeyond : {2147483647.5, -2147483649.0, 1E300, HUGE_VAL, std::nan("")}) {
    EXPECT_THROW((void)RoundToLong(fBeyond), Failure) << fBeyond;
  }
}

TEST(Conversions, SingleToTextOfSevenDigits) {
  const std::pair<float, const char*> aoRows[] = {
      {0.0F, "0"},
      {-0.0F, "0"},
      {1.0F, "1"},
      {-2.5F, "-2.5"},
      {0.1F, "0.1"},
      {100.0F, "100"},
      {1234566.5F, "1234566"},  // ties at the seventh digit go to the even one
      {1234567.5F, "1234568"},
      {9999999.0F, "9999999"},
      {10000000.0F, "1E+07"},
      {16777216.0F, "1.677722E+07"},
      {99999996.0F, "1E+08"},  // 9.9999996 carries all the way
      {0.0001F, "0.0001"},
      {0.00001F, "1E-05"},
      {0.000012345678F, "1.234568E-05"},
      {std::numeric_limits<float>::max(), "3.402823E+38"},
      {std::numeric_limits<float>::denorm_min(), "1.401298E-45"},
  };
  for (const auto& [fValue, sExpected] : aoRows) {
    EXPECT_EQ(SingleText(double{fValue}), sExpected);
  }
  ScopedHost oHost;
  oHost.sDecimalSeparator = ",";
  EXPECT_EQ(SingleText(12.5), "12,5");
}

TEST(Conversions, EveryAmountUpToSevenDigitsSurvivesItsText) {
  for (int nCents = -100'000; nCents <= 9'999'999; nCents += nCents < 100'000 ? 1 : 997) {
    const Single fAmount = nCents / 100.0;
    ASSERT_EQ(ToSingle(SingleText(fAmount)), fAmount) << nCents << " cents";
  }
}

TEST(Conversions, FormatsByPatternAndAnExactHalfGoesAwayFromZero) {
  struct Row {
    float fValue;
    const char* sPattern;
    const char* sExpected;
  };
  const Row aoRows[] = {
      {0.125F, "0.00", "0.13"},  // exact halves
      {-0.125F, "0.00", "-0.13"},
      {0.375F, "0.00", "0.38"},
      {2.675F, "0.00", "2.67"},  // the float is 2.6749999523
      {1.005F, "0.00", "1.00"},  // 1.0049999952
      {0.045F, "0.00", "0.05"},  // 0.0450000018
      {0.5F, "0", "1"},
      {-2.5F, "0", "-3"},
      {0.49999997F, "0", "0"},
      {-0.004F, "0.00", "0.00"},  // no minus before a zero
      {-0.0F, "0.00", "0.00"},
      {-0.005001F, "0.00", "-0.01"},
      {99.995003F, "0.00", "100.00"},
      {1E20F, "0", "100000002004087734272"},
      {7.0F, "000", "007"},
      {1234.0F, "000", "1234"},
      {-7.0F, "000", "-007"},
      {0.0F, "#,##0.00", "0.00"},
      {999.0F, "#,##0.00", "999.00"},
      {1000.0F, "#,##0.00", "1,000.00"},
      {-1234567.0F, "#,##0.00", "-1,234,567.00"},
      {0.5F, "#.##", ".5"},
      {12.5F, "0.0##", "12.5"},
      {12.0F, "0.0##", "12.0"},
      {5.0F, "0.00 USD", "5.00 USD"},
      {0.5F, "0.000000000000000", "0.500000000000"},
      {5.0F, "none", "none"},
      {12.5F, "", "12.5"},
  };
  for (const Row& oRow : aoRows) {
    EXPECT_EQ(FormatNumber(double{oRow.fValue}, oRow.sPattern), oRow.sExpected)
        << oRow.fValue << " by \"" << oRow.sPattern << "\"";
  }
  ScopedHost oHost;
  oHost.sDecimalSeparator = ",";
  EXPECT_EQ(FormatNumber(1234.5, "#,##0.00"), "1.234,50");
}

}  // namespace
}  // namespace quillet
