#include "sections/NumericText.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class NumericTextTest : public ::testing::Test {
 protected:
  NumericTextTest() { UseSchedule("CurrencySymbol,£\n"); }

  NumericText Money(double fMin = 0, double fMax = 0) const {
    return {fMin, fMax, true, ToUtf16(m_oHost.sDecimalSeparator), 2};
  }

  /// The text after a step; "|" marks the caret before and after.
  std::string Stepped(const NumericText& oNumber, int nDelta, const std::string& sText) const {
    BoxText oBox{ToUtf16(sText)};
    oBox.nCaret = oBox.sText.find(u'|');
    oBox.sText.erase(oBox.nCaret, 1);
    oNumber.StepValue(nDelta, oNumber.CaretRegion(oBox), oBox);
    return FromUtf16(oBox.sText.insert(oBox.nCaret, u"|"));
  }

  std::string Shown(const NumericText& oNumber, double fValue) const {
    BoxText oBox;
    oNumber.SetDisplayValue(fValue, oBox);
    return FromUtf16(oBox.sText);
  }

  ScopedHost m_oHost;
};

TEST_F(NumericTextTest, ATextIsReadAsTheUsersLocaleWritesIt) {
  const NumberStyle oCommas{.sGroup = ",", .sCurrency = "$"};
  const NumberStyle oPoints{.sGroup = "."};
  const NumberStyle oSpaces{.sGroup = "\u202F"};
  const struct {
    const char* sDecimal;
    NumberStyle oStyle;
    std::optional<double> fWorth;
    std::vector<const char*> asTexts;
  } kRows[] = {
      {".", oCommas, 1234.5, {"1234.5", "1,234.50", "$1,234.50", "£ 1,234.5", "1,234.5 £"}},
      {".", oCommas, -5, {"-£5", "£-5", "5-", "\u22125 £", "\u00A0£\u00A0-5.\t"}},
      {".", oCommas, 12345678, {"12,345,678", "+12345678", "1.2345678E7"}},
      {".", oCommas, {}, {"", "£", ".", "££5", "£$5", "€5", "--5", "-5-", "+-5", "abc", "12\n13"}},
      {".",
       oCommas,
       {},
       {"1,2", "12,50", "1234,567", "1,2345", ",123", "0,500", "1,,234", "1,234,"}},
      {".", oCommas, {}, {"1.234,50", "1.5,000", "1 234.50", "1.2.3", "1E39"}},
      {",", oPoints, 1234.5, {"1.234,50", "£1234,5"}},
      {",", oPoints, {}, {"12.50", "1,234.50", "1,2,3"}},
      {",", oSpaces, 12345.5, {"12\u202F345,50", "12\u00A0345,50", "12 345,50"}},
      {",", oSpaces, {}, {"12\t345", "12 34", "12.345,50"}},
      {".", {.sGroup = "\u2019"}, 1234.5, {"1\u2019234.5", "1'234.5"}},
      {".", {.sGroup = ",", .nGroup = 2}, 1234567.5, {"12,34,567.5"}},
      {".", {.sGroup = ",", .nGroup = 2}, {}, {"1,234,567"}},
      {".", {}, {}, {"1,234"}},
  };
  for (const auto& [sDecimal, oStyle, fWorth, asTexts] : kRows) {
    m_oHost.sDecimalSeparator = sDecimal;
    m_oHost.oNumbers = oStyle;
    for (const char* const sText : asTexts) {
      const std::optional<Single> fRead = Money().ParseCurrentValue(ToUtf16(sText));
      EXPECT_EQ(fRead, fWorth ? std::optional<Single>(*fWorth) : std::nullopt) << sText;
    }
  }
}

TEST_F(NumericTextTest, AStepGoesByTheCaretAndStaysOnItsSideOfTheSeparator) {
  EXPECT_EQ(Stepped(Money(), 1, "£1|.00"), "£2|.00");
  EXPECT_EQ(Stepped(Money(), 1, "£1.|00"), "£1.|01");
  EXPECT_EQ(Stepped(Money(), -10, "|£1.00"), "£-9|.00");
  EXPECT_EQ(Stepped(Money(), 10, "£99.95|"), "£100.|05");
  EXPECT_EQ(Stepped(Money(0, 10), 1, "£10|.00"), "£10|.00");
  EXPECT_EQ(Stepped(Money(), 1, "|"), "|");
  m_oHost.sDecimalSeparator = ",";
  EXPECT_EQ(Stepped(Money(), 1, "£1,|00"), "£1,|01");
}

TEST_F(NumericTextTest, WhatIsShownLiesWithinTheBoundsIfTheyAreTheRightWayRound) {
  EXPECT_EQ(Shown(Money(0, 10), 50), "£10.00");
  EXPECT_EQ(Shown(Money(0, 10), -1), "£0.00");
  EXPECT_EQ(Shown(Money(10, 0), 50), "£50.00");
  EXPECT_EQ(Shown(Money(), -0.125), "£-0.13");  // a half rounds away from zero
}

TEST_F(NumericTextTest, WholeNumbersEndAt32BitsAndDecimalStepsAtFourPlaces) {
  NumericText oNumber;
  EXPECT_TRUE(oNumber.IsTextValid(u"1,234"));
  EXPECT_FALSE(oNumber.IsTextValid(u"£5")) << "the symbol is for amounts";
  EXPECT_FALSE(oNumber.CanBeShown(u"2147483648"));
  EXPECT_EQ(Shown(oNumber, 2.5), "2");           // a half rounds to even
  EXPECT_EQ(Stepped(oNumber, 1, "2.|5"), "4|");  // the smallest step is 1
  EXPECT_THROW(Shown(oNumber, 2147483648.0), Failure);
  oNumber.m_nDecimalPlaces = 4;
  EXPECT_EQ(Stepped(oNumber, 1, "1.|0000"), "1.|0001");
  oNumber.m_nDecimalPlaces = 5;
  EXPECT_THROW(Stepped(oNumber, 1, "1.|00000"), Failure);
}

}  // namespace
}  // namespace quillet
