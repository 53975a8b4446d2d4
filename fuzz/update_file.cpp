// The text of an update file: its tiers are the same by their links and by their keys.
#include <string>

#include "base/failure.h"
#include "prices/checkSchedule.h"
#include "prices/clsPrices.h"
#include "support.h"

namespace quillet {
namespace {

/// Ends a text with a key that occurs twice: the load stops there, before tiers get their links.
constexpr std::string_view kUnlinked = "\n\x01,\x01\n\x01,\x01\n";

bool SameTier(const clsPriceRange& oLeft, const clsPriceRange& oRight) {
  return oLeft.m_nCount == oRight.m_nCount && oLeft.m_nIndex == oRight.m_nIndex &&
         oLeft.m_fStart == oRight.m_fStart && oLeft.m_fEnd == oRight.m_fEnd &&
         oLeft.m_fValue == oRight.m_fValue;
}

/// The tier, or a count of -1 if asking for it throws a Failure.
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

/// What a hit test must give, found by reading the tiers one by one.
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
  constexpr std::size_t kLongestKey = 100;  // with the tier's words it must fit into a PriceKey
  std::size_t nTables = 0;
  for (std::size_t i = 0; i < oLinked.Table().Size() && nTables < kMostTables; ++i) {
    const std::string sKey(oLinked.Table().KeyAt(i));
    if (sKey.ends_with("Ranges") && sKey.size() <= kLongestKey) {
      CheckTable(oLinked, oUnlinked, sKey.substr(0, sKey.size() - 6));
      ++nTables;
    }
  }
}

}  // namespace
}  // namespace quillet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  const std::string sText(TakeSettings(pData, nSize));
  clsPrices oLinked;
  clsPrices oUnlinked;
  try {
    oLinked.LoadText(sText);
  } catch (const Failure&) {
    return 0;
  }
  IgnoreFailure([&] { oUnlinked.LoadText(sText + std::string(kUnlinked)); });
  CheckTables(oLinked, oUnlinked);
  return 0;
}
