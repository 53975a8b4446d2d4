// The duration of a shop listing, and the suffix that it puts on a price key.
#pragma once

#include <cstdint>

#include "prices/PriceKey.h"

namespace quillet {

/// The values are stored in auction files.
enum eShop : std::int32_t {
  kShop30Days = 0,
  kShop90Days = 1,
  kShopGoodTillCancelled = 2,
  kShopNone = 3,
  kShop60Days = 4,
  kShop120Days = 5,
};

/// Any code outside the list has no suffix, like kShopNone.
[[nodiscard]] constexpr KeyText ShopSuffix(std::int32_t nShop) {
  switch (nShop) {
    case kShop30Days:
      return "30";
    case kShop60Days:
      return "60";
    case kShop90Days:
      return "90";
    case kShop120Days:
      return "120";
    case kShopGoodTillCancelled:
      return "GTC";
    default:
      return "";
  }
}

}  // namespace quillet
