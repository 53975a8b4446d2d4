#include "sections/ctlSellingFeatures.h"

#include <algorithm>
#include <array>

#include "answers/tips.h"
#include "base/FlagGuard.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "engine/featureNames.h"
#include "engine/featureOffers.h"
#include "prices/clsPrices.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

using enum ControlKind;

/// A row with one box; with a Frame around it if it can be closed.
struct FeatureRow {
  eFeature eBit;
  const char* sBox;
  const char* sFrame;
  const char* sShowBox;
  const char* sTag;  ///< with "chk" where another row's name holds the bare word
};

/// From top to bottom, which is also the order in which the model is read and written.
constexpr std::array kRows = std::to_array<FeatureRow>({
    {kFeatureHomePage, "chkHomePageFeatured", "fraHomePageFeatured", "chkShowHomePageFeatured",
     "HomePageFeatured"},
    {kFeaturePlus, "chkFeaturePlus", "fraFeaturePlus", "chkShowFeaturePlus", "FeaturePlus"},
    {kFeatureHighlight, "chkHighlight", nullptr, "chkShowHighlight", "chkHighlight"},
    {kFeatureItemSubtitle, "chkItemSubtitle", "fraItemSubtitle", "chkShowItemSubtitle",
     "ItemSubtitle"},
    {kFeatureBorder, "chkBorder", "fraBorder", "chkShowBorder", "Border"},
    {kFeatureBold, "chkBold", nullptr, "chkShowBold", "chkBold"},
    {kFeatureGallery, "chkGallery", nullptr, "chkShowGallery", "chkGallery"},
    {kFeatureFeaturedGallery, "chkFeaturedGallery", "fraFeaturedGallery", "chkShowFeaturedGallery",
     "FeaturedGallery"},
    {kFeatureBuyItNow, "chkBuyItNow", "fraBuyItNow", "chkShowBuyItNow", "BuyItNow"},
    {kFeatureScheduledListing, "chkScheduledListing", "fraScheduledListing",
     "chkShowScheduledListing", "ScheduledListing"},
    {kFeatureListIn2Categories, "chkListIn2Categories", "fraListIn2Categories",
     "chkShowListIn2Categories", "ListIn2Categories"},
    {kFeatureSlideShow, "chkSlideShow", nullptr, "chkShowSlideShow", "chkSlideShow"},
    {kFeatureSupersizePictures, "chkSuperSizedPicures", nullptr, "chkShowSuperSizedPictures",
     "chkSuperSizedPicures"},
    {kFeatureListingDesigner, "chkListingDesigner", "fraListingDesigner", "chkShowListingDesigner",
     "ListingDesigner"},
    {kFeatureFeaturedInSearch, "chkFeaturedInSearch", "fraFeaturedInSearch",
     "chkShowFeaturedInSearch", "FeaturedInSearch"},
    {kFeature10DayDuration, "chk10DayDuration", "fra10DayDuration", "chkShow10DayDuration",
     "10DayDuration"},
    {kFeatureListingItem, "chkListingItem", "fraListingItem", "chkShowListingItem", "ListingItem"},
    {kFeatureGiftServices, "chkGiftServices", "fraGiftServices", "chkShowGiftServices",
     "GiftServices"},
    {kFeatureCarAd, "chkCarAd", "fraCarAd", "chkShowCarAd", "CarAd"},
    {kFeaturePreviewPicture, "chkPreviewPicture", "fraPreviewPicture", "chkShowPreviewPicture",
     "PreviewPicture"},
    {kFeaturePicturePack, "chkPicturePack", nullptr, "chkShowPicturePack", "chkPicturePack"},
});

constexpr int kFirstTop = 360;
constexpr int kPitch = 280;
constexpr int kExtraPicturesTop = kFirstTop + static_cast<int>(kRows.size()) * kPitch;
constexpr int kTotalTop = kExtraPicturesTop + kPitch;

constexpr auto kRowControls = std::to_array<ControlDesign>({
    {"lblExtraPictures", kLabel, "Extra Pictures", 120, kExtraPicturesTop, 1215, 255},
    {"txtExtraPictures", kNumber, "", 1440, kExtraPicturesTop, 1215, 255},
    {"lblTotal", kLabel, "Section Total ", 120, kTotalTop, 2535, 255},
    {"imgHeader", kHeader, "Selling Features", 0, 0, 4335, 255, "0"},
});

constexpr std::size_t kFrames = std::count_if(
    kRows.begin(), kRows.end(), [](const FeatureRow& oRow) { return oRow.sFrame != nullptr; });
