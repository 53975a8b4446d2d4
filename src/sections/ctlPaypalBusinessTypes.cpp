#include "sections/ctlPaypalBusinessTypes.h"

#include <array>

#include "sections/controlHelpers.h"

namespace quillet {
namespace {

using enum ControlKind;

constexpr std::array kControls = std::to_array<ControlDesign>({
    {"optBand1", kOption, "Band 1", 0, 0, 1575, 255, "BusinessRateBand1"},
    {"optBand2", kOption, "Band 2", 0, 280, 1575, 255, "BusinessRateBand2"},
    {"optBand3", kOption, "Band 3", 0, 560, 1575, 255, "BusinessRateBand3"},
    {"optBand4", kOption, "Band 4", 0, 840, 1575, 255, "BusinessRateBand4"},
    {"optBand5", kOption, "Band 5", 0, 1120, 1575, 255, "BusinessRateBand5"},
    {"chkShowBusinessRateBand1", kCheckBox, "Show", 1920, 0, 975, 255, "Band1"},
    {"chkShowBusinessRateBand2", kCheckBox, "Show", 1920, 280, 975, 255, "Band2"},
    {"chkShowBusinessRateBand3", kCheckBox, "Show", 1920, 560, 975, 255, "Band3"},
    {"chkShowBusinessRateBand4", kCheckBox, "Show", 1920, 840, 975, 255, "Band4"},
    {"chkShowBusinessRateBand5", kCheckBox, "Show", 1920, 1120, 975, 255, "Band5"},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlPaypalBusinessTypes",
                                 .sTitle = "Business Rate",
                                 .sSectionKey = "PayPalBusinessTypes",
                                 .sReferenceBox = "chkShowBusinessRateBand1",
                                 .sVisibilityList = "PayPalBusinessTypes",
                                 .bAddingComplete = true,
                                 .nWidth = 2955,
                                 .nHeight = 1740,
                                 .aoControls = kControls};

constexpr std::array kBands = std::to_array<OptionCode>(
    {{"optBand1", 1}, {"optBand2", 2}, {"optBand3", 3}, {"optBand4", 4}, {"optBand5", 5}});

}  // namespace

ctlPaypalBusinessTypes::ctlPaypalBusinessTypes(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

/// A band that changes here is written back by its click, which comes here again: until no option
/// changes.
void ctlPaypalBusinessTypes::ApplyFeatures(clsPayPal& oPayPal) {
  m_oPayPal = &oPayPal;
  SetChosen(kBands, oPayPal.m_nBusinessBand);
  for (const OptionCode& oBand : kBands) {
    Control& oOption = *Find(oBand.sOption);
    SetControlActive(oPayPal.CanHaveMerchantRate(), oOption, false);
    std::int32_t nBand = oBand.nCode;
    SetRowCaption(oOption, QString::fromStdString(oPayPal.GetBusinessRateBandAttribute(0, nBand)));
  }
}

void ctlPaypalBusinessTypes::UpdateModel() {
  if (m_oPayPal == nullptr) {
    return;
  }
  m_oPayPal->m_nBusinessBand = ChosenOf(kBands, m_oPayPal->m_nBusinessBand);
  m_oPayPal->m_bDirty = true;
  ApplyFeatures(*m_oPayPal);
  emit Changed();
}

}  // namespace quillet
