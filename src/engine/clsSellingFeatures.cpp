#include "engine/clsSellingFeatures.h"

#include <algorithm>
#include <array>

#include "base/failure.h"
#include "base/region.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

using F = clsSellingFeatures;

/// Where the prices of kFeatureKeys are kept, in the same order.
constexpr std::array<Single F::*, kFeatureKeys.size()> kPriceFields = {
    &F::m_fHomePage,
    &F::m_fHomePageMulti,
    &F::m_fPlus,
    &F::m_fHighlight,
    &F::m_fItemSubtitle,
    &F::m_fBold,
    &F::m_fGallery,
    &F::m_fFeaturedGallery,
    &F::m_fBuyItNow,
    &F::m_fScheduledListings,
    &F::m_fListIn2Categories,
    &F::m_fListingDesigner,
    &F::m_fSlideShow,
    &F::m_fSupersizePictures,
    &F::m_fExtraImage,
    &F::m_fFeaturedInSearch,
    &F::m_f10DayDuration,
    &F::m_fGiftServices,
    &F::m_fPreviewPicture,
    &F::m_fBorder,
    &F::m_fListingItem,
    &F::m_fCarAd,
};

struct FlatFeature {
  std::int32_t lFeature;
  Single clsSellingFeatures::*fPrice;
};

/// The features after Feature Plus that cost their flat price, in the order of the sum. Buy It Now
/// has a price of its own and no field here.
constexpr std::array<FlatFeature, 16> kFlatFeatures = {{
    {kFeatureHighlight, &F::m_fHighlight},
    {kFeatureItemSubtitle, &F::m_fItemSubtitle},
    {kFeatureBold, &F::m_fBold},
    {kFeatureGallery, &F::m_fGallery},
    {kFeatureFeaturedGallery, &F::m_fFeaturedGallery},
    {kFeatureBuyItNow, nullptr},
    {kFeatureSlideShow, &F::m_fSlideShow},
    {kFeatureSupersizePictures, &F::m_fSupersizePictures},
    {kFeatureListingDesigner, &F::m_fListingDesigner},
    {kFeatureFeaturedInSearch, &F::m_fFeaturedInSearch},
    {kFeature10DayDuration, &F::m_f10DayDuration},
    {kFeatureGiftServices, &F::m_fGiftServices},
    {kFeaturePreviewPicture, &F::m_fPreviewPicture},
    {kFeatureBorder, &F::m_fBorder},
    {kFeatureListingItem, &F::m_fListingItem},
    {kFeatureCarAd, &F::m_fCarAd},
}};

/// The features that are added elsewhere than with the flat ones.
constexpr std::array<FlatFeature, 4> kOtherFeatures = {{
    {kFeatureHomePage, &F::m_fHomePage},
    {kFeaturePlus, &F::m_fPlus},
    {kFeatureScheduledListing, &F::m_fScheduledListings},
    {kFeatureListIn2Categories, &F::m_fListIn2Categories},
}};

}  // namespace

void clsSellingFeatures::RemoveFeature(std::int32_t lFeature) {
  if (HasFeature(lFeature)) {
    m_lFeatures ^= lFeature;
  }
}

void clsSellingFeatures::SetFeature(std::int32_t lFeature, bool bOn) {
  if (bOn) {
    AddFeature(lFeature);
  } else {
    RemoveFeature(lFeature);
  }
}

bool clsSellingFeatures::HasFeature(std::int32_t lFeature) const {
  return (m_lFeatures & lFeature) == lFeature;
}

bool clsSellingFeatures::HasOnlyWhatIsOnOffer() const {
  const auto fnOnOffer = [this](const FlatFeature& oFeature) {
    return !HasFeature(oFeature.lFeature) ||
           (oFeature.fPrice != nullptr ? this->*oFeature.fPrice : GetBuyItNowFee()) >= 0;
  };
  return std::all_of(kFlatFeatures.begin(), kFlatFeatures.end(), fnOnOffer) &&
         std::all_of(kOtherFeatures.begin(), kOtherFeatures.end(), fnOnOffer);
}

Single clsSellingFeatures::DoCalc(const clsAuctionType* oAuctionType, const clsOutlay* oOutlay) {
  m_oAuctionType = oAuctionType != nullptr ? oAuctionType : m_oAuctionType;
  m_oLastOutlay = oOutlay != nullptr ? oOutlay : m_oLastOutlay;
  RefreshPrices();

  Single fSum;
  if (HasFeature(kFeaturePlus)) {
    fSum = Charged(m_fPlus);
  }
  for (const FlatFeature& oFeature : kFlatFeatures) {
    if (HasFeature(oFeature.lFeature)) {
      fSum = fSum + Charged(oFeature.fPrice != nullptr ? this->*oFeature.fPrice : GetBuyItNowFee());
    }
  }
  if (HasFeature(kFeaturePicturePack)) {
    fSum = fSum + GetPicturePackFee();
  } else {
    fSum = fSum + m_fExtraImage * m_lExtraImageCount;  // no feature bit guards the charge
  }
  if (HasFeature(kFeatureListIn2Categories) &&
      Charged(m_fListIn2Categories) == m_fListIn2Categories) {
    fSum = fSum * m_fListIn2Categories;
  }
  // After the factor, so that these two are never doubled.
  if (HasFeature(kFeatureHomePage)) {
    fSum = fSum + Charged(GetHomePageFee());
  }
  if (HasFeature(kFeatureScheduledListing)) {
    fSum = fSum + Charged(m_fScheduledListings);
  }
  m_fLastFee = fSum;
  return fSum;
}