constexpr std::size_t kShowBoxes = kRows.size() + 2;

constexpr ControlDesign ShowBox(const char* sName, int nTop, const char* sTag) {
  return {sName, kCheckBox, "Show", 2760, nTop, 975, 255, sTag};
}

constexpr auto MakeControls() {
  std::array<ControlDesign, kRows.size() + kFrames + kRowControls.size() + kShowBoxes> aoControls{};
  ControlDesign* pNext = aoControls.data();
  int nTop = kFirstTop;
  for (const FeatureRow& oRow : kRows) {
    if (oRow.sFrame != nullptr) {
      *pNext++ = {oRow.sFrame, kFrame, "", 120, nTop, 2535, 255};
      *pNext++ = {oRow.sBox, kCheckBox, NameOf(oRow.eBit), 0, 0, 2535, 255, "", oRow.sFrame};
    } else {
      *pNext++ = {oRow.sBox, kCheckBox, NameOf(oRow.eBit), 120, nTop, 2535, 255};
    }
    *pNext++ = ShowBox(oRow.sShowBox, nTop, oRow.sTag);
    nTop += kPitch;
  }
  pNext = std::copy(kRowControls.begin(), kRowControls.end(), pNext);
  *pNext++ = ShowBox("chkShowExtraPictures", kExtraPicturesTop, "ExtraPictures");
  *pNext++ = ShowBox("chkShowTotal", kTotalTop, "Total");
  return aoControls;
}

constexpr auto kControls = MakeControls();

constexpr PanelDesign kDesign = {.sTypeName = "ctlSellingFeatures",
                                 .sTitle = "Selling Features",
                                 .sSectionKey = "SellingFeatures",
                                 .sReferenceBox = "chkShowHomePageFeatured",
                                 .sVisibilityList = "SellingFeatures",
                                 .nWidth = 3945,
                                 .nHeight = 6960,
                                 .aoControls = kControls};

struct PictureBounds {
  Single fMin;
  Single fMax;
};

/// The picture pack limits the number of pictures by its first and last tier, under a key that
/// ignores the kind of listing.
PictureBounds BoundsOf(bool bPicturePack) {
  constexpr int kMostPictures = 100;
  if (!bPicturePack) {
    return {0, kMostPictures};
  }
  clsPriceRange oTier;
  Prices().GetRange("PicturePack", 1, oTier, kShopNone);
  const Single fMin = oTier.m_fStart;
  Prices().GetRange("PicturePack", oTier.m_nCount, oTier, kShopNone);
  return {fMin, oTier.m_fEnd};
}

const FeatureRow& RowOf(std::int32_t lFeature) {
  return *std::find_if(kRows.begin(), kRows.end(),
                       [&](const FeatureRow& oRow) { return oRow.eBit == lFeature; });
}

}  // namespace

