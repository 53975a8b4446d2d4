// What the paid extras of a listing are called.
#pragma once

#include <array>

#include "engine/clsSellingFeatures.h"

namespace quillet {

struct FeatureName {
  eFeature eBit;
  const char* sName;
};

/// In the order in which they are shown.
inline constexpr std::array<FeatureName, 21> kFeatureNames = {{
    {kFeatureHomePage, "Home Page Featured"},
    {kFeaturePlus, "Feature Plus"},
    {kFeatureHighlight, "Highlight"},
    {kFeatureItemSubtitle, "Item Subtitle"},
    {kFeatureBorder, "Border"},
    {kFeatureBold, "Bold"},
    {kFeatureGallery, "Gallery"},
    {kFeatureFeaturedGallery, "Featured Gallery"},
    {kFeatureBuyItNow, "Buy It Now"},
    {kFeatureScheduledListing, "Scheduled Listing"},
    {kFeatureListIn2Categories, "List in 2 Categories"},
    {kFeatureSlideShow, "Slide Show"},
    {kFeatureSupersizePictures, "Super Sized Pictures"},
    {kFeatureListingDesigner, "Listing Designer"},
    {kFeatureFeaturedInSearch, "Featured in Search"},
    {kFeature10DayDuration, "10 Day Duration"},
    {kFeatureListingItem, "Listing Item"},
    {kFeatureGiftServices, "Gift Services"},
    {kFeatureCarAd, "CARad"},
    {kFeaturePreviewPicture, "Preview Picture"},
    {kFeaturePicturePack, "Picture Pack"},
}};

[[nodiscard]] constexpr const char* NameOf(eFeature eBit) {
  for (const FeatureName& oName : kFeatureNames) {
    if (oName.eBit == eBit) {
      return oName.sName;
    }
  }
  return "";
}

}  // namespace quillet