/// A feature that isn't on offer costs nothing by today's schedules. By those of 2007 a price below
/// 0 counts like any other.
Single clsSellingFeatures::Charged(Single fPrice) const {
  return HasFeesOfToday() ? Single(std::max<double>(0, fPrice)) : fPrice;
}

void clsSellingFeatures::ForgetPrices() {
  for (Single F::*const fPrice : kPriceFields) {
    this->*fPrice = 0;
  }
}

const clsAuctionType& clsSellingFeatures::AuctionType() const {
  if (m_oAuctionType == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The kind of listing isn't known yet.");
  }
  return *m_oAuctionType;
}

/// The one that prices are looked up with. Today's depend on neither it nor the kind of listing.
std::int32_t clsSellingFeatures::Duration() const {
  return HasFeesOfToday() ? std::int32_t{kShopNone} : AuctionType().m_eShopDuration;
}

/// The one that prices are looked up for. Today's kinds of listing have the same prices.
FeatureListing clsSellingFeatures::Listing() const {
  if (RegionCode() == 0 || HasFeesOfToday()) {
    return FeatureListing::Any;
  }
  switch (AuctionType().m_eAuctionType) {
    case kAuctionMotor:
      break;
    case kAuctionRealEstate:
      return FeatureListing::RealEstate;
    default:
      return FeatureListing::Any;
  }
  switch (AuctionType().m_eMotorType) {
    case kMotorPocketBikes:
      return FeatureListing::PocketBikes;
    case kMotorParts:
      return FeatureListing::MotorParts;
    default:
      return FeatureListing::Motor;
  }
}

PriceKey clsSellingFeatures::GetPriceKey(const KeyText& oName) const {
  return PriceKey(kFeaturePrefixes.at(static_cast<std::size_t>(Listing()))).Append(oName);
}

void clsSellingFeatures::RefreshPrices() {
  RefreshPrices(Listing(), Duration());
  if (HasFeesOfToday()) {
    if (AuctionType().HasFixedPrice()) {
      RefreshPrices(FeatureListing::FixedPrice, kShopNone);  // those that differ
    }
    RefreshSubtitle();
  }
}

/// A price that the schedule lacks stays as it was, even if it is that of another kind of listing.
void clsSellingFeatures::RefreshPrices(FeatureListing eListing, std::int32_t nShop) {
  const FeaturePrices& aoPrices = Prices().Features().Of(eListing, nShop);
  for (std::size_t i = 0; i < aoPrices.size(); ++i) {
    Single& fPrice = this->*kPriceFields[i];
    fPrice = aoPrices[i].value_or(fPrice);
  }
}

/// Today its price may depend on that of the listing: the starting price, or the fixed one.
void clsSellingFeatures::RefreshSubtitle() {
  const bool bFixed = AuctionType().HasFixedPrice();
  const KeyText oTable = bFixed ? KeyText("FixedFeatureItemSubtitle") : "FeatureItemSubtitle";
  if (m_oLastOutlay == nullptr || !Prices().HasTiers(oTable)) {
    return;
  }
  clsPriceRange oTier;
  const Single fListed =
      bFixed ? m_oLastOutlay->m_fEstimatedEndPrice : m_oLastOutlay->m_fStartingPrice;
  if (Prices().HitTestRanges(oTable, fListed, oTier, kShopNone)) {
    m_fItemSubtitle = oTier.m_fValue;
  }
}

/// In the United States, in 2007, by the hoped-for price. The keys of the tiers never have a shop's
/// duration, unlike that of the flat price.
Single clsSellingFeatures::GetBuyItNowFee() const {
  if (RegionCode() != 1 || m_oLastOutlay == nullptr || HasFeesOfToday()) {
    return m_fBuyItNow;
  }
  clsPriceRange oTier;
  const bool bHit = Prices().HitTestRanges(GetPriceKey("BuyItNow"),
                                           m_oLastOutlay->m_fEstimatedEndPrice, oTier, kShopNone);
  return bHit ? oTier.m_fValue : m_fBuyItNow;
}

Single clsSellingFeatures::GetHomePageFee() const {
  if (RegionCode() != 1) {
    return m_fHomePage;
  }
  if (m_oLastOutlay == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The quantity isn't known yet.");
  }
  return m_oLastOutlay->m_lQuantity > 1 ? m_fHomePageMulti : m_fHomePage;
}

/// By the number of pictures; 0 when no tier holds it.
Single clsSellingFeatures::GetPicturePackFee() const {
  clsPriceRange oTier;
  const bool bHit =
      Prices().HitTestRanges(GetPriceKey("PicturePack"), m_lExtraImageCount, oTier, Duration());
  return bHit ? oTier.m_fValue : Single(0);
}

}  // namespace quillet
