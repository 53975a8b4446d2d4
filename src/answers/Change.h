// What a seller might change in an auction, each with the same effect as making it by hand.
#pragma once

#include <cstdint>
#include <functional>

#include "answers/Price.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// Writes one choice into an auction's inputs, with all that goes with it, and marks them dirty.
/// The totals stay until the next DoCalc. Changing the listing or the features throws a Failure if
/// the schedule lacks a tier table for their prices.
using Change = std::function<void(clsCalculate& oAuction)>;

[[nodiscard]] Change NoChange();
[[nodiscard]] Change SellFor(Cents nPrice);  ///< the end price, or at a fixed price the price
[[nodiscard]] Change Sell(std::int32_t lQuantity);
[[nodiscard]] Change TakePayPal(bool bTake);

// Another listing also drops the features that it can't have.

[[nodiscard]] Change ListAsAuction();  ///< of its present kind, neither fixed price nor shop
[[nodiscard]] Change ListAtFixedPrice();
[[nodiscard]] Change ListInShop(std::int32_t eShopDuration);  ///< kShopNone: not chosen yet
[[nodiscard]] Change ListAs(std::int32_t eAuctionType);       ///< the shop takes standard ones only
/// A refinement of the kind of listing: one of the codes in clsAuctionType.
[[nodiscard]] Change ListWith(std::int32_t clsAuctionType::*lField, std::int32_t nCode);
[[nodiscard]] Change BindTheBid(bool bBinding);

[[nodiscard]] Change DropFeature(std::int32_t lFeature);
/// All features at once, by their mask, and the number of extra pictures; but none that the listing
/// can't have.
[[nodiscard]] Change ChooseFeatures(std::int32_t lFeatures, std::int32_t lExtraPictures);

[[nodiscard]] Change AdvertiseAt(std::int32_t nTenths);  ///< of a percent; 0: without

}  // namespace quillet
