#include "sections/ctlRealEstateOptions.h"

#include <array>

#include "answers/tips.h"
#include "sections/AuctionOptionsPanel.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

using enum ControlKind;

constexpr std::array kInnerPanels = {"ctlRealEstateOptionsLand1", "ctlRealEstateOptionsSale1"};

constexpr std::array kControls = std::to_array<ControlDesign>({
    {"ctlRealEstateOptionsLand1", kSubControl, "", 0, 0, 2775, 560, "", nullptr,
     MakeOptions<ctlRealEstateOptionsLand>},
    {"ctlRealEstateOptionsSale1", kSubControl, "", 0, 560, 2775, 1120, "", nullptr,
     MakeOptions<ctlRealEstateOptionsSale>},
    {"chkRealEstateBinding", kCheckBox, "Binding", 0, 1680, 1575, 255},
    {"chkShowRealEstateBinding", kCheckBox, "Show", 1800, 1680, 855, 255, "RealEstateBinding"},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlRealEstateOptions",
                                 .sTitle = "Real Estate",
                                 .sSectionKey = "RealEstateOptions",
                                 .sReferenceBox = "chkShowRealEstateBinding",
                                 .sVisibilityList = "RealEstateOptions",
                                 .bAddingComplete = true,
                                 .nWidth = 2760,
                                 .nHeight = 2010,
                                 .aoControls = kControls};

}  // namespace

ctlRealEstateOptions::ctlRealEstateOptions(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

/// No write is guarded. In particular a greyed box is unticked, and its click clears the listing's
/// flag too.
void ctlRealEstateOptions::ApplyAuctionType(clsAuctionType& oAuctionType) {
  m_oAuctionType = &oAuctionType;
  for (const char* const sName : kInnerPanels) {
    The<AuctionOptionsPanel>(sName).ApplyAuctionType(oAuctionType);
  }
  SetValueOf("chkRealEstateBinding", oAuctionType.m_bRealEstateBinding ? 1 : 0);
  SetControlActive(IsRealEstate(oAuctionType), *Find("chkRealEstateBinding"), false);
}

void ctlRealEstateOptions::UpdateModel() {
  if (m_oAuctionType == nullptr) {
    return;
  }
  m_oAuctionType->m_bRealEstateBinding = ValueOf("chkRealEstateBinding") != 0;
  m_oAuctionType->m_bDirty = true;
  ApplyAuctionType(*m_oAuctionType);
  emit Changed();
}

std::string ctlRealEstateOptions::TipOf(const Control& oInput, const clsCalculate& oAuction) const {
  const std::string sName = WordsOf(oInput).toStdString();
  if (oInput.Name() != "chkRealEstateBinding") {
    return {};
  }
  if (!IsRealEstate(oAuction.m_oAuctionType)) {
    return NotOnOfferTip(sName);
  }
  const bool bChosen = ValueOf("chkRealEstateBinding") != 0;
  return ListingTip(oAuction, sName, bChosen, BindTheBid(!bChosen));
}

/// The inner panels have no Show boxes, and would be rows that no list names.
bool ctlRealEstateOptions::AddOwnNames(clsTokeniser& oList) const {
  bool bAdded = false;
  for (const char* const sName : kInnerPanels) {
    if (!oList.Exists(sName, false)) {
      oList.AddToArray(sName);
      bAdded = true;
    }
  }
  return bAdded;
}

}  // namespace quillet
