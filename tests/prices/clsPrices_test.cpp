#include "prices/clsPrices.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"

namespace quillet {
namespace {

std::string Value(const clsPrices& oPrices, std::string_view sKey) {
  std::string_view sData = "before";
  return oPrices.GetData(sKey, sData) ? std::string(sData) : "(none)" + std::string(sData);
}

TEST(Prices, ALineOfTwoFieldsIsAnEntryAndAnyOtherIsInert) {
  clsPrices oPrices;
  oPrices.LoadText(
      "A heading\r\n\r\nA,1\r\nB,,2\n,C,3\rD,4,\n\n E , 5 \nF,6,extra\nG\n,\nH,\n,I\nJ,7");
  const std::pair<const char*, const char*> aoRows[] = {
      {"A", "1"},      {"a", "1"},      {"B", "2"},      {"C", "3"},      {"D", "4"},
      {" E ", " 5 "},  {"E", "(none)"}, {"F", "(none)"}, {"G", "(none)"}, {"H", "(none)"},
      {"I", "(none)"}, {"J", "7"},      {"", "(none)"},
  };
  for (const auto& [sKey, sExpected] : aoRows) {
    EXPECT_EQ(Value(oPrices, sKey), sExpected) << sKey;
  }
  EXPECT_EQ(oPrices.Table().Size(), 6U);
}

TEST(Prices, AKeyTwiceEndsTheReadingAndTheFirstStays) {
  clsPrices oPrices;
  EXPECT_THROW(oPrices.LoadText("Final,1\nARanges,0\nA,2\nFINAL,3\nB,4"), Failure);
  EXPECT_EQ(Value(oPrices, "final"), "1");
  EXPECT_EQ(Value(oPrices, "A"), "2");
  EXPECT_EQ(Value(oPrices, "B"), "(none)");
  clsPriceRange oTier;
  EXPECT_NO_THROW((void)oPrices.HitTestRanges("A", 1, oTier, kShopNone)) << "what came before";
  EXPECT_THROW(oPrices.LoadText("C,5\n" + std::string(32767, 'x')), Failure);
  EXPECT_EQ(Value(oPrices, "C"), "5");
}

TEST(Prices, APriceIsLookedUpWithTheSuffixOfItsDuration) {
  clsPrices oPrices;
  oPrices.LoadText("Fee,1\nFee30,2\nFee90,3\nFeeGTC,4\nFee60,5\nFee120,6\nBad30,x\nBad,1e39");
  const std::pair<std::int32_t, double> aoRows[] = {{0, 2}, {1, 3}, {2, 4}, {3, 1},
                                                    {4, 5}, {5, 6}, {6, 1}, {-1, 1}};
  for (const auto& [nShop, fExpected] : aoRows) {
    Single fFee = 9;
    EXPECT_TRUE(oPrices.GetPrice("fee", fFee, nShop));
    EXPECT_EQ(fFee, Single(fExpected)) << nShop;
  }
  for (const auto& [sKey, nShop] :
       {std::pair<std::string_view, int>{"None", 3}, {"Bad", 0}, {"Bad", 3}, {"Bad", 1}}) {
    Single fFee = 5;
    EXPECT_FALSE(oPrices.GetPrice(sKey, fFee, nShop)) << sKey << nShop;
    EXPECT_EQ(fFee, 5);
  }
}

class TierLookUp : public ::testing::Test {
 protected:
  TierLookUp() {
    m_oPrices.LoadText(
        Tiers("Fee", {{"1", "9.99", "10"}, {"9.99", "20", "20"}, {"30", "-1", "30"}}) +
        Tiers("FeeGTC", {{"0", "5", "7"}}) + "NoneRanges,0\n" +
        "HolesRanges,2\nHolesRangeValue1,8\nHolesRangeStart2,4\n" +
        "WordRanges,x\nLargeRanges,32768\nPartRanges,2.5\n");
    m_oTier.m_nCount = 77;
    m_oTier.m_nIndex = 77;
    m_oTier.m_fValue = 77;
  }

  clsPrices m_oPrices;
  clsPriceRange m_oTier;
};

TEST_F(TierLookUp, BothEndsBelongToATierAndTheLowerTierWins) {
  // Without a hit, the fee is that of the last tier tried.
  const std::tuple<double, std::int16_t, double> aoRows[] = {
      {-1, 0, 30},       {0.999999, 0, 30}, {1, 1, 10},        {9.99, 1, 10},
      {9.990001, 2, 20}, {20, 2, 20},       {20.00001, 0, 30}, {30, 3, 30}};
  for (const auto& [fValue, nIndex, fFee] : aoRows) {
    EXPECT_EQ(m_oPrices.HitTestRanges("Fee", fValue, m_oTier, kShopNone), nIndex != 0);
    EXPECT_EQ(m_oTier.m_nIndex, nIndex) << fValue;
    EXPECT_EQ(m_oTier.m_fValue, Single(fFee)) << fValue;
  }
}

TEST_F(TierLookUp, CountsWithoutTiers) {
  EXPECT_FALSE(m_oPrices.HitTestRanges("None", 0, m_oTier, kShopNone));
  EXPECT_EQ(m_oTier.m_fValue, 77);                                       // no tier was tried
  EXPECT_TRUE(m_oPrices.HitTestRanges("Holes", 0, m_oTier, kShopNone));  // missing numbers are 0
  EXPECT_EQ(m_oTier.m_fValue, 8);
  for (const std::string_view sName : {"Absent", "Word", "Large", "Part"}) {
    EXPECT_THROW((void)m_oPrices.HitTestRanges(sName, 1, m_oTier, kShopNone), Failure) << sName;
  }
  EXPECT_THROW((void)m_oPrices.HitTestRanges("Fee", 1, m_oTier, kShop30Days), Failure);
  EXPECT_TRUE(m_oPrices.HitTestRanges("Fee", 5, m_oTier, kShopGoodTillCancelled));
  EXPECT_EQ(m_oTier.m_fValue, 7);
}

TEST_F(TierLookUp, ATableIsWholeWhateverTheOrderOfItsLines) {
  clsPrices oPrices;
  oPrices.LoadText("FEERangeValue2,2\nFeeRangeEnd2,-1\nfeeranges,2\nFeeRangeStart1,1\n");
  oPrices.LoadText("FeeRangeStart2,5\nFeeRangeValue1,1\nFeeRangeEnd1,4\n");
  for (const auto& [fValue, fFee] : {std::pair{1, 1}, {6, 2}}) {
    EXPECT_TRUE(oPrices.HitTestRanges("Fee", fValue, m_oTier, kShopNone));
    EXPECT_EQ(m_oTier.m_fValue, fFee);
  }
}

TEST_F(TierLookUp, ARangeOfATierThatIsMissingReadsAsZeros) {
  EXPECT_TRUE(m_oPrices.GetRange("Fee", 3, m_oTier, kShopNone));
  EXPECT_EQ(m_oTier.m_fStart, 30);
  EXPECT_EQ(m_oTier.m_fEnd, -1);
  EXPECT_FALSE(m_oPrices.GetRange("Fee", 4, m_oTier, kShopNone));
  EXPECT_EQ(m_oTier.m_nCount, 3);
  EXPECT_EQ(m_oTier.m_nIndex, 4);
  for (const Single& fPart : {m_oTier.m_fStart, m_oTier.m_fEnd, m_oTier.m_fValue}) {
    EXPECT_EQ(fPart, 0);
  }
  EXPECT_THROW((void)m_oPrices.GetRange("Word", 1, m_oTier, kShopNone), Failure);
}

}  // namespace
}  // namespace quillet
