// Which paid extras a listing can have.
#pragma once

#include <array>

#include "engine/clsSellingFeatures.h"

namespace quillet {

/// A feature is on offer if its price isn't below 0 and the listing is of the right kind.
struct FeatureOffer {
  eFeature eBit;
  Single clsSellingFeatures::*fPrice;       ///< null where the price has no say
  bool (*fnAllows)(const clsAuctionType&);  ///< null where any listing will do

  /// At the prices of the latest DoCalc.
  [[nodiscard]] bool Holds(const clsSellingFeatures& oFeatures, const clsAuctionType& oType) const {
    return (fPrice == nullptr || oFeatures.*fPrice >= 0) &&
           (fnAllows == nullptr || fnAllows(oType));
  }
};

/// A feature without a line is always on offer. One that any of its lines speaks against can't be
/// chosen; its box is grey if the last of them does. So the second category's box is open in a
/// shop's listing but can't stay ticked, and so is that of a listing item without a price for a
/// vehicle.
extern const std::array<FeatureOffer, 15> kFeatureOffers;

/// Takes out what the listing can't have at the prices of the latest DoCalc.
void DropWhatIsNotOnOffer(clsSellingFeatures& oFeatures, const clsAuctionType& oType);

}  // namespace quillet
