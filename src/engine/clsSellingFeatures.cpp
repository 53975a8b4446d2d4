#include "engine/clsSellingFeatures.h"

#include <algorithm>
#include <array>

#include "base/failure.h"
#include "base/region.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

struct FeaturePrice {
  KeyText oName;
  Single clsSellingFeatures::*fPrice;
};

using F = clsSellingFeatures;

/// Every price that is looked up in the schedule, by the name after the key's prefix.
constexpr std::array<FeaturePrice, 22> kFeaturePrices = {{
    {"HomePage", &F::m_fHomePage},
    {"HomePageMulti", &F::m_fHomePageMulti},
    {"Plus", &F::m_fPlus},
    {"Highlight", &F::m_fHighlight},
    {"ItemSubtitle", &F::m_fItemSubtitle},
    {"Bold", &F::m_fBold},
    {"Gallery", &F::m_fGallery},
    {"FeaturedGallery", &F::m_fFeaturedGallery},
    {"BuyItNow", &F::m_fBuyItNow},
    {"ScheduledListings", &F::m_fScheduledListings},
    {"ListIn2Categories", &F::m_fListIn2Categories},
    {"ListingDesigner", &F::m_fListingDesigner},
    {"SlideShow", &F::m_fSlideShow},
    {"SupersizePictures", &F::m_fSupersizePictures},
    {"ExtraImage", &F::m_fExtraImage},
    {"FeaturedInSearch", &F::m_fFeaturedInSearch},
    {"10DayDuration", &F::m_f10DayDuration},
    {"GiftServices", &F::m_fGiftServices},
    {"PreviewPicture", &F::m_fPreviewPicture},
    {"Border", &F::m_fBorder},
    {"ListingItem", &F::m_fListingItem},
    {"CarAd", &F::m_fCarAd},
}};

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

/// A feature that isn't on offer costs nothing by today's schedules. By those of 2007 its price
/// below 0 counts like any other.
Single clsSellingFeatures::Charged(Single fPrice) const {
  return HasFeesOfToday() ? Single(std::max<double>(0, fPrice)) : fPrice;
}

void clsSellingFeatures::ForgetPrices() {
  for (const FeaturePrice& oPrice : kFeaturePrices) {
    this->*oPrice.fPrice = 0;
  }
}

const clsAuctionType& clsSellingFeatures::AuctionType() const {
  if (m_oAuctionType == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The kind of listing isn't known yet.");
  }
  return *m_oAuctionType;
}

/// The one that prices are looked up with. Today's depend neither on it nor on the kind of listing.
std::int32_t clsSellingFeatures::Duration() const {
  return HasFeesOfToday() ? std::int32_t{kShopNone} : AuctionType().m_eShopDuration;
}

PriceKey clsSellingFeatures::GetPriceKey(const KeyText& oName) const {
  PriceKey oKey = KeyText("Feature");
  if (RegionCode() != 0 && !HasFeesOfToday()) {
    if (AuctionType().m_eAuctionType == kAuctionMotor) {
      oKey.Append("Motor");
      switch (AuctionType().m_eMotorType) {
        case kMotorPocketBikes:
          oKey.Append("PoketBikes");  // the schedule's spelling
          break;
        case kMotorParts:
          oKey.Append("Parts");
          break;
        default:
          break;
      }
    } else if (AuctionType().m_eAuctionType == kAuctionRealEstate) {
      oKey.Append("RealEstate");
    }
  }
  return oKey.Append(oName);
}

/// A price that the schedule lacks stays as it was, even if it is that of another kind of listing.
void clsSellingFeatures::RefreshPrices() {
  RefreshPrices(GetPriceKey(""), Duration());
  if (HasFeesOfToday()) {
    if (AuctionType().HasFixedPrice()) {
      RefreshPrices(KeyText("FixedFeature"), kShopNone);  // those that differ
    }
    RefreshSubtitle();
  }
}

/// Today its price may go by that of the listing: the starting price, or the fixed one.
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

void clsSellingFeatures::RefreshPrices(PriceKey&& oPrefix, std::int32_t nShop) {
  const clsPrices& oPrices = Prices();
  for (const FeaturePrice& oPrice : kFeaturePrices) {
    const KeyBranch oBranch(oPrefix);
    oPrices.GetPrice(oPrefix.Append(oPrice.oName), this->*oPrice.fPrice, nShop);
  }
}

/// By the hoped-for price in the United States, in 2007. The tiers never carry a shop's duration,
/// unlike the flat price.
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
