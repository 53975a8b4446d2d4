#include "sections/ctlRealEstateOptionsSale.h"

namespace quillet {
namespace {

constexpr std::array kRows = std::to_array<OptionRow>({
    {"optRealEstate10DayAuction", "1-10 Day Auction", 0, 1575, kSaleAuction10,
     "chkShowRealEstate10DayAuction", "10DayAuction"},
    {"optRealEstate30DayAuction", "30 Day Auction", 280, 1455, kSaleAuction30,
     "chkShowRealEstate30DayAuction", "30DayAuction"},
    {"optRealEstate30DayAd", "30 Day Ad", 560, 1455, kSaleAdvert30, "chkShowRealEstate30DayAd",
     "30DayAd"},
    {"optRealEstate90DayAd", "90 Day Ad", 840, 1575, kSaleAdvert90, "chkShowRealEstate90DayAd",
     "90DayAd"},
});
constexpr std::array kControls = OptionControls(kRows, ControlKind::kOption, 1800, 855);

constexpr PanelDesign kDesign = {.sTypeName = "ctlRealEstateOptionsSale",
                                 .sTitle = "Real Estate Sale",
                                 .sSectionKey = "RealEstateSaleOptions",
                                 .sReferenceBox = "chkShowRealEstate10DayAuction",
                                 .sVisibilityList = "RealEstateSaleOptions",
                                 .bAddingComplete = true,
                                 .bRowsByLabel = false,
                                 .nWidth = 2670,
                                 .nHeight = 1365,
                                 .aoControls = kControls};

constexpr AuctionOptions kOptions = {.m_lField = &clsAuctionType::m_eRealEstateSaleFormat,
                                     .fnActive = IsRealEstate,
                                     .aoRows = kRows};

}  // namespace

ctlRealEstateOptionsSale::ctlRealEstateOptionsSale(QWidget* pParent)
    : AuctionOptionsPanel(kDesign, kOptions, pParent) {}

}  // namespace quillet
