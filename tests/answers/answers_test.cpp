// What the room of answers says of an auction, worked out by hand or by the same choice made in
// the auction's text.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "answers/Alternatives.h"
#include "answers/Breakdown.h"
#include "answers/Curve.h"
#include "answers/PriceFor.h"
#include "support/Auctions.h"
#include "support/ByRegion.h"
#include "support/Prices.h"

namespace quillet {
namespace {

void Read(std::string sText, clsCalculate& oAuction) {
  oAuction.Serialize(sText, false);
  oAuction.DoCalc();
}

std::string Replaced(std::string sText, const std::string& sFrom, const std::string& sTo) {
  return sText.replace(sText.find(sFrom), sFrom.size(), sTo);
}

/// A fixed price of 8.50 on one item pays 1.00 up to 9.99 and 3.00 from 10.00 on.
class ASteepTier : public ::testing::Test {
 protected:
  void SetUp() override {
    UseSchedule(Tiers("Opening", {{"0", "9.99", "1"}, {"10", "-1", "3"}}));
    oAuction.m_oAuctionType.m_bBuyItNowOnly = true;
    oAuction.m_oOutlay.m_fOutlay = 8.5;
    oAuction.m_oOutlay.m_lQuantity = 1;
  }
  clsCalculate oAuction;
};

TEST_F(ASteepTier, IsCrossedOnlyIfNoPriceBelowItMeetsTheGoal) {
  const struct {
    Goal oGoal;
    std::optional<Cents> nPrice;
  } aoCases[] = {
      {{}, 950},
      {{GoalKind::Profit, 0.25}, 975},
      {{GoalKind::Profit, 0.5}, 1200},
      {{GoalKind::Profit, -20}, 0},
      {{GoalKind::Profit, 1e7}, std::nullopt},
      {{GoalKind::PercentOfCost, 5}, 998},     // 0.475 of 9.50
      {{GoalKind::PercentOfCost, 6.1}, 1221},  // 0.58 of 9.50 is beyond the tier: 0.7015 of 11.50
      {{GoalKind::PercentOfPrice, 4}, 990},    // 0.396 of 9.90
      {{GoalKind::PercentOfPrice, 50}, 2300},
  };
  for (const auto& oCase : aoCases) {
    EXPECT_EQ(PriceFor(oAuction, oCase.oGoal), oCase.nPrice) << oCase.oGoal.fAmount;
  }
}

TEST_F(ASteepTier, StandsInTheCurveAsAJump) {
  const std::vector<CurvePoint> aoPoints = Curve(oAuction, 900, 1100);
  EXPECT_EQ(aoPoints.front().nPrice, 900);
  EXPECT_EQ(aoPoints.back().nPrice, 1100);
  int nJumps = 0;
  for (std::size_t i = 1; i < aoPoints.size(); ++i) {
    if (aoPoints[i].bJump) {
      ++nJumps;
      EXPECT_EQ(aoPoints[i - 1].nPrice, 999);
      EXPECT_NEAR(aoPoints[i - 1].fProfit, 0.49, 1e-5);
      EXPECT_NEAR(aoPoints[i].fProfit, -1.5, 1e-5);
    }
  }
  EXPECT_EQ(nJumps, 1);
}

TEST(BreakDown, AddsUpEvenWhenAFeeIsChargedThatTheSummaryLeavesOut) {
  UseShippedSchedule();
  for (const std::string sText :
       {"[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]320.5|99.99|0|880|3|True[OUTLAY]"
        "[FEATURES]308159|8[FEATURES][PAYPAL]True|2|3|True[PAYPAL]"
        "[POSTAGE]True|1.25|3|12.75|0|True|True|True|1.5|True[POSTAGE]",
        "[TYPE]002|False|False|3|0|0|0|True[TYPE][OUTLAY]900|1|2|1500|0|False[OUTLAY]"
        "[PAYPAL]False|0|1|False[PAYPAL][POSTAGE]False|0|0|0|0|False|False|False|0|False["
        "POSTAGE]"}) {
    clsCalculate oAuction;
    Read(sText, oAuction);
    const Breakdown oBreakdown = BreakDown(oAuction);
    double fSum = 0;
    for (const Part& oPart : oBreakdown.aoParts) {
      fSum += oPart.fAmount;
    }
    EXPECT_NEAR(fSum, oBreakdown.fWhole, 0.005);
    EXPECT_NEAR(oBreakdown.fPrice + oBreakdown.fPostage + oBreakdown.fPostageProfit,
                oBreakdown.fWhole, 0.005);
    EXPECT_NEAR(oBreakdown.fFees + oAuction.m_oOutlay.DoCalc(), oAuction.m_fSellCost, 0.005);
  }
}

const std::string kType = "[TYPE]000|True|False|3|0|0|0|False[TYPE]";
const std::string kRest =
    "[OUTLAY]42.5|9.99|0|149.95|1|False[OUTLAY][FEATURES]17|0[FEATURES]"
    "[PAYPAL]True|1|1|False[PAYPAL][POSTAGE]True|0|3|8.5|0|False|False|False|0|False[POSTAGE]";

/// Each name with the text of the auction in which the same choice has been made.
std::vector<std::pair<std::string, std::string>> Choices() {
  const std::string sHomePage = "[FEATURES]17|0";
  std::vector<std::pair<std::string, std::string>> asChoices = {
      {"As it is: fixed price", kType + kRest},
      {"Standard auction", Replaced(kType, "True", "False") + kRest},
      {"Shop inventory, 30 days", "[TYPE]000|False|True|0|0|0|0|False[TYPE]" + kRest},
      {"Without PayPal", kType + Replaced(kRest, "[PAYPAL]True", "[PAYPAL]False")},
      {"Without Home Page Featured", kType + Replaced(kRest, sHomePage, "[FEATURES]16|0")},
      {"Without Bold", kType + Replaced(kRest, sHomePage, "[FEATURES]1|0")},
      {"Unsold", kType + Replaced(kRest, "149.95|1", "149.95|0")},
  };
  for (const auto& [sPercent, sPrice] : std::vector<std::pair<std::string, std::string>>{
           {"5", "142.45"}, {"10", "134.96"}, {"15", "127.46"}, {"20", "119.96"}}) {
    asChoices.emplace_back("Offer of " + sPercent + " % less: " + ByRegion("£", "$") + sPrice,
                           kType + Replaced(kRest, "149.95", sPrice));
  }
  return asChoices;
}

TEST(Alternatives, AreThoseOnOfferWithTheFiguresOfTheSameChoice) {
  UseShippedSchedule();
  clsCalculate oAuction;
  Read(kType + kRest, oAuction);
  const std::vector<Alternative> aoFound = Alternatives(oAuction);
  const auto asChoices = Choices();
  EXPECT_EQ(aoFound.size(), asChoices.size());  // no shop of other durations has the home page
  for (const auto& [sName, sText] : asChoices) {
    SCOPED_TRACE(sName);
    clsCalculate oByHand;
    Read(sText, oByHand);
    const auto oFound = std::find_if(aoFound.begin(), aoFound.end(),
                                     [&](const Alternative& o) { return o.sName == sName; });
    ASSERT_NE(oFound, aoFound.end());
    EXPECT_EQ(oFound->fProfit, oByHand.m_fProfit);
    EXPECT_EQ(oFound->fDifference, Single(oByHand.m_fProfit - oAuction.m_fProfit));
    EXPECT_NEAR(oFound->fFees + oByHand.m_oOutlay.DoCalc(), oByHand.m_fSellCost, 0.005);
    clsCalculate oUsed;
    Read(kType + kRest, oUsed);
    oFound->oChange(oUsed);
    EXPECT_EQ(TextOf(oUsed), TextOf(oByHand));
    EXPECT_EQ(oUsed.IsDirty(), oFound->eKind != AlternativeKind::AsItIs);
  }
  EXPECT_FALSE(oAuction.IsDirty());
  EXPECT_EQ(TextOf(oAuction), kType + kRest);
}

TEST(Alternatives, KeepToTheKindAndTheRegionAndPutTheBestListingFirst) {
  UseShippedSchedule();
  const auto fnNames = [](const std::string& sType, const std::string& sRest) {
    clsCalculate oAuction;
    Read(sType + sRest, oAuction);
    std::vector<std::string> asNames;
    for (const Alternative& oOther : Alternatives(oAuction)) {
      asNames.push_back(oOther.sName);
    }
    return asNames;
  };
  const std::string sPlain = Replaced(kRest, "[FEATURES]17", "[FEATURES]0");
  EXPECT_THAT(
      fnNames("[TYPE]001|False|False|3|0|0|0|False[TYPE]", sPlain),
      ::testing::ElementsAre("As it is: motor auction", "Fixed price", "Without PayPal",
                             ::testing::_, ::testing::_, ::testing::_, ::testing::_, "Unsold"));
  const std::vector<std::string> asStandard =
      fnNames("[TYPE]000|False|False|3|0|0|0|False[TYPE]", sPlain);
  EXPECT_EQ(asStandard.size(), ByRegion<std::size_t>(11, 13));
  EXPECT_EQ(asStandard.front(),
            ByRegion("As it is: standard auction", "As it is: standard auction"));
}

}  // namespace
}  // namespace quillet
