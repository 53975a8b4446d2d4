// Which paid extras a listing can have.
#pragma once

#include <array>

#include "engine/clsSellingFeatures.h"

namespace quillet {

/// A feature is on offer if its price isn't below 0 and the listing is of the right kind.
struct FeatureOffer {
  eFeature eBit;
  Single clsSellingFeatures::*fPrice;       ///< null if the price doesn't matter
  bool (*fnAllows)(const clsAuctionType&);  ///< null if any listing will do

  /// At the prices of the latest DoCalc.
  [[nodiscard]] bool Holds(const clsSellingFeatures& oFeatures, const clsAuctionType& oType) const {
    return (fPrice == nullptr || oFeatures.*fPrice >= 0) &&
           (fnAllows == nullptr || fnAllows(oType));
  }
};

/// A feature without a line is always on offer. One with lines can be chosen only if all of them
/// hold; its box is grey if the last one doesn't. So the second category's box is open in a shop's
/// listing but can't stay ticked, and so is a vehicle's listing item without a price.
extern const std::array<FeatureOffer, 15> kFeatureOffers;

/// Removes what the listing can't have at the prices of the latest DoCalc.
void DropWhatIsNotOnOffer(clsSellingFeatures& oFeatures, const clsAuctionType& oType);

}  // namespace quillet
