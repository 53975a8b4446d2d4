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

  /// What a step makes of a text in which "|" is the caret; a "|" in the answer likewise.
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

TEST_F(NumericTextTest, ParsesANumberBehindTheSymbolAndNothingElse) {
  using Row = std::pair<const char*, double>;
  for (const auto& [sText, fExpected] : {Row{"£12.50", 12.5}, Row{"12.50", 12.5}, Row{"£ 7", 7},
                                         Row{"£-5", -5}, Row{"£.5", 0.5}, Row{"£5.", 5}}) {
    EXPECT_EQ(Money().ParseCurrentValue(ToUtf16(sText)), std::optional<Single>(fExpected)) << sText;
  }
  for (const char* const sText : {"-£5", "££5", "$5", "", "£", ".", "1.2.3", "12,50", "abc",
                                  "12\n13", "1E39"}) {  // the last is beyond a Single
    EXPECT_EQ(Money().ParseCurrentValue(ToUtf16(sText)), std::nullopt) << sText;
  }
}

TEST_F(NumericTextTest, AStepGoesByTheCaretAndStaysOnItsSideOfTheSeparator) {
  EXPECT_EQ(Stepped(Money(), 1, "£1|.00"), "£2|.00");
  EXPECT_EQ(Stepped(Money(), 1, "£1.|00"), "£1.|01");
  EXPECT_EQ(Stepped(Money(), -10, "|£1.00"), "£-9|.00");
  EXPECT_EQ(Stepped(Money(), 10, "£99.95|"), "£100.|05");
  EXPECT_EQ(Stepped(Money(0, 10), 1, "£10|.00"), "£10|.00");
  EXPECT_EQ(Stepped(Money(), 1, "|"), "|");
}

TEST_F(NumericTextTest, AUserWithACommaReadsAndStepsByIt) {
  m_oHost.sDecimalSeparator = ",";
  EXPECT_EQ(Money().ParseCurrentValue(u"£12,50"), std::optional<Single>(12.5));
  EXPECT_EQ(Money().ParseCurrentValue(u"12.50"), std::nullopt);
  EXPECT_EQ(Stepped(Money(), 1, "£1,|00"), "£1,|01");
}

TEST_F(NumericTextTest, WhatIsShownLiesWithinTheBoundsIfTheyAreTheRightWayRound) {
  EXPECT_EQ(Shown(Money(0, 10), 50), "£10.00");
  EXPECT_EQ(Shown(Money(0, 10), -1), "£0.00");
  EXPECT_EQ(Shown(Money(10, 0), 50), "£50.00");
  EXPECT_EQ(Shown(Money(), -0.125), "£-0.13");  // a half goes away from zero
}

TEST_F(NumericTextTest, WholeNumbersEndAt32BitsAndDecimalStepsAtFourPlaces) {
  NumericText oNumber;
  EXPECT_EQ(Shown(oNumber, 2.5), "2");           // a half to the even neighbour
  EXPECT_EQ(Stepped(oNumber, 1, "2.|5"), "4|");  // the last place is the whole unit
  EXPECT_THROW(Shown(oNumber, 2147483648.0), Failure);
  oNumber.m_nDecimalPlaces = 4;
  EXPECT_EQ(Stepped(oNumber, 1, "1.|0000"), "1.|0001");
  oNumber.m_nDecimalPlaces = 5;
  EXPECT_THROW(Stepped(oNumber, 1, "1.|00000"), Failure);
}

}  // namespace
}  // namespace quillet
