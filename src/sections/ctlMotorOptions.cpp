#include "sections/ctlMotorOptions.h"

namespace quillet {
namespace {

constexpr std::array kRows = std::to_array<OptionRow>({
    {"optPassenger", "Passenger Vhcl", 0, 1575, kMotorPassenger, "chkShowPassenger", "Passenger"},
    {"optMotorcycle", "Motorcycle", 280, 1575, kMotorMotorcycle, "chkShowMotorcycle", "Motorcycle"},
    {"optPowersports", "Powersports", 560, 1575, kMotorPowersports, "chkShowPowersports",
     "Powersports"},
    {"optPocketBikes", "Pocket Bikes", 840, 1575, kMotorPocketBikes, "chkShowPocketBikes",
     "PocketBikes"},
    {"optOtherVehicle", "Other Vehicle", 1120, 1575, kMotorOther, "chkShowOtherVehicle",
     "OtherVehicle"},
    {"optParts", "Parts && Accsr's", 1400, 1575, kMotorParts, "chkShowParts", "Parts"},
});
constexpr std::array kControls = OptionControls(kRows, ControlKind::kOption, 1800, 855);

// The visibility list is the section's, not the panel's own; the packing after it has the last
// word.
constexpr PanelDesign kDesign = {.sTypeName = "ctlMotorOptions",
                                 .sTitle = "Vehicle",
                                 .sSectionKey = "MotorTypes",
                                 .sReferenceBox = "chkShowPassenger",
                                 .sVisibilityList = "AuctionType",
                                 .bAddingComplete = true,
                                 .bRowsByLabel = false,
                                 .nWidth = 2760,
                                 .nHeight = 1680,
                                 .aoControls = kControls};

constexpr AuctionOptions kOptions = {
    .m_lField = &clsAuctionType::m_eMotorType,
    .fnActive = [](const clsAuctionType& o) { return o.m_eAuctionType == kAuctionMotor; },
    .aoRows = kRows};

}  // namespace

ctlMotorOptions::ctlMotorOptions(QWidget* pParent)
    : AuctionOptionsPanel(kDesign, kOptions, pParent) {}

}  // namespace quillet
