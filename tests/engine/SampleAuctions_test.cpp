// The sample auctions under the shipped fee schedules, fee by fee, against the figures worked out
// by hand in docs/sample-auctions.md.
#include <string>

#include <gtest/gtest.h>

#include "base/FormatNumber.h"
#include "engine/profitPercent.h"
#include "support/Auctions.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

/// The program's figures for an auction, as a row of the page's table.
std::string RowOf(const std::string& sName, const clsCalculate& oAuction) {
  std::string sRow = "| `" + sName + "` |";
  for (const Single& fFigure :
       {oAuction.m_fListingCost, oAuction.m_oSellingFeatures.LastFee(), oAuction.m_fReserveCost,
        oAuction.m_fFinalValueFee, oAuction.m_fPayPayCost, oAuction.m_fPostageCost,
        oAuction.m_fSellCost, oAuction.m_fProfit}) {
    sRow += " " + FormatNumber(fFigure, "0.00") + " |";
  }
  const auto sPercent = ProfitPercentText(oAuction);
  return sRow + (sPercent ? " " + *sPercent : "") + " |\n";
}

struct Page {
  const char* sName;
  const char* sFolder;
  bool bToday;
};

constexpr Page kPages[] = {{"docs/sample-auctions.md", "data/samples", false},
                           {"docs/sample-auctions-today.md", "data/samples/today", true}};

void UseScheduleOf(const std::string& sSample) {
  UseShippedSchedule(sSample.starts_with("uk-private-") ? "UpdateUK_2026-10-private.dat"
                     : sSample.starts_with("uk-")       ? "UpdateUK_2026-10.dat"
                                                        : "UpdateUS_2026-10.dat");
}

class SampleAuctions : public ::testing::TestWithParam<std::tuple<Page, const char*>> {
 protected:
  ~SampleAuctions() override { UseSchedule(""); }
};
INSTANTIATE_TEST_SUITE_P(DecimalSeparator, SampleAuctions,
                         ::testing::Combine(::testing::ValuesIn(kPages),
                                            ::testing::Values(".", ",", "\u066b")));

TEST_P(SampleAuctions, StandAsTheyAreSavedAndGiveTheFiguresOfTheirPageWhereverTheUserIs) {
  const auto& [oPage, sSeparator] = GetParam();
  ScopedHost oHost;
  UseShippedSchedule();
  const std::string sPage = ReadTestFile(std::string(QUILLET_SOURCE_DIR "/") + oPage.sName);
  for (const Sample& oSample : Samples(oPage.sFolder)) {
    SCOPED_TRACE(oSample.sName);
    if (oPage.bToday) {
      UseScheduleOf(oSample.sName);
    }
    clsCalculate oAuction;
    std::string sText = oSample.sText;
    oHost.sDecimalSeparator = sSeparator;
    oAuction.Serialize(sText, false);
    if (oSample.bOfThisRegion) {
      oAuction.DoCalc();
    }
    oHost.sDecimalSeparator = ".";
    EXPECT_EQ(TextOf(oAuction), oSample.sText);
    const std::string sRow = RowOf(oSample.sName, oAuction);
    EXPECT_TRUE(!oSample.bOfThisRegion || sPage.find(sRow) != std::string::npos) << sRow;
  }
  EXPECT_EQ(Samples(oPage.sFolder).size(), oPage.bToday ? 8U : 17U);
}

// Until its type is set, a new auction reads the feature prices for thirty days. They must be the
// same as those without a shop.
TEST(ShippedSchedule, PricesFeaturesOfThirtyDaysAsWithoutAShop) {
  UseShippedSchedule();
  const PriceTable& oTable = Prices().Table();
  int nCompared = 0;
  for (std::size_t i = 0; i < oTable.Size(); ++i) {
    const std::string sKey(oTable.KeyAt(i));
    if (const auto sOfThirtyDays = oTable.Find(sKey + "30"); sOfThirtyDays) {
      EXPECT_EQ(*sOfThirtyDays, *oTable.Find(sKey)) << sKey;
      ++nCompared;
    }
  }
  EXPECT_GT(nCompared, 22);
}

}  // namespace
}  // namespace quillet
