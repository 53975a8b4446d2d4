#include "engine/clsSellingFeatures.h"

#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/ByRegion.h"
#include "support/Prices.h"

namespace quillet {
namespace {

class SellingFeatures : public ::testing::Test {
 protected:
  SellingFeatures() { m_oType.m_eShopDuration = kShopNone; }

  Single Fee(std::int32_t lFeatures, std::int32_t lImages = 0) {
    m_oFeatures.Clear();
    m_oFeatures.AddFeature(lFeatures);
    m_oFeatures.m_lExtraImageCount = lImages;
    return m_oFeatures.DoCalc(&m_oType, &m_oOutlay);
  }

  clsAuctionType m_oType;
  clsOutlay m_oOutlay;
  clsSellingFeatures m_oFeatures;
};

std::vector<std::string> Words(const std::string& sWords) {
  std::istringstream oWords(sWords);
  return {std::istream_iterator<std::string>(oWords), {}};
}

TEST_F(SellingFeatures, EachBitCostsThePriceOfItsKey) {
  // In the order of the bits; a dash stands for a feature without a plain price.
  const std::vector<std::string> asKeys = Words(
      "HomePage Plus Highlight ItemSubtitle Bold Gallery FeaturedGallery BuyItNow "
      "ScheduledListings - SlideShow SupersizePictures -- ListingDesigner FeaturedInSearch "
      "10DayDuration GiftServices PreviewPicture Border ListingItem CarAd");
  std::string sSchedule = "FeatureBuyItNowRanges,0\n";
  for (std::size_t i = 0; i < asKeys.size(); ++i) {
    sSchedule += "Feature" + asKeys[i] + "," + std::to_string(i + 1) + "\n";
  }
  UseSchedule(sSchedule);
  for (std::size_t i = 0; i < asKeys.size(); ++i) {
    if (!asKeys[i].starts_with('-')) {
      EXPECT_EQ(Fee(1 << i), Single(static_cast<double>(i + 1))) << asKeys[i];
    }
  }
}

TEST_F(SellingFeatures, TwoCategoriesMultiplyAllButHomePageAndSchedule) {
  UseSchedule(
      "FeatureBold,1\nFeatureExtraImage,0.15\nFeatureListIn2Categories,2\n"
      "FeatureScheduledListings,0.1\nFeatureHomePage,40\nFeatureHomePageMulti,80\n" +
      Tiers("FeaturePicturePack", {{"1", "6", "5"}, {"7", "12", "9"}}));
  EXPECT_EQ(Fee(0x10 | 0x200 | 0x100, 3), 3);  // (1 + 3 x 0.15) x 2 + 0.1
  EXPECT_EQ(Fee(0x200 | 0x1), 40);
  EXPECT_EQ(Fee(0x200), 0);
  EXPECT_EQ(Fee(0, 5), .75);  // extra images are charged without any bit
  EXPECT_EQ(Fee(0, -2), -Single(.3));
  EXPECT_EQ(Fee(0x1000, 6), 5);  // the pack replaces the images
  EXPECT_EQ(Fee(0x1000 | 0x200, 7), 18);
  EXPECT_EQ(Fee(0x1000, 13), 0);
  m_oType.m_eShopDuration = kShop90Days;
  EXPECT_THROW((void)Fee(0x1000, 5), Failure);  // no table of packs for that duration
  UseSchedule(Tiers("FeaturePicturePack90", {{"1", "6", "4"}}));
  EXPECT_EQ(Fee(0x1000, 6), 4);
}

TEST_F(SellingFeatures, TheHomePageCostsMoreForSeveralInTheUnitedStates) {
  UseSchedule("FeatureHomePage,40\nFeatureHomePageMulti,80\n");
  for (const auto& [lQuantity, fUs] : {std::pair{0, 40}, {1, 40}, {2, 80}}) {
    m_oOutlay.m_lQuantity = lQuantity;
    EXPECT_EQ(Fee(0x1), ByRegion(40, fUs)) << lQuantity;
  }
  clsSellingFeatures oFresh;
  oFresh.AddFeature(0x1);
  EXPECT_THROW((void)oFresh.DoCalc(nullptr, nullptr), Failure);  // no kind of listing yet
  if (RegionCode() == 1) {
    EXPECT_THROW((void)oFresh.DoCalc(&m_oType, nullptr), Failure);
  } else {
    EXPECT_EQ(oFresh.DoCalc(&m_oType, nullptr), 40);
  }
}

TEST_F(SellingFeatures, BuyItNowGoesByTheEndPriceInTheUnitedStatesWhateverTheDuration) {
  const std::string sFlat = "FeatureBuyItNow,7\nFeatureBuyItNow90,8\n";
  UseSchedule(sFlat + Tiers("FeatureBuyItNow", {{"1", "9.99", "0.05"}, {"10", "-1", "0.25"}}) +
              Tiers("FeatureBuyItNow90", {{"0", "-1", "99"}}));
  m_oType.m_eShopDuration = kShop90Days;
  for (const auto& [fEnd, fUs] : {std::pair{9.99, .05}, {9.995, 8.0}, {0.0, 8.0}, {10.0, .25}}) {
    m_oOutlay.m_fEstimatedEndPrice = fEnd;
    EXPECT_EQ(Fee(0x80), Single(ByRegion(8.0, fUs))) << fEnd;
  }
  UseSchedule(sFlat);
  if (RegionCode() == 1) {
    EXPECT_THROW((void)Fee(0x80), Failure);  // no table
  } else {
    EXPECT_EQ(Fee(0x80), 8);
  }
}

TEST_F(SellingFeatures, ThePrefixFollowsTheKindOfListingInTheUnitedStates) {
  UseSchedule(
      "FeatureBold,1\nFeatureMotorBold,2\nFeatureMotorPoketBikesBold,3\nFeatureMotorPartsBold,4\n"
      "FeatureRealEstateBold,5\nFeatureBold60,6\n");
  for (const auto& [eType, eMotor, fUs] :
       {std::tuple{0, 3, 1}, {1, 0, 2}, {1, 3, 3}, {1, 5, 4}, {1, 9, 2}, {2, 5, 5}, {3, 0, 1}}) {
    m_oType.m_eAuctionType = eType;
    m_oType.m_eMotorType = eMotor;
    EXPECT_EQ(Fee(0x10), ByRegion(1, fUs)) << eType << ", " << eMotor;
  }
  m_oType = clsAuctionType();
  m_oType.m_eShopDuration = kShop60Days;
  EXPECT_EQ(Fee(0x10), 6);
  // No such price: the last one read stays, even after a Clear.
  m_oType.m_eShopDuration = kShop120Days;
  EXPECT_EQ(Fee(0x10), 6);
  m_oFeatures.Clear();
  EXPECT_EQ(m_oFeatures.m_fBold, 6);
  EXPECT_EQ(m_oFeatures.DoCalc(nullptr, nullptr), 0);
}

}  // namespace
}  // namespace quillet
