#include "sections/ctlSellingFeatures.h"

#include "support/PanelTest.h"

namespace quillet {
namespace {

enum class Listing { Standard, FixedPrice, Shop, Vehicle, Parts };

std::int32_t MaskOf(const clsSellingFeatures& oFeatures) {
  std::int32_t lMask = 0;
  for (std::int32_t lBit = 1; lBit <= kFeatureCarAd; lBit *= 2) {
    lMask |= oFeatures.HasFeature(lBit) ? lBit : 0;
  }
  return lMask;
}

class SellingFeatures : public PanelTest<ctlSellingFeatures> {
 protected:
  SellingFeatures() { Refresh(); }

  /// What the view does after each change: the prices come first, then the section.
  void Refresh() {
    const clsAuctionType* const pType = &m_oAuction.m_oAuctionType;
    static_cast<void>(Model().DoCalc(pType, &m_oAuction.m_oOutlay));
    m_oSection.ApplyFeatures(Model(), pType, &m_oAuction.m_oOutlay);
  }
  void Start(Listing eListing, std::int32_t lFeatures = 0) {
    clsAuctionType& oType = m_oAuction.m_oAuctionType;
    oType.m_bBuyItNowOnly = eListing == Listing::FixedPrice;
    oType.m_bShopInventory = eListing == Listing::Shop;
    oType.m_eShopDuration = eListing == Listing::Shop ? kShop30Days : kShopNone;
    oType.m_eAuctionType = eListing >= Listing::Vehicle ? kAuctionMotor : kAuctionStandard;
    oType.m_eMotorType = eListing == Listing::Parts ? kMotorParts : kMotorPassenger;
    Model() = clsSellingFeatures();  // forgets the prices too
    Model().AddFeature(lFeatures);
    Refresh();
  }
  clsSellingFeatures& Model() { return m_oAuction.m_oSellingFeatures; }
  std::int32_t Mask() { return MaskOf(Model()); }
};

TEST_F(SellingFeatures, EachBoxSetsItsFeatureAndItsFeeIsTheTotal) {
  struct Row {
    const char* sBox;
    std::int32_t lFeature;
    const char* sUnitedStates;
    const char* sUnitedKingdom;  ///< null where the region has no such row
    Listing eListing = Listing::Standard;
  };
  const std::array aoRows = std::to_array<Row>({
      {"chkHomePageFeatured", 0x1, "$39.95", "£49.95"},
      {"chkFeaturePlus", 0x2, "$19.95", "£9.95"},
      {"chkHighlight", 0x4, "$5.00", "£2.50"},
      {"chkItemSubtitle", 0x8, "$0.50", "£0.35"},
      {"chkBorder", 0x40000, "$3.00", nullptr},
      {"chkBold", 0x10, "$1.00", "£0.75"},
      {"chkGallery", 0x20, "$0.35", "£0.15"},
      {"chkFeaturedGallery", 0x40, "$19.95", "£15.95"},
      {"chkBuyItNow", 0x80, "$0.20", "£0.05"},  // United States: the tier of 30.00
      {"chkScheduledListing", 0x100, "$0.10", "£0.06"},
      {"chkListIn2Categories", 0x200, "$0.00", "£0.00"},  // twice nothing
      {"chkSlideShow", 0x400, "$0.25", "£0.15"},
      {"chkSuperSizedPicures", 0x800, "$0.75", "£0.60"},
      {"chkListingDesigner", 0x2000, "$0.10", "£0.07"},
      {"chkFeaturedInSearch", 0x4000, "$9.95", "£4.95", Listing::Shop},
      {"chk10DayDuration", 0x8000, "$0.40", nullptr},
      {"chkListingItem", 0x80000, "$1.00", nullptr, Listing::Vehicle},
      {"chkGiftServices", 0x10000, "$0.25", nullptr},
      {"chkCarAd", 0x100000, "$9.95", nullptr, Listing::Vehicle},
      {"chkPreviewPicture", 0x20000, "$0.15", nullptr},
      {"chkPicturePack", 0x1000, "$1.00", "£0.90"},  // it takes one picture at least
  });
  for (const Row& oRow : aoRows) {
    const char* const sTotal = ByRegion(oRow.sUnitedKingdom, oRow.sUnitedStates);
    if (sTotal == nullptr) {
      continue;
    }
    SCOPED_TRACE(oRow.sBox);
    Start(oRow.eListing);
    m_oChanged.clear();
    ClickOn(oRow.sBox);
    EXPECT_EQ(Mask(), oRow.lFeature);
    EXPECT_EQ(Total(), std::string("Section Total ") + sTotal);
    EXPECT_TRUE(Model().m_bDirty);
    EXPECT_EQ(m_oChanged.count(), 1);
    ClickOn(oRow.sBox);
    EXPECT_EQ(Mask(), 0);
  }
}

TEST_F(SellingFeatures, ACarAdOfTheModelIsNotShownAndSoOverwritten) {
  UseSchedule("FeatureCarAd,9.95\nFeatureMotorCarAd,9.95\nFeatureBold,4\nFeatureMotorBold,4\n");
  Start(Listing::Vehicle, kFeatureCarAd);
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Total(), "Section Total £9.95");
  ClickOn("chkBold");
  EXPECT_EQ(Mask(), kFeatureBold) << "the box, which was never ticked, overwrites the feature";
  EXPECT_EQ(Total(), "Section Total £4.00");
}

TEST_F(SellingFeatures, WhatTheListingCannotHaveIsGreyAndCannotBeClicked) {
  struct Row {
    Listing eListing;
    const char* sUnitedStates;
    const char* sUnitedKingdom;
  };
  const std::array aoRows = std::to_array<Row>({
      {Listing::Standard, "chkFeaturedInSearch chkListingItem chkCarAd",
       "chkFeaturedInSearch chkListingItem chkGiftServices chkCarAd chkPreviewPicture"},
      {Listing::FixedPrice, "chkBuyItNow chkFeaturedInSearch chkListingItem chkCarAd",
       "chkBuyItNow chkFeaturedInSearch chkListingItem chkGiftServices chkCarAd "
       "chkPreviewPicture"},
      {Listing::Shop,
       "chkHomePageFeatured chkFeaturePlus chkItemSubtitle chkFeaturedGallery chkBuyItNow "
       "chkScheduledListing chkListingItem chkCarAd",
       "chkHomePageFeatured chkFeaturePlus chkItemSubtitle chkFeaturedGallery chkBuyItNow "
       "chkScheduledListing chkListingItem chkGiftServices chkCarAd chkPreviewPicture"},
      {Listing::Vehicle, "chkFeaturedInSearch chkGiftServices",
       "chkFeaturedInSearch chkGiftServices chkCarAd chkPreviewPicture"},
      {Listing::Parts, "chkFeaturedInSearch chkListingItem",
       "chkFeaturedInSearch chkListingItem chkGiftServices chkCarAd chkPreviewPicture"},
  });
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(static_cast<int>(oRow.eListing));
    Start(oRow.eListing);
    EXPECT_EQ(Grey(), ByRegion(oRow.sUnitedKingdom, oRow.sUnitedStates));
    EXPECT_EQ(NamesWhere(m_oSection,
                         [](const Control& o) {
                           return dynamic_cast<const CheckBox*>(&o) != nullptr && !IsShowCheck(o) &&
                                  !o.Widget().isEnabled();
                         }),
              Grey());
  }
}

