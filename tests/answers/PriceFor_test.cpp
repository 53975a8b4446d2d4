// The lowest price for a goal, against a search that tries every cent.
#include "answers/PriceFor.h"

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "answers/Trial.h"
#include "support/Auctions.h"
#include "support/Prices.h"

namespace quillet {
namespace {

constexpr Cents kTried = 200'000;

const std::vector<Goal> kGoals = {
    {}, {GoalKind::Profit, 7.5}, {GoalKind::PercentOfCost, 25}, {GoalKind::PercentOfPrice, 15}};

/// The lowest price up to 2,000.00 for each goal, tried cent by cent; kTried + 1 if none meets it.
std::vector<Cents> LowestByTryingAll(const clsCalculate& oAuction) {
  std::vector<Cents> anLowest(kGoals.size(), kTried + 1);
  Trial oTrial(oAuction);
  std::size_t nOpen = kGoals.size();
  for (Cents nPrice = 0; nPrice <= kTried && nOpen > 0; ++nPrice) {
    const clsCalculate& oTried = oTrial.AtPrice(nPrice);
    for (std::size_t i = 0; i < kGoals.size(); ++i) {
      if (anLowest[i] > kTried && kGoals[i].IsMet(oTried)) {
        anLowest[i] = nPrice;
        --nOpen;
      }
    }
  }
  return anLowest;
}

void ExpectTheLowest(clsCalculate& oAuction) {
  SCOPED_TRACE(TextOf(oAuction));
  const std::vector<Cents> anLowest = LowestByTryingAll(oAuction);
  for (std::size_t i = 0; i < kGoals.size(); ++i) {
    const Cents nFound = PriceFor(oAuction, kGoals[i]).value_or(kHighestPrice + 1);
    EXPECT_EQ(std::min(nFound, kTried + 1), anLowest[i]) << "goal " << i;
  }
}

/// A plausible random auction, mostly cheap so that its lowest price is found soon.
void MakeUp(clsCalculate& oAuction, std::mt19937& oRandom) {
  const auto fnUpTo = [&](std::uint32_t nLimit) {
    return static_cast<std::int32_t>(oRandom() % (nLimit + 1));
  };
  const auto fnFlag = [&] { return fnUpTo(1) == 0 ? "|True" : "|False"; };
  const auto fnAmount = [&] { return PriceOf(fnUpTo(fnUpTo(3) == 0 ? 2'500 : 250)); };
  std::ostringstream oText;
  oText << "[TYPE]" << (fnUpTo(5) == 0 ? fnUpTo(3) : 0) << fnFlag() << fnFlag() << '|' << fnUpTo(5)
        << '|' << fnUpTo(5) << '|' << fnUpTo(1) << "|0" << fnFlag() << "[TYPE][OUTLAY]"
        << fnAmount() << '|' << fnAmount() << '|' << (fnUpTo(2) == 0 ? fnAmount() : Single(0))
        << "|0|" << 1 + fnUpTo(1) * fnUpTo(6) << "|False[OUTLAY][FEATURES]"
        << (2U << fnUpTo(19) | 2U << fnUpTo(19)) << '|' << fnUpTo(12) << "[FEATURES][PAYPAL]"
        << (fnUpTo(3) == 0 ? "False|" : "True|") << fnUpTo(2) << '|' << 1 + fnUpTo(4) << fnFlag()
        << "[PAYPAL][POSTAGE]" << (fnUpTo(1) == 0 ? "True" : "False") << "|0|3|"
        << PriceOf(fnUpTo(2'000)) << "|0|False|False" << fnFlag() << '|' << PriceOf(fnUpTo(300))
        << fnFlag() << "[POSTAGE]";
  std::string sText = oText.str();
  oAuction.Serialize(sText, false);
  oAuction.m_oSaleFees.m_oInputs = {.nCategory = 1 + fnUpTo(17),
                                    .fBuyerTax = fnUpTo(1) * fnUpTo(10'000) / 1000.0,
                                    .fAdvertising = fnUpTo(3) == 0 ? fnUpTo(100) / 10.0 : 0,
                                    .lExtras = fnUpTo(2) == 0 ? fnUpTo(15) : 0,
                                    .bFreeListing = fnUpTo(1) == 0,
                                    .bTaxIsCost = fnUpTo(1) == 0};
}

void ExpectTheLowestOfRandomAuctions(int nAuctions) {
  std::mt19937 oRandom(20070130);
  for (int i = 0; i < nAuctions; ++i) {
    clsCalculate oAuction;
    MakeUp(oAuction, oRandom);
    ExpectTheLowest(oAuction);
  }
}

TEST(PriceFor, IsTheLowestThatTryingEveryCentFinds) {
  UseShippedSchedule();
  for (std::string sText : SampleTexts()) {
    clsCalculate oAuction;
    oAuction.Serialize(sText, false);
    ExpectTheLowest(oAuction);
  }
  ExpectTheLowestOfRandomAuctions(150);
}

TEST(PriceFor, IsSoWithTodaysFeesToo) {
  UseShippedSchedule(RegionCode() == 1 ? "UpdateUS_2026-10.dat" : "UpdateUK_2026-10.dat");
  ExpectTheLowestOfRandomAuctions(100);
  // Tiers near the prices tried, on the whole amount and on its parts, with rates that also rise.
  UseSchedule(
      "FeeModel,2\nFinalBase,3\nFeeTax,17.5\nAlwaysPercent,0.35\nExtraPercentCount,1\n"
      "ExtraPercent1Value,1.65\nInsuranceBandValue1,0\nCurrencyFormat,0.00\n"
      "CategoryCount,3\nCategory1Tiers,A\nCategory1Whole,True\nCategory1FreeFrom,9.5\n"
      "Category2Tiers,A\nCategory3Tiers,A\nCategory3Whole,1\nCategory3ByPrice,1\n"
      "FeaturePicturePackRanges,0\nReserveRanges,0\nBusinessRateBand1Value,1\n"
      "BusinessRateBand2Value,1\nBusinessRateBand3Value,1\nBusinessRateBand4Value,1\n"
      "BusinessRateBand5Value,1\nPersonalRatePounds%,3\n" +
      Tiers("BusinessRatePounds%", {{"1", "1", "2.9"}}) +
      Tiers("BusinessRatePoundsFixed", {{"1", "1", "0.3"}}) +
      Tiers("A", {{"0", "5", "20"}, {"5", "12.345", "3"}, {"12.345", "-1", "11.9"}}) +
      Tiers("OrderFee", {{"0", "10", "0.3"}, {"10", "-1", "1.4"}}) +
      Tiers("Opening", {{"0", "-1", "0.35"}}) + Tiers("ShopOpening", {{"0", "-1", "0.1"}}));
  ExpectTheLowestOfRandomAuctions(100);
  UseSchedule("");
}

}  // namespace
}  // namespace quillet
