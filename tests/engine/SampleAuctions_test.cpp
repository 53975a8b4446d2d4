// The sample auctions against the shipped fee schedules, fee by fee: docs/sample-auctions.md has
// their figures, worked out by hand.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "engine/clsCalculate.h"
#include "support/Log.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

/// What the program makes of an auction, as a row of the page's table.
std::string RowOf(const std::string& sName, const clsCalculate& oAuction) {
  std::string sRow = "| `" + sName + "` |";
  for (const Single& fFigure :
       {oAuction.m_fListingCost, oAuction.m_oSellingFeatures.LastFee(), oAuction.m_fReserveCost,
        oAuction.m_fFinalValueFee, oAuction.m_fPayPayCost, oAuction.m_fPostageCost,
        oAuction.m_fSellCost, oAuction.m_fProfit}) {
    sRow += " " + FormatNumber(fFigure, "0.00") + " |";
  }
  const double fPercent = oAuction.m_fProfit / oAuction.m_fSellCost * 100;
  return sRow + (fPercent > 0 ? " " + std::to_string(static_cast<int>(fPercent)) : "") + " |\n";
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

  void ExpectAsSavedAndOnPage(const std::filesystem::path& oFile, const std::string& sPage) {
    const std::string sName = oFile.stem().string();
    SCOPED_TRACE(sName);
    if (std::get<Page>(GetParam()).bToday) {
      UseScheduleOf(sName);
    }
    clsCalculate oAuction;
    std::string sText = ReadTestFile(oFile.string());
    oHost.sDecimalSeparator = std::get<const char*>(GetParam());
    oAuction.Serialize(sText, false);
    const bool bOfThisRegion = sName.starts_with("uk-") == (RegionCode() == 0);
    if (bOfThisRegion) {
      oAuction.DoCalc();
    }
    oHost.sDecimalSeparator = ".";
    std::string sSaved;
    oAuction.Serialize(sSaved, true);
    EXPECT_EQ(sSaved + "\n", sText);
    if (bOfThisRegion) {
      const std::string sRow = RowOf(sName, oAuction);
      EXPECT_NE(sPage.find(sRow), std::string::npos) << "not on the page: " << sRow;
    }
  }

  ScopedHost oHost;
};
INSTANTIATE_TEST_SUITE_P(DecimalSeparator, SampleAuctions,
                         ::testing::Combine(::testing::ValuesIn(kPages),
                                            ::testing::Values(".", ",", "\u066b")));

TEST_P(SampleAuctions, StandAsTheyAreSavedAndGiveTheFiguresOfTheirPageWhereverTheUserIs) {
  const Page& oPage = std::get<Page>(GetParam());
  oHost.sDecimalSeparator = std::get<const char*>(GetParam());
  UseShippedSchedule();
  const std::filesystem::path oSource(QUILLET_SOURCE_DIR);
  const std::string sPage = ReadTestFile((oSource / oPage.sName).string());
  int nSamples = 0;
  for (const auto& oEntry : std::filesystem::directory_iterator(oSource / oPage.sFolder)) {
    if (oEntry.is_regular_file()) {
      ++nSamples;
      ExpectAsSavedAndOnPage(oEntry.path(), sPage);
    }
  }
  EXPECT_EQ(nSamples, oPage.bToday ? 8 : 17);
}

// A new auction reads the features of thirty days until its type is set; it must not read others
// than an auction without a shop.
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
