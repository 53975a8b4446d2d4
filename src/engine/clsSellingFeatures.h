// The paid extras of a listing, and the one fee that they add up to.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "engine/clsAuctionType.h"
#include "engine/clsOutlay.h"
#include "engine/fresh.h"
#include "prices/FeaturePrices.h"
#include "prices/PriceKey.h"

namespace quillet {

/// One bit per feature. The values are stored in auction files and never change.
enum eFeature : std::int32_t {
  kFeatureHomePage = 0x1,
  kFeaturePlus = 0x2,
  kFeatureHighlight = 0x4,
  kFeatureItemSubtitle = 0x8,
  kFeatureBold = 0x10,
  kFeatureGallery = 0x20,
  kFeatureFeaturedGallery = 0x40,
  kFeatureBuyItNow = 0x80,
  kFeatureScheduledListing = 0x100,
  kFeatureListIn2Categories = 0x200,
  kFeatureSlideShow = 0x400,
  kFeatureSupersizePictures = 0x800,
  kFeaturePicturePack = 0x1000,
  kFeatureListingDesigner = 0x2000,
  kFeatureFeaturedInSearch = 0x4000,
  kFeature10DayDuration = 0x8000,
  kFeatureGiftServices = 0x10000,
  kFeaturePreviewPicture = 0x20000,
  kFeatureBorder = 0x40000,
  kFeatureListingItem = 0x80000,
  kFeatureCarAd = 0x100000,
};

class clsSellingFeatures {
 public:
  void AddFeature(std::int32_t lFeature) { m_lFeatures |= lFeature; }
  /// Clears the bits if all of them are set; otherwise does nothing.
  void RemoveFeature(std::int32_t lFeature);
  void SetFeature(std::int32_t lFeature, bool bOn);
  /// True when every bit is set, so also for 0.
  [[nodiscard]] bool HasFeature(std::int32_t lFeature) const;

  /// The chosen features, as a mask of eFeature.
  [[nodiscard]] std::int32_t Features() const { return m_lFeatures; }

  /// False if a chosen feature isn't on offer at the prices of the latest DoCalc.
  [[nodiscard]] bool HasOnlyWhatIsOnOffer() const;

  /// The fee for all chosen features, one for the whole auction, not rounded to pennies. Keeps its
  /// arguments, which must live as long as this object; a null keeps the one given before. Also
  /// refreshes the prices below; a feature without a price in the schedule keeps the price that it
  /// had. Throws a Failure if no auction type was ever given or a tier table is missing.
  [[nodiscard]] Single DoCalc(const clsAuctionType* oAuctionType, const clsOutlay* oOutlay);

  /// Sets all prices to 0, so that the next DoCalc keeps none of another schedule's.
  void ForgetPrices();

  /// The result of the latest DoCalc.
  [[nodiscard]] Single LastFee() const { return m_fLastFee; }

  /// Appends the section "[FEATURES]" to `sData`, or reads it from there (docs/auction-file.md).
  void Serialize(std::string& sData, bool bSave);

  /// No features and no pictures; the prices, m_bDirty and what DoCalc keeps stay.
  void Clear() { MakeFresh(*this); }

  // Prices as of the latest DoCalc; below 0 where a feature isn't on offer.
  Single m_fHomePage;
  Single m_fHomePageMulti;
  Single m_fPlus;
  Single m_fHighlight;
  Single m_fItemSubtitle;
  Single m_fBold;
  Single m_fGallery;
  Single m_fFeaturedGallery;
  Single m_fBuyItNow;  ///< the flat amount
  Single m_fScheduledListings;
  Single m_fListIn2Categories;  ///< a factor
  Single m_fListingDesigner;
  Single m_fSlideShow;
  Single m_fSupersizePictures;
  Single m_fExtraImage;  ///< for one image
  std::int32_t m_lExtraImageCount = 0;
  Single m_fFeaturedInSearch;
  Single m_f10DayDuration;
  Single m_fGiftServices;
  Single m_fPreviewPicture;
  Single m_fBorder;
  Single m_fListingItem;
  Single m_fCarAd;
  bool m_bDirty = false;  ///< changed since last saved

 private:
  [[nodiscard]] const clsAuctionType& AuctionType() const;
  [[nodiscard]] PriceKey GetPriceKey(const KeyText& oName) const;
  [[nodiscard]] bool HasFeesOfToday() const { return AuctionType().m_oSaleFees != nullptr; }
  [[nodiscard]] FeatureListing Listing() const;
  [[nodiscard]] std::int32_t Duration() const;
  [[nodiscard]] Single Charged(Single fPrice) const;
  void RefreshPrices();
  void RefreshPrices(FeatureListing eListing, std::int32_t nShop);
  void RefreshSubtitle();
  [[nodiscard]] Single GetBuyItNowFee() const;
  [[nodiscard]] Single GetHomePageFee() const;
  [[nodiscard]] Single GetPicturePackFee() const;

  std::int32_t m_lFeatures = 0;
  Single m_fLastFee;
  const clsAuctionType* m_oAuctionType = nullptr;
  const clsOutlay* m_oLastOutlay = nullptr;
};

}  // namespace quillet
