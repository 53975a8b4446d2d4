// The sample auctions against the shipped fee schedules, fee by fee, as docs/sample-auctions.md
// shows them. The arithmetic is done by hand; that page has it at more length.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "engine/clsCalculate.h"
#include "support/Prices.h"

namespace quillet {
namespace {

struct Sample {
  const char* sName;
  // Exact, as a Single is written.
  const char* sInsertion;
  const char* sFeatures;
  const char* sReserve;
  const char* sFinalValue;
  const char* sPayPal;
  // Sums, to the cent.
  const char* sPostage;
  const char* sSellingCost;
  const char* sProfit;
  const char* sPercent;  ///< profit by selling cost, cut; empty for a loss
};

const Sample kSamples[] = {
    // Features 1 + 0.35 + 2 x 0.15. Final 25 x 5.25 % + 124 x 3.25 % = 1.3125 + 4.03.
    // PayPal 157.50 x 2.9 % + 0.30 = 4.8675. Cost 40 + 0.40 + 1.65 + 5.3425 + 4.87 = 52.2625.
    {"used-camera", "0.4", "1.65", "0", "5.3425", "4.87", "8.50", "52.26", "96.74", "185"},
    // Ninety days: 0.05 + 2 x 0.05; features 3 x 0.35 + 3 x 9.95. Final 25 x 10 % + 75 x 7 % +
    // 200 x 5 %. PayPal 325 x 2.5 % + 0.30 = 8.425, the half down. Cost 180 + 57.22.
    {"guitar-amp-shop", "0.15", "30.9", "0", "17.75", "8.42", "25.00", "237.22", "62.78", "26"},
    // 40 + 50; 19.95 + 4 + 0.35 + pack of twelve 1.50; quantity 1, so no fee for the reserve.
    {"family-car", "90", "25.8", "0", "0", "0", "0.00", "5315.80", "1184.20", "22"},
    // Thirty-day auction 50, binding 35; 1 + 0.35 + 3. Cost 900 + 85 + 4.35.
    {"desert-land", "50", "4.35", "0", "35", "0", "0.00", "989.35", "1410.65", "142"},
    // 2600 x 1 %; 1 + 0.35 + pack of six 1. PayPal 2780 x 2.9 % + 0.30. Cost 1450 + 46 + 83.27.
    {"lathe", "20", "2.35", "0", "26", "80.92", "180.00", "1579.27", "1020.73", "64"},
    // Quantity 0: the reserve costs 5, outlay and income are 0.
    {"lathe-unsold", "20", "2.35", "5", "0", "0", "0.00", "27.35", "-27.35", ""},
    // Opening 3 x 12 = 36. Final 18.50 x 5.25 % x 3. PayPal (55.50 + 3 x 6.50 + 3 x 1) x 2.9 % +
    // 3 x 0.30 = 2.262 + 0.90. Cost 15 + 1.20 + 0.35 + 2.91375 + 3.16 = 22.62375.
    {"three-lamps", "1.2", "0.35", "0", "2.91375", "3.16", "19.50", "22.62", "35.88", "158"},
    // Parts: insertion as usual, no final value fee. 0.35 + Buy It Now 0.25 + 0.10.
    // PayPal 71.80 x 2.9 % + 0.30 = 2.3822. Cost 22 + 0.40 + 0.70 + 2.38.
    {"carburetor", "0.4", "0.7", "0", "0", "2.38", "7.80", "25.48", "38.52", "151"},
    // Ninety-day advert 300, no final value fee; 19.95 + 0.35 + 1.50. Cost 162000 + 321.80.
    {"house-advert", "300", "21.8", "0", "0", "0", "0.00", "162321.80", "22678.20", "13"},
    // Opening 20 x 4.95 = 99. Final 4.95 x 5.25 % x 20. PayPal (99 + 20 x 1.35 + 20 x 0.40) x
    // 2.9 % + 20 x 0.30 = 3.886 + 6. Cost 22 + 2.40 + 0.35 + 5.1975 + 9.89 = 39.8375.
    {"phone-cases", "2.4", "0.35", "0", "5.1975", "9.89", "27.00", "39.84", "67.16", "168"},
    // Opening is the reserve of 400. 19.95 + 5 + 0.50 + 1 + 0.35 + 0.25 + 0.10 + 0.40 + 3 + pack
    // 1.50 = 32.05, doubled 64.10, then home page 39.95 and schedule 0.10. Final 1.3125 + 855 x
    // 3.25 %. PayPal 892 x 2.9 % + 0.30 = 26.168. Cost 320 + 3.60 + 104.15 + 29.10 + 26.17.
    {"vintage-watch", "3.6", "104.15", "0", "29.1", "26.17", "12.00", "483.02", "396.98", "82"},
    // 9.50 x 5.25 %. PayPal 15.70 x 2.9 % + 0.30 = 0.7553. Cost 16.80875; 9.50 - that.
    {"old-toaster", "0.2", "0.35", "0", "0.49875", "0.76", "6.20", "16.81", "-7.31", ""},
    // 3.50 x 5.25 %. Fifth band: 5.80 x 5 % + 0.05. Cost 0.50 + 0.20 + 0.18375 + 0.34.
    {"paperback", "0.2", "0", "0", "0.18375", "0.34", "2.30", "1.22", "2.28", "186"},
    // 3 + 3; 1 + 0.35 + 4 x 0.15. PayPal 274 x 2.9 % + 0.30 = 8.246. Cost 140 + 6 + 1.95 + 8.25.
    {"pocket-bike", "6", "1.95", "0", "0", "8.25", "45.00", "156.20", "72.80", "46"},
    // 1.6 kg: 4.74 + 2 x 0.85, recorded 0.68. 24 x 5.25 %. PayPal 31.12 x 3.4 % + 0.20 = 1.25808.
    {"uk-tea-set", "0.2", "0.5", "0", "1.26", "1.26", "7.12", "9.22", "14.78", "160"},
    // 30 x 1.175 = 35.25; 0.75 + 3 x 0.12. Final 29.99 x 5.25 % + 55.01 x 3.25 %. Postage 10.45 +
    // 1.00. PayPal (85 + 11.45 + 1.50) x 3.4 % + 0.20 = 3.5303. Cost 43.4523, profit 43.0477.
    {"uk-record-player", "0.2", "1.11", "0", "3.3623", "3.53", "11.45", "43.45", "43.05", "99"},
    // 2400 x 1 % of the whole price; 0.15 + pack 0.90. Cost 1650 + 6 + 24 + 1.05.
    {"uk-van", "6", "1.05", "0", "24", "0", "0.00", "1681.05", "718.95", "42"},
};

std::string TextOf(const std::string& sFile) {
  std::ifstream oFile(std::string(QUILLET_SOURCE_DIR) + "/" + sFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(oFile), {}};
}

std::string Cents(Single fValue) {
  return FormatNumber(fValue, "0.00");
}

TEST(SampleAuctions, StandAsTheyAreSavedAndGiveTheFiguresWorkedOutByHand) {
  UseShippedSchedule();
  for (const Sample& oSample : kSamples) {
    SCOPED_TRACE(oSample.sName);
    clsCalculate oAuction;
    std::string sText = TextOf("data/samples/" + std::string(oSample.sName) + ".qlt");
    oAuction.Serialize(sText, false);
    std::string sSaved;
    oAuction.Serialize(sSaved, true);
    EXPECT_EQ(sSaved + "\n", sText);
    if (std::string_view(oSample.sName).starts_with("uk-") != (RegionCode() == 0)) {
      continue;
    }
    oAuction.DoCalc();
    const Single fFeatures =
        oAuction.m_oSellingFeatures.DoCalc(&oAuction.m_oAuctionType, &oAuction.m_oOutlay);

    EXPECT_EQ(SingleText(oAuction.m_fListingCost), oSample.sInsertion);
    EXPECT_EQ(SingleText(fFeatures), oSample.sFeatures);
    EXPECT_EQ(SingleText(oAuction.m_fReserveCost), oSample.sReserve);
    EXPECT_EQ(SingleText(oAuction.m_fFinalValueFee), oSample.sFinalValue);
    EXPECT_EQ(SingleText(oAuction.m_fPayPayCost), oSample.sPayPal);
    EXPECT_EQ(Cents(oAuction.m_fPostageCost), oSample.sPostage);
    EXPECT_EQ(Cents(oAuction.m_fSellCost), oSample.sSellingCost);
    EXPECT_EQ(Cents(oAuction.m_fProfit), oSample.sProfit);
    const double fPercent = oAuction.m_fProfit / oAuction.m_fSellCost * 100;
    EXPECT_EQ(fPercent > 0 ? std::to_string(static_cast<int>(fPercent)) : "", oSample.sPercent);
  }
}

TEST(SampleAuctions, AreAllOnTheirPageAndInTheirFolder) {
  const std::string sPage = TextOf("docs/sample-auctions.md");
  std::set<std::string> asNames;
  for (const Sample& oSample : kSamples) {
    EXPECT_NE(sPage.find("| `" + std::string(oSample.sName) + "` |"), std::string::npos);
    asNames.insert(std::string(oSample.sName) + ".qlt");
  }
  std::set<std::string> asFiles;
  const std::string sFolder = std::string(QUILLET_SOURCE_DIR) + "/data/samples";
  for (const auto& oEntry : std::filesystem::directory_iterator(sFolder)) {
    asFiles.insert(oEntry.path().filename().string());
  }
  EXPECT_EQ(asFiles, asNames);
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

bool CanAlwaysBeTicked(std::string_view sKey) {
  const auto fnHas = [&](std::string_view sName) {
    return sKey.find(sName) != std::string_view::npos;
  };
  return fnHas("Highlight") || fnHas("Border") || fnHas("Bold") || fnHas("SlideShow") ||
         fnHas("Supersize") || fnHas("10Day") || fnHas("ExtraImage") || fnHas("RangeValue") ||
         (fnHas("Gallery") && !fnHas("FeaturedGallery"));
}

// Where a box can't be greyed, a price below 0 would be taken off the fee.
TEST(ShippedSchedule, PricesNothingBelowZeroThatCanAlwaysBeTicked) {
  UseShippedSchedule();
  const PriceTable& oTable = Prices().Table();
  for (std::size_t i = 0; i < oTable.Size(); ++i) {
    const std::string_view sKey = oTable.KeyAt(i);
    EXPECT_FALSE(CanAlwaysBeTicked(sKey) && oTable.Find(sKey)->starts_with('-')) << sKey;
  }
}

}  // namespace
}  // namespace quillet
