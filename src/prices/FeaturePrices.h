// The prices of the paid extras, found once when a schedule is loaded: each auction needs all those
// of its kind of listing and duration.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/Single.h"
#include "prices/PriceKey.h"
#include "prices/PriceTable.h"

namespace quillet {

/// The ends of their keys.
inline constexpr std::array<KeyText, 22> kFeatureKeys = {
    "HomePage",
    "HomePageMulti",
    "Plus",
    "Highlight",
    "ItemSubtitle",
    "Bold",
    "Gallery",
    "FeaturedGallery",
    "BuyItNow",
    "ScheduledListings",
    "ListIn2Categories",
    "ListingDesigner",
    "SlideShow",
    "SupersizePictures",
    "ExtraImage",
    "FeaturedInSearch",
    "10DayDuration",
    "GiftServices",
    "PreviewPicture",
    "Border",
    "ListingItem",
    "CarAd",
};

/// The kinds of listing whose features have keys of their own. FixedPrice is one of today's only.
enum class FeatureListing : std::size_t {
  Any,
  Motor,
  PocketBikes,
  MotorParts,
  RealEstate,
  FixedPrice,
};

/// The starts of their keys.
inline constexpr std::array<KeyText, 6> kFeaturePrefixes = {
    "Feature",           "FeatureMotor",      "FeatureMotorPoketBikes",  // the schedule's spelling
    "FeatureMotorParts", "FeatureRealEstate", "FixedFeature",
};

/// In the order of kFeatureKeys; nothing where the schedule has no price.
using FeaturePrices = std::array<std::optional<Single>, kFeatureKeys.size()>;

class FeatureLists {
 public:
  void Read(const PriceTable& oTable);

  /// Of a kind of listing and a duration; any code outside eShop is that of kShopNone.
  [[nodiscard]] const FeaturePrices& Of(FeatureListing eListing, std::int32_t nShop) const;

 private:
  static constexpr std::size_t kDurations = 6;

  std::array<std::array<FeaturePrices, kDurations>, kFeaturePrefixes.size()> m_aoLists;
};

}  // namespace quillet