ctlSellingFeatures::ctlSellingFeatures(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

void ctlSellingFeatures::ApplyFeatures(clsSellingFeatures& oFeatures,
                                       const clsAuctionType* oAuctionType,
                                       const clsOutlay* oOutlay) {
  if (oAuctionType == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The kind of listing isn't known yet.");
  }
  const FlagGuard oApplying(m_bApplying);
  ShowFeatures(oFeatures);
  ShowWhatIsOpen(oFeatures, *oAuctionType);
  ShowSectionTotal(The<Label>("lblTotal"), oFeatures.DoCalc(oAuctionType, oOutlay));
  m_oFeatures = &oFeatures;
}

/// The car ad is left alone: its box feeds the model, but the model never feeds the box.
void ctlSellingFeatures::ShowFeatures(const clsSellingFeatures& oFeatures) {
  for (const FeatureRow& oRow : kRows) {
    if (oRow.eBit != kFeatureCarAd) {
      SetValueOf(oRow.sBox, oFeatures.HasFeature(oRow.eBit) ? 1 : 0);
    }
  }
  The<ctlNumericText>("txtExtraPictures").SetText(std::to_string(oFeatures.m_lExtraImageCount));
}

void ctlSellingFeatures::ShowWhatIsOpen(const clsSellingFeatures& oFeatures,
                                        const clsAuctionType& oAuctionType) {
  for (const FeatureOffer& oOffer : kFeatureOffers) {
    SetControlActive(oOffer.Holds(oFeatures, oAuctionType), *Find(RowOf(oOffer.eBit).sBox), true);
  }
}

void ctlSellingFeatures::UntickCarAd() {
  const FlagGuard oApplying(m_bApplying);
  SetValueOf("chkCarAd", 0);
}

bool ctlSellingFeatures::DropUnticked() {
  bool bAny = false;
  for (const FeatureRow& oRow : kRows) {
    if (m_oFeatures->HasFeature(oRow.eBit) && ValueOf(oRow.sBox) == 0 &&
        (oRow.eBit != kFeatureCarAd || !Find(oRow.sFrame)->Enabled())) {
      m_oFeatures->RemoveFeature(oRow.eBit);
      bAny = true;
    }
  }
  if (bAny) {
    m_oFeatures->m_bDirty = true;
    ShowSectionTotal(The<Label>("lblTotal"), m_oFeatures->DoCalc(nullptr, nullptr));
  }
  return bAny;
}

void ctlSellingFeatures::UpdateModel() {
  if (m_bApplying || m_oFeatures == nullptr) {
    return;
  }
  for (const FeatureRow& oRow : kRows) {
    m_oFeatures->SetFeature(oRow.eBit, ValueOf(oRow.sBox) != 0);
  }
  m_oFeatures->m_lExtraImageCount = RoundToLong(The<ctlNumericText>("txtExtraPictures").Value());
  m_oFeatures->m_bDirty = true;
  ShowSectionTotal(The<Label>("lblTotal"), m_oFeatures->DoCalc(nullptr, nullptr));
  emit Changed();
}

void ctlSellingFeatures::InputClicked(Control& oInput) {
  if (oInput.Name() == "chkPicturePack") {
    SetPictureBounds();
  }
  UpdateModel();
}

/// A click writes all boxes into the model.
std::string ctlSellingFeatures::TipOf(const Control& oInput, const clsCalculate& oAuction) const {
  const auto* const pClicked = std::find_if(
      kRows.begin(), kRows.end(), [&](const FeatureRow& o) { return o.sBox == oInput.Name(); });
  if (pClicked == kRows.end()) {
    return {};
  }
  std::int32_t lTicked = 0;
  for (const FeatureRow& oRow : kRows) {
    lTicked |= ValueOf(oRow.sBox) != 0 ? oRow.eBit : 0;
  }
  const bool bChosen = ValueOf(pClicked->sBox) != 0;
  return FeatureTip(
      oAuction, pClicked->eBit, bChosen,
      ChooseFeatures(lTicked ^ pClicked->eBit,
                     PicturesWith(pClicked->eBit == kFeaturePicturePack && !bChosen)));
}

std::int32_t ctlSellingFeatures::PicturesWith(bool bNewPicturePack) const {
  const Single fCount = The<ctlNumericText>("txtExtraPictures").Value();
  const PictureBounds oBounds = BoundsOf(bNewPicturePack);
  return RoundToLong(bNewPicturePack && oBounds.fMin < oBounds.fMax
                         ? std::clamp<double>(fCount, oBounds.fMin, oBounds.fMax)
                         : double{fCount});
}

void ctlSellingFeatures::SetPictureBounds() {
  auto& oCount = The<ctlNumericText>("txtExtraPictures");
  const bool bPicturePack = ValueOf("chkPicturePack") != 0;
  const PictureBounds oBounds = BoundsOf(bPicturePack);
  oCount.SetMin(oBounds.fMin);
  oCount.SetMax(oBounds.fMax);
  if (bPicturePack && (oCount.Min() > oCount.Value() || oCount.Max() < oCount.Value())) {
    oCount.SetValue(oCount.Value());
  }
}

void ctlSellingFeatures::FollowSchedule() {
  if (ValueOf("chkPicturePack") != 0) {
    IgnoreFailure([this] {
      const PictureBounds oBounds = BoundsOf(true);
      The<ctlNumericText>("txtExtraPictures").SetMin(oBounds.fMin);
      The<ctlNumericText>("txtExtraPictures").SetMax(oBounds.fMax);
    });
  }
}

/// Here the Show boxes follow their rows in normal mode too.
void ctlSellingFeatures::AfterPlacing(const Control& oPlaced) {
  const auto pBox = std::find_if(Controls().begin(), Controls().end(), [&](const Control* p) {
    return IsShowCheck(*p) && oPlaced.Name().find(p->Tag()) != std::string::npos;
  });
  if (pBox != Controls().end() && (*pBox)->Container() == this) {
    (*pBox)->SetTop(oPlaced.Top());
  }
}

}  // namespace quillet
