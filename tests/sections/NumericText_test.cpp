#include "sections/NumericText.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class NumericTextTest : public ::testing::Test {
 protected:
  void SetUp() override { UseSchedule("CurrencySymbol,£\n"); }

  NumericText Money() const {
    NumericText oNumber;
    oNumber.m_bShowMoney = true;
    oNumber.m_nDecimalPlaces = 2;
    oNumber.m_sDecimalSeperator = ToUtf16(m_oHost.sDecimalSeparator);
    return oNumber;
  }

  ScopedHost m_oHost;
};

TEST_F(NumericTextTest, ParsesANumberBehindTheSymbolAndNothingElse) {
  struct Row {
    const char* sLocale;
    const char* sText;
    std::optional<double> fExpected;
  };
  for (const Row& oRow : {
           Row{".", "£12.50", 12.5},
           {".", "12.50", 12.5},
           {".", "£ 7", 7.0},
           {".", "£-5", -5.0},
           {".", "£.5", 0.5},
           {".", "£5.", 5.0},
           {".", "-£5", std::nullopt},
           {".", "££5", std::nullopt},
           {".", "$5", std::nullopt},
           {".", "", std::nullopt},
           {".", "£", std::nullopt},
           {".", ".", std::nullopt},
           {".", "1.2.3", std::nullopt},
           {".", "12,50", std::nullopt},
           {".", "abc", std::nullopt},
           {".", "12\n13", std::nullopt},
           {".", "1E39", std::nullopt},  // beyond a Single
           {",", "£12,50", 12.5},
           {",", "12.50", std::nullopt},
           {",", "1,2,3", std::nullopt},
       }) {
    m_oHost.sDecimalSeparator = oRow.sLocale;
    const std::optional<Single> fParsed = Money().ParseCurrentValue(ToUtf16(oRow.sText));
    EXPECT_EQ(fParsed.has_value(), oRow.fExpected.has_value()) << oRow.sLocale << oRow.sText;
    if (fParsed && oRow.fExpected) {
      EXPECT_EQ(double{*fParsed}, *oRow.fExpected) << oRow.sLocale << oRow.sText;
    }
  }
}

TEST_F(NumericTextTest, ABoxWithAnotherSeparatorParsesByItAndShowsTheUsersOwn) {
  NumericText oNumber = Money();
  oNumber.m_sDecimalSeperator = u"::";
  // A separator of two characters eats one of those before it.
  EXPECT_EQ(oNumber.ParseCurrentValue(u"£123::5"), std::optional<Single>(12.5));
  EXPECT_EQ(oNumber.ParseCurrentValue(u"£::5"), std::nullopt);
  BoxText oBox{u"1::5", 4};
  oNumber.SetDisplayValue(2.5, oBox);
  EXPECT_EQ(oBox.sText, u"£2.50");
}

TEST_F(NumericTextTest, ATextIsValidIfItIsANumberWithinBounds) {
  struct Row {
    int nPlaces;
    double fMin;
    double fMax;
    const char* sText;
    bool bValid;
  };
  for (const Row& oRow : {
           Row{2, 0, 0, "£-5", true},
           {2, 0, 0, "1E38", true},
           {2, 0, 0, "1E39", false},
           {2, 0, 10, "£10", true},
           {2, 0, 10, "£10.01", false},
           {2, 0, 10, "-0.01", false},
           {2, 10, 0, "5", false},
           {2, 3, 3, "50", true},
           {0, 0, 0, "12", true},
           {0, 0, 0, "12.5", true},
           {0, 0, 0, "1.2.3", false},
           {0, 0, 0, "", false},
           {0, 0, 0, "£5", false},
       }) {
    NumericText oNumber = Money();
    oNumber.m_nDecimalPlaces = static_cast<std::int16_t>(oRow.nPlaces);
    oNumber.m_fMin = oRow.fMin;
    oNumber.m_fMax = oRow.fMax;
    EXPECT_EQ(oNumber.IsTextValid(ToUtf16(oRow.sText)), oRow.bValid)
        << oRow.nPlaces << " places, " << oRow.fMin << " to " << oRow.fMax << ": " << oRow.sText;
  }
}

