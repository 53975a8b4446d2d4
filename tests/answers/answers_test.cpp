// Answers about an auction, against figures worked out by hand or the same change made to it.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "answers/Advertising.h"
#include "answers/Alternatives.h"
#include "answers/Breakdown.h"
#include "answers/Curve.h"
#include "answers/PriceFor.h"
#include "base/FormatNumber.h"
#include "prices/money.h"
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

/// One item that cost 8.50, at a fixed price: the fee is 1.00 up to 9.99 and 3.00 from 10.00.
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

/// The names of all alternatives but offers, each tried: using it gives its figures.
std::vector<std::string> NamesOfTried(clsCalculate& oAuction) {
  std::vector<std::string> asNames;
  for (const Alternative& oFound : Alternatives(oAuction)) {
    SCOPED_TRACE(oFound.sName);
    clsCalculate oUsed;
    Read(TextOf(oAuction), oUsed);
    oFound.oChange(oUsed);
    EXPECT_EQ(oUsed.IsDirty(), oFound.eKind != AlternativeKind::AsItIs);
    oUsed.DoCalc();
    EXPECT_EQ(oFound.fProfit, oUsed.m_fProfit);
    EXPECT_EQ(oFound.fDifference, Single(oUsed.m_fProfit - oAuction.m_fProfit));
    EXPECT_NEAR(oFound.fFees + oUsed.m_oOutlay.DoCalc(), oUsed.m_fSellCost, 0.005);
    if (oFound.eKind != AlternativeKind::Offer) {
      asNames.push_back(oFound.sName);
    } else {
      EXPECT_TRUE(oFound.sName.ends_with(FormatMoney(oUsed.m_oOutlay.m_fEstimatedEndPrice)));
    }
  }
  return asNames;
}

TEST(Alternatives, AreThoseOnOfferWithTheFiguresThatTheyGiveWhenTheyAreUsed) {
  UseShippedSchedule();
  clsCalculate oAuction;
  Read(kType + kRest, oAuction);
  EXPECT_THAT(
      NamesOfTried(oAuction),
      ::testing::UnorderedElementsAre("As it is: fixed price", "Standard auction", "Without PayPal",
                                      "Without Home Page Featured", "Without Bold", "Unsold"));
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
  const std::string sLess = ByRegion<std::string>(" % less: £", " % less: $");
  EXPECT_THAT(fnNames("[TYPE]001|False|False|3|0|0|0|False[TYPE]", sPlain),
              ::testing::ElementsAre(
                  "As it is: motor auction", "Fixed price", "Without PayPal",
                  "Offer of 5" + sLess + "142.45", "Offer of 10" + sLess + "134.96",
                  "Offer of 15" + sLess + "127.46", "Offer of 20" + sLess + "119.96", "Unsold"));
  const std::vector<std::string> asStandard =
      fnNames("[TYPE]000|False|False|3|0|0|0|False[TYPE]", sPlain);
  EXPECT_EQ(asStandard.size(), ByRegion<std::size_t>(11, 13));
  EXPECT_EQ(asStandard.front(), "As it is: standard auction");
}

/// A fixed-price sale of books in the United States, or of clothes in the United Kingdom.
class ASaleOfToday : public ::testing::Test {
 protected:
  ASaleOfToday() {
    UseShippedSchedule(ByRegion("UpdateUK_2026-10.dat", "UpdateUS_2026-10.dat"));
    const std::string sFees = "[FEES]2|6|1.5|2|False|True[FEES]";
    const std::string sPlain = Replaced(kRest, "[FEATURES]17", "[FEATURES]16");
    Read(kType + Replaced(sPlain, "[PAYPAL]True", "[PAYPAL]False") + sFees, oAuction);
  }
  ~ASaleOfToday() override { UseSchedule(""); }

  clsCalculate oAuction;
};

TEST_F(ASaleOfToday, HasThePartsOfItsFee) {
  const Breakdown oBreakdown = BreakDown(oAuction);
  std::string sParts;
  double fSum = 0;
  for (const Part& oPart : oBreakdown.aoParts) {
    const bool bOfSale = oPart.eKind >= PartKind::Category && oPart.eKind <= PartKind::TaxOnFees;
    sParts += bOfSale ? oPart.sName + (" " + FormatNumber(oPart.fAmount, "0.00 ")) : "";
    fSum += oPart.fAmount;
    EXPECT_NE(oPart.eKind, PartKind::FinalValue);
  }
  // UK: 158.45, and VAT on the fees. US: 158.45 with 6 % tax is 167.957.
  EXPECT_EQ(sParts, ByRegion("Category 18.86 Order 0.40 Regulatory 0.55 Advertising 2.38 "
                             "Surcharges 2.85 Tax on fees 5.01 ",
                             "Category 25.70 Order 0.40 Regulatory 0.00 Advertising 2.52 "
                             "Surcharges 10.07 Tax on fees 0.00 "));
  EXPECT_NEAR(fSum, oBreakdown.fWhole, 0.005);
  EXPECT_NEAR(oBreakdown.fFees + oAuction.m_oOutlay.DoCalc(), oAuction.m_fSellCost, 0.005);
}

TEST_F(ASaleOfToday, MayBeAdvertisedAndHasOneShopAndNoPayPal) {
  EXPECT_THAT(NamesOfTried(oAuction),
              ::testing::UnorderedElementsAre(
                  "As it is: fixed price", "Standard auction", "Shop inventory", "Without Bold",
                  "Without advertising", "With advertising of 2 %", "With advertising of 5 %",
                  "With advertising of 10 %", "Unsold"));
}

TEST_F(ASaleOfToday, TellsTheHighestRateOfAdvertising) {
  const std::int32_t nTenths = HighestAdvertising(oAuction).value();
  for (const auto& [nRate, bBreaksEven] : {std::pair{nTenths, true}, {nTenths + 1, false}}) {
    AdvertiseAt(nRate)(oAuction);
    oAuction.DoCalc();
    EXPECT_EQ(oAuction.m_fProfit >= 0, bBreaksEven) << nRate;
  }
  oAuction.m_oOutlay.m_fOutlay = 1;
  oAuction.m_oSaleFees.m_oInputs.lExtras = 0;
  EXPECT_LT(HighestAdvertising(oAuction).value(), 1000);
  oAuction.m_oOutlay.m_fOutlay = 200;
  EXPECT_EQ(HighestAdvertising(oAuction), std::nullopt);
  UseShippedSchedule();
  EXPECT_EQ(HighestAdvertising(oAuction), std::nullopt);
}

}  // namespace
}  // namespace quillet
