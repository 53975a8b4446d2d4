// The text of an update file: loading and checking it, tiers by their links and by their keys, and
// auctions of every kind against it.
#include <array>
#include <memory>
#include <string>

#include "prices/checkSchedule.h"
#include "base/failure.h"
#include "prices/clsPrices.h"
#include "prices/money.h"
#include "support.h"

namespace quillet {
namespace {

/// Ends a text with a key that stands twice: the load stops there, before tiers get their links.
constexpr std::string_view kUnlinked = "\n\x01,\x01\n\x01,\x01\n";

bool SameTier(const clsPriceRange& oLeft, const clsPriceRange& oRight) {
  return oLeft.m_nCount == oRight.m_nCount && oLeft.m_nIndex == oRight.m_nIndex &&
         oLeft.m_fStart == oRight.m_fStart && oLeft.m_fEnd == oRight.m_fEnd &&
         oLeft.m_fValue == oRight.m_fValue;
}

/// The tier, or a count of -1 where asking for it is a Failure.
template <typename Ask>
clsPriceRange Asked(Ask&& fnAsk) {
  clsPriceRange oTier;
  try {
    fnAsk(oTier);
  } catch (const Failure&) {
    oTier.m_nCount = -1;
  }
  return oTier;
}

/// What a hit test is to give: the tiers one by one, each read whole.
clsPriceRange HitOneByOne(const clsPrices& oPrices, const std::string& sTable, Single fValue) {
  clsPriceRange oTier;
  (void)oPrices.GetRange(sTable, 1, oTier, kShopNone);
  const int nCount = oTier.m_nCount;
  for (int i = 1; i <= nCount; ++i) {
    (void)oPrices.GetRange(sTable, static_cast<std::int16_t>(i), oTier, kShopNone);
    if (fValue >= oTier.m_fStart && (fValue <= oTier.m_fEnd || oTier.m_fEnd == -1.0)) {
      return oTier;
    }
  }
  if (nCount < 1) {
    oTier = {};
    oTier.m_nCount = static_cast<std::int16_t>(nCount);
  }
  oTier.m_nIndex = 0;
  return oTier;
}

void CheckTable(const clsPrices& oLinked, const clsPrices& oUnlinked, const std::string& sTable) {
  for (const int nTier : {-1, 0, 1, 2, 3, 9, 10, 32767}) {
    const auto fnTier = [&](const clsPrices& oPrices) {
      return Asked([&](clsPriceRange& oTier) {
        (void)oPrices.GetRange(sTable, static_cast<std::int16_t>(nTier), oTier, kShopNone);
      });
    };
    Require(SameTier(fnTier(oLinked), fnTier(oUnlinked)));
  }
  for (const double fValue : {-1.0, 0.0, 0.005, 1.0, 9.99, 25.0, 1e30}) {
    const auto fnHit = [&](const clsPrices& oPrices) {
      return Asked([&](clsPriceRange& oTier) {
        const bool bHit = oPrices.HitTestRanges(sTable, fValue, oTier, kShopNone);
        Require(bHit == (oTier.m_nIndex != 0));
      });
    };
    Require(SameTier(fnHit(oLinked), fnHit(oUnlinked)));
    Require(SameTier(fnHit(oLinked), Asked([&](clsPriceRange& oTier) {
                       oTier = HitOneByOne(oLinked, sTable, fValue);
                     })));
  }
}

void CheckTables(const clsPrices& oLinked, const clsPrices& oUnlinked) {
  constexpr std::size_t kMostTables = 20;
  constexpr std::size_t kLongestKey = 100;  // longer ones are no key of any table
  std::size_t nTables = 0;
  for (std::size_t i = 0; i < oLinked.Table().Size() && nTables < kMostTables; ++i) {
    const std::string sKey(oLinked.Table().KeyAt(i));
    if (sKey.ends_with("Ranges") && sKey.size() <= kLongestKey) {
      CheckTable(oLinked, oUnlinked, sKey.substr(0, sKey.size() - 6));
      ++nTables;
    }
  }
}

/// The kind of listing and the quantity; everything that can be chosen is.
struct Listing {
  const char* sType;
  const char* sQuantity;
};

constexpr std::array<Listing, 7> kListings = {{
    {"000|False|False|3|0|0|0|False", "1"},
    {"000|True|True|0|0|0|0|True", "3"},
    {"000|False|False|3|0|0|0|False", "0"},
    {"001|False|False|3|3|0|0|False", "1"},
    {"001|True|False|2|5|0|0|True", "0"},
    {"002|False|False|3|0|1|1|True", "1"},
    {"003|False|False|5|0|0|0|False", "0"},
}};

void CalculateAll() {
  for (const Listing& oListing : kListings) {
    std::string sText = std::string("[TYPE]") + oListing.sType + "[TYPE][OUTLAY]10|1|250|60|" +
                        oListing.sQuantity +
                        "|True[OUTLAY][FEATURES]2097151|7[FEATURES][PAYPAL]True|2|1|True[PAYPAL]"
                        "[POSTAGE]True|0|0|1|0|True|True|True|1|True[POSTAGE]";
    clsCalculate oAuction;
    oAuction.Serialize(sText, false);
    oAuction.m_oPostage.m_fWeight = 1.6;
    CalculateQuietly(oAuction);
    (void)FormatMoney(oAuction.m_fProfit);
  }
}

}  // namespace
}  // namespace quillet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  const std::string sText(TakeSettings(pData, nSize));
  auto oPrices = std::make_unique<clsPrices>();
  clsPrices oUnlinked;
  bool bLoaded = true;
  try {
    oPrices->LoadText(sText);
  } catch (const Failure&) {
    bLoaded = false;
  }
  IgnoreFailure([&] { oUnlinked.LoadText(sText + std::string(kUnlinked)); });
  if (bLoaded) {
    CheckTables(*oPrices, oUnlinked);
  }
  Require(bLoaded || !CheckSchedule(sText).empty());
  UsePrices(std::move(oPrices));
  CalculateAll();
  return 0;
}
