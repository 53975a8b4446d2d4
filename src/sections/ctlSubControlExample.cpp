#include "sections/ctlSubControlExample.h"

namespace quillet {
namespace {

constexpr std::array kRows = std::to_array<OptionRow>({
    {"chkCheck1", "Check1", 0, 1575, kRealEstateTimeshare, "chkShowCheck1", "Check1"},
    {"chkCheck2", "Check2", 280, 1575, kRealEstateOther, "chkShowCheck2", "Check2"},
});
constexpr std::array kControls = OptionControls(kRows, ControlKind::kCheckBox, 2040, 975);

constexpr PanelDesign kDesign = {.sTypeName = "ctlSubControlExample",
                                 .sTitle = "Example",
                                 .sSectionKey = "EXAMPLE_SUB_CONTROL",
                                 .sReferenceBox = "chkShowCheck1",
                                 .sVisibilityList = "EXAMPLE_SUB_CONTROL",
                                 .bAddingComplete = true,
                                 .bRowsByLabel = false,
                                 .nWidth = 3135,
                                 .nHeight = 930,
                                 .aoControls = kControls};

constexpr AuctionOptions kOptions = {
    .m_lField = &clsAuctionType::m_eRealEstateType, .fnActive = IsRealEstate, .aoRows = kRows};

}  // namespace

ctlSubControlExample::ctlSubControlExample(QWidget* pParent)
    : AuctionOptionsPanel(kDesign, kOptions, pParent) {}

}  // namespace quillet
