// What a seller might change in an auction, each as the same choice by hand would do it.
#pragma once

#include <cstdint>

#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// Writes one choice into an auction's inputs, with all that goes with it, and marks them dirty.
/// The totals stay until the next DoCalc.
struct Change {
  void (*fnApply)(clsCalculate& oAuction, std::int32_t nValue) = nullptr;
  std::int32_t nValue = 0;

  void operator()(clsCalculate& oAuction) const { fnApply(oAuction, nValue); }
};

[[nodiscard]] Change NoChange();
[[nodiscard]] Change SellFor(Cents nPrice);  ///< the end price, or at a fixed price the price
[[nodiscard]] Change Sell(std::int32_t lQuantity);
[[nodiscard]] Change ListAsAuction();  ///< of the kind that it is, neither fixed price nor shop
[[nodiscard]] Change ListAtFixedPrice();
[[nodiscard]] Change ListInShop(std::int32_t eShopDuration);
[[nodiscard]] Change TakePayPal(bool bTake);
[[nodiscard]] Change DropFeature(std::int32_t lFeature);
[[nodiscard]] Change AdvertiseAt(std::int32_t nTenths);  ///< of a percent; 0: without

}  // namespace quillet
