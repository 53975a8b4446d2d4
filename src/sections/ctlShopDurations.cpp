#include "sections/ctlShopDurations.h"

namespace quillet {
namespace {

constexpr std::array kRows = std::to_array<OptionRow>({
    {"optShop30Days", "30 Days", 0, 1455, kShop30Days, "chkShowShop30Days", "Shop30Days"},
    {"optShop60Days", "60 Days", 280, 1455, kShop60Days, "chkShowShop60Days", "Shop60Days"},
    {"optShop90Days", "90 Days", 560, 1455, kShop90Days, "chkShowShop90Days", "Shop90Days"},
    {"optShop120Days", "120 Days", 840, 1455, kShop120Days, "chkShowShop120Days", "Shop120Days"},
    {"optShopGoodTillCancelled", "Good T.C.", 1120, 1455, kShopGoodTillCancelled,
     "chkShowShopGoodTillCancelled", "ShopGoodTillCancelled"},
});
constexpr std::array kControls = OptionControls(kRows, ControlKind::kOption, 1800, 975);

// The visibility list is the section's, not the panel's own; the packing after it has the last
// word.
constexpr PanelDesign kDesign = {.sTypeName = "ctlShopDurations",
                                 .sTitle = "Shop Duration",
                                 .sSectionKey = "ShopDuration",
                                 .sReferenceBox = "chkShowShop30Days",
                                 .sVisibilityList = "AuctionType",
                                 .bAddingComplete = true,
                                 .bRowsByLabel = false,
                                 .nWidth = 2760,
                                 .nHeight = 1575,
                                 .aoControls = kControls};

constexpr AuctionOptions kOptions = {
    .m_lField = &clsAuctionType::m_eShopDuration,
    .fnActive = [](const clsAuctionType& o) { return o.m_bShopInventory; },
    .aoRows = kRows};

}  // namespace

ctlShopDurations::ctlShopDurations(QWidget* pParent)
    : AuctionOptionsPanel(kDesign, kOptions, pParent) {}

}  // namespace quillet