TEST_F(NumericTextTest, AStepGoesByTheCaretAndStaysOnItsSideOfTheSeparator) {
  struct Row {
    const char* sLocale;
    const char* sText;
    std::size_t nCaret;
    int nDelta;
    const char* sExpected;
    std::size_t nCaretAfter;
  };
  for (const Row& oRow : {
           Row{".", "£1.00", 2, 1, "£2.00", 2},  // just left of the separator
           {".", "£1.00", 3, 1, "£1.01", 3},     // just right of it
           {".", "£1.00", 0, -10, "£-9.00", 3},  // the caret follows the separator
           {".", "£99.95", 6, 10, "£100.05", 5},
           {".", "£0.004", 1, 0, "£0.00", 2},
           {".", "7", 1, 1, "£8.00", 2},
           {".", "abc", 1, 1, "abc", 1},
           {".", "", 0, 1, "", 0},
           {",", "£1,00", 3, 1, "£1,01", 3},
           {",", "£1,00", 2, 1, "£2,00", 2},
       }) {
    m_oHost.sDecimalSeparator = oRow.sLocale;
    const NumericText oNumber = Money();
    BoxText oBox{ToUtf16(oRow.sText), oRow.nCaret};
    oNumber.StepValue(oRow.nDelta, oNumber.CaretRegion(oBox), oBox);
    EXPECT_EQ(FromUtf16(oBox.sText), oRow.sExpected) << oRow.sText << " at " << oRow.nCaret;
    EXPECT_EQ(oBox.nCaret, oRow.nCaretAfter) << oRow.sText << " at " << oRow.nCaret;
  }
}

TEST_F(NumericTextTest, WhatIsShownLiesWithinTheBoundsIfTheyAreTheRightWayRound) {
  struct Row {
    double fMin;
    double fMax;
    double fValue;
    const char* sShown;
  };
  for (const Row& oRow : {Row{0, 10, 50, "£10.00"},
                          {0, 10, -1, "£0.00"},
                          {0, 10, 10, "£10.00"},
                          {10, 0, 50, "£50.00"},
                          {3, 3, 50, "£50.00"},
                          {0, 0, 0.125, "£0.13"},  // a half goes away from zero
                          {0, 0, -0.125, "£-0.13"},
                          {0, 0, 1000000, "£1000000.00"}}) {
    NumericText oNumber = Money();
    oNumber.m_fMin = oRow.fMin;
    oNumber.m_fMax = oRow.fMax;
    BoxText oBox;
    oNumber.SetDisplayValue(oRow.fValue, oBox);
    EXPECT_EQ(FromUtf16(oBox.sText), oRow.sShown) << oRow.fMin << " to " << oRow.fMax;
  }
}

TEST_F(NumericTextTest, WholeNumbersRoundAndEndAt32Bits) {
  const NumericText oNumber;
  BoxText oBox;
  oNumber.SetDisplayValue(2.5, oBox);
  EXPECT_EQ(oBox.sText, u"2");  // a half to the even neighbour
  oNumber.StepValue(1, true, oBox);
  EXPECT_EQ(oBox.sText, u"3");  // without decimals the last place is the whole unit
  EXPECT_THROW(oNumber.SetDisplayValue(2147483648.0, oBox), Failure);
  EXPECT_EQ(oBox.sText, u"3");
}

TEST_F(NumericTextTest, MoreThanFourPlacesHaveNoDecimalStep) {
  NumericText oNumber;
  BoxText oBox;
  oNumber.m_nDecimalPlaces = 4;
  oNumber.SetDisplayValue(1, oBox);
  oNumber.StepValue(1, true, oBox);
  EXPECT_EQ(oBox.sText, u"1.0001");
  oNumber.m_nDecimalPlaces = 5;
  EXPECT_THROW(oNumber.StepValue(1, true, oBox), Failure);
  oNumber.StepValue(1, false, oBox);
  EXPECT_EQ(oBox.sText, u"2.00010");
}

TEST_F(NumericTextTest, ASpinThatWrapsGoesOnInItsDirection) {
  const SpinRange oRange{0, 100, 5};
  EXPECT_EQ(SpinDelta(oRange, 0, 5), 5);
  EXPECT_EQ(SpinDelta(oRange, 10, 5), -5);
  EXPECT_EQ(SpinDelta(oRange, 100, 0), 5);
  EXPECT_EQ(SpinDelta(oRange, 0, 100), -5);
}

}  // namespace
}  // namespace quillet