// The model keeps the feature until the next change in the section writes the empty box over it.
TEST_F(SellingFeatures, ABoxThatIsStruckOutIsUntickedEvenIfItEndsOpen) {
  struct Row {
    const char* sSchedule;
    Listing eListing;
    std::int32_t lFeature;
    const char* sBox;
    bool bGrey;
  };
  const std::array aoRows = std::to_array<Row>({
      {"FeaturePlus,-1\n", Listing::Standard, kFeaturePlus, "chkFeaturePlus",
       true},  // not on offer
      {"", Listing::Shop, kFeatureListIn2Categories, "chkListIn2Categories", false},
  });
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(oRow.sBox);
    UseSchedule(oRow.sSchedule);
    Start(oRow.eListing, oRow.lFeature);
    EXPECT_EQ(Chosen(), "");
    EXPECT_EQ(IsGrey(ControlOf(m_oSection, oRow.sBox)), oRow.bGrey);
    EXPECT_EQ(Mask(), oRow.lFeature);
    ClickOn("chkBold");
    EXPECT_EQ(Mask(), kFeatureBold);
  }
}

TEST_F(SellingFeatures, ThePicturePackBoundsTheNumberOfPictures) {
  struct Row {
    const char* sName;
    std::vector<std::array<const char*, 3>> aoTiers;
    const char* sTyped;
    int nPictures;
  };
  const std::array aoRows = std::to_array<Row>({
      {"within", {{"1", "3", "1"}, {"4", "6", "2"}}, "4", 4},
      {"the last", {{"1", "3", "1"}, {"4", "6", "2"}}, "6", 6},
      {"beyond the last tier", {{"1", "3", "1"}, {"4", "6", "2"}}, "9", 6},
      {"without an upper limit", {{"1", "-1", "1"}}, "9", 9},
  });
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(oRow.sName);
    UseSchedule(Tiers("PicturePack", oRow.aoTiers) + Tiers("FeaturePicturePack", oRow.aoTiers));
    Start(Listing::Standard);
    TypeInto("txtExtraPictures", oRow.sTyped);
    ClickOn("chkPicturePack");
    EXPECT_EQ(Model().m_lExtraImageCount, oRow.nPictures);
    EXPECT_EQ(Box("txtExtraPictures").Text(), std::to_string(oRow.nPictures));
    ClickOn("chkPicturePack");
    EXPECT_EQ(Model().m_lExtraImageCount, oRow.nPictures);
    EXPECT_EQ(Box("txtExtraPictures").Min(), 0);
    EXPECT_EQ(Box("txtExtraPictures").Max(), 100);
  }
}

TEST_F(SellingFeatures, EachShowBoxStandsForItsRowAlone) {
  ExpectEachShowBoxStandsForItsRow(m_oSection, ByRegion(17U, 23U));
}

TEST_F(SellingFeatures, NoCaptionIsClippedAndEveryInputHasAName) {
  Start(Listing::Standard, 0x1FFFFF & ~kFeatureCarAd);
  m_oSection.SetShowConfig(true);
  EXPECT_EQ(ClippedCaptionsIn(m_oSection), "");
  EXPECT_EQ(UnnamedInputsIn(m_oSection), "");
}

}  // namespace
}  // namespace quillet
