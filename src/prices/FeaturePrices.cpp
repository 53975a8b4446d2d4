#include "prices/FeaturePrices.h"

#include <algorithm>

#include "prices/shopDuration.h"

namespace quillet {
namespace {

FeaturePrices PricesUnder(const PriceTable& oTable, PriceKey&& oPrefix, const KeyText& oSuffix) {
  FeaturePrices aoPrices;
  std::transform(kFeatureKeys.begin(), kFeatureKeys.end(), aoPrices.begin(),
                 [&](const KeyText& oKey) {
                   const KeyBranch oBranch(oPrefix);
                   return oTable.FindNumber(oPrefix.Append(oKey).Append(oSuffix));
                 });
  return aoPrices;
}

}  // namespace

void FeatureLists::Read(const PriceTable& oTable) {
  for (std::size_t nListing = 0; nListing < m_aoLists.size(); ++nListing) {
    for (std::size_t nShop = 0; nShop < kDurations; ++nShop) {
      m_aoLists[nListing][nShop] = PricesUnder(oTable, kFeaturePrefixes[nListing],
                                               ShopSuffix(static_cast<std::int32_t>(nShop)));
    }
  }
}

const FeaturePrices& FeatureLists::Of(FeatureListing eListing, std::int32_t nShop) const {
  const auto nAt = static_cast<std::size_t>(nShop);
  return m_aoLists[static_cast<std::size_t>(eListing)]
                  [nAt < kDurations ? nAt : std::size_t{kShopNone}];
}

}  // namespace quillet
