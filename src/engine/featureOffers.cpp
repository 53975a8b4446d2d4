#include "engine/featureOffers.h"

namespace quillet {
namespace {

using F = clsSellingFeatures;

/// With today's fees a shop's listing is like any other.
bool IsNotShop(const clsAuctionType& oType) {
  return !oType.m_bShopInventory || oType.m_oSaleFees != nullptr;
}

bool IsShop(const clsAuctionType& oType) {
  return oType.m_bShopInventory;
}

bool IsAuction(const clsAuctionType& oType) {
  return !oType.m_bBuyItNowOnly && !oType.m_bShopInventory;
}

bool IsWholeVehicle(const clsAuctionType& oType) {
  return oType.IsVehicle(false);
}

bool IsVehicleOrParts(const clsAuctionType& oType) {
  return oType.IsVehicle(true);
}

}  // namespace

constexpr std::array<FeatureOffer, 15> kFeatureOffers = {{
    {kFeatureHomePage, &F::m_fHomePage, IsNotShop},
    {kFeaturePlus, &F::m_fPlus, IsNotShop},
    {kFeatureItemSubtitle, &F::m_fItemSubtitle, IsNotShop},
    {kFeatureFeaturedGallery, &F::m_fFeaturedGallery, IsNotShop},
    {kFeatureScheduledListing, &F::m_fScheduledListings, IsNotShop},
    {kFeatureListIn2Categories, &F::m_fListIn2Categories, IsNotShop},
    {kFeatureBuyItNow, &F::m_fBuyItNow, IsAuction},
    {kFeatureFeaturedInSearch, &F::m_fFeaturedInSearch, IsShop},
    {kFeatureListingDesigner, &F::m_fListingDesigner, nullptr},
    {kFeatureGiftServices, &F::m_fGiftServices, nullptr},
    {kFeatureListIn2Categories, &F::m_fListIn2Categories, nullptr},
    {kFeatureListingItem, &F::m_fListingItem, nullptr},
    {kFeatureListingItem, nullptr, IsWholeVehicle},
    {kFeatureCarAd, &F::m_fCarAd, IsVehicleOrParts},
    {kFeaturePreviewPicture, &F::m_fPreviewPicture, nullptr},
}};

void DropWhatIsNotOnOffer(clsSellingFeatures& oFeatures, const clsAuctionType& oType) {
  for (const FeatureOffer& oOffer : kFeatureOffers) {
    if (!oOffer.Holds(oFeatures, oType)) {
      oFeatures.RemoveFeature(oOffer.eBit);
    }
  }
}

}  // namespace quillet
