#include "sections/ctlRealEstateOptionsLand.h"

namespace quillet {
namespace {

constexpr std::array kRows = std::to_array<OptionRow>({
    {"optRealEstateTimeShare", "T'share && Land", 0, 1455, kRealEstateTimeshare,
     "chkShowRealEstateTimeShare", "TimeShare"},
    {"optRealEstateOther", "All Other", 280, 1455, kRealEstateOther, "chkShowRealEstateOther",
     "RealEstateOther"},
});
constexpr std::array kControls = OptionControls(kRows, ControlKind::kOption, 1800, 855);

constexpr PanelDesign kDesign = {.sTypeName = "ctlRealEstateOptionsLand",
                                 .sTitle = "Real Estate Type",
                                 .sSectionKey = "RealEstateLandOptions",
                                 .sReferenceBox = "chkShowRealEstateTimeShare",
                                 .sVisibilityList = "RealEstateLandOptions",
                                 .bAddingComplete = true,
                                 .bRowsByLabel = false,
                                 .nWidth = 2730,
                                 .nHeight = 915,
                                 .aoControls = kControls};

constexpr AuctionOptions kOptions = {
    .m_lField = &clsAuctionType::m_eRealEstateType, .fnActive = IsRealEstate, .aoRows = kRows};

}  // namespace

ctlRealEstateOptionsLand::ctlRealEstateOptionsLand(QWidget* pParent)
    : AuctionOptionsPanel(kDesign, kOptions, pParent) {}

}  // namespace quillet
