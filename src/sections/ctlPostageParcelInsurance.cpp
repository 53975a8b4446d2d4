#include "sections/ctlPostageParcelInsurance.h"

#include <array>

#include "sections/controlHelpers.h"

namespace quillet {
namespace {

using enum ControlKind;

constexpr std::array kControls = std::to_array<ControlDesign>({
    {"optBand1", kOption, "up to ", 0, 0, 1335, 255},
    {"optBand2", kOption, "up to ", 0, 285, 1335, 255},
    {"optBand3", kOption, "up to ", 0, 555, 1335, 255},
    {"optBand4", kOption, "up to ", 0, 840, 1335, 255},
    {"chkShowBand1", kCheckBox, "Show", 1560, 0, 855, 255, "Band1"},
    {"chkShowBand2", kCheckBox, "Show", 1560, 280, 855, 255, "Band2"},
    {"chkShowBand3", kCheckBox, "Show", 1560, 560, 855, 255, "Band3"},
    {"chkShowBand4", kCheckBox, "Show", 1560, 840, 855, 255, "Band4"},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlPostageParcelInsurance",
                                 .sTitle = "Parcel Insurance",
                                 .sSectionKey = "PostageParcelInsurance",
                                 .sReferenceBox = "chkShowBand1",
                                 .sVisibilityList = "PostageParcelInsurance",
                                 .bAddingComplete = true,
                                 .nWidth = 2745,
                                 .nHeight = 1470,
                                 .aoControls = kControls};

constexpr std::array kBands =
    std::to_array<OptionCode>({{"optBand1", 0}, {"optBand2", 1}, {"optBand3", 2}, {"optBand4", 3}});

}  // namespace

ctlPostageParcelInsurance::ctlPostageParcelInsurance(QWidget* pParent)
    : SectionPanel(kDesign, pParent) {}

/// A band that changes here is written back by its click, which comes here again: until no option
/// changes.
void ctlPostageParcelInsurance::ApplyAuctionType(clsPostage& oPostage) {
  m_oPostage = &oPostage;
  SetChosen(kBands, oPostage.m_eInsuranceBand);
  for (const OptionCode& oBand : kBands) {
    Control& oOption = *Find(oBand.sOption);
    SetControlActive(oPostage.CanHaveInsurance(oBand.nCode), oOption, false);
    PriceKey oKey("InsuranceBandName");  // its numbers are one above the bands'
    SetRowCaptionBySchedule(oOption, oKey.Append(oBand.nCode + 1));
  }
}

void ctlPostageParcelInsurance::UpdateModel() {
  if (m_oPostage == nullptr) {
    return;
  }
  std::int32_t& eBand = m_oPostage->m_eInsuranceBand;
  eBand = ChosenOf(kBands, eBand);
  while (!m_oPostage->CanHaveInsurance(eBand)) {
    eBand = clsPostage::GetNextInsurance(eBand);
  }
  m_oPostage->m_bDirty = true;
  ApplyAuctionType(*m_oPostage);
  emit Changed();
}

}  // namespace quillet
