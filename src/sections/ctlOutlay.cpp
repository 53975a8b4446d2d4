#include "sections/ctlOutlay.h"

#include <array>

#include "base/FlagGuard.h"
#include "base/conversions.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

using enum ControlKind;

// The tax box, which only one region has, comes before its row-mates.
constexpr std::array kControls = std::to_array<ControlDesign>({
    {"chkOutlayInclTax", kCheckBox, "Add Tax", 3480, 360, 1095, 255},
    {"txtQuantity", kNumber, "", 1800, 1480, 1575, 285},
    {"txtEstimatedEndPrice", kMoney, "", 1800, 1200, 1575, 285},
    {"txtReservePrice", kMoney, "", 1800, 920, 1575, 285},
    {"txtStartingPrice", kMoney, "", 1800, 640, 1575, 285},
    {"txtOutlay", kMoney, "", 1800, 360, 1575, 285},
    {"chkShowQuantity", kCheckBox, "Show", 4680, 1480, 855, 255, "Quantity"},
    {"chkShowEstimatedEndPrice", kCheckBox, "Show", 4680, 1200, 855, 255, "Estimate"},
    {"chkShowReservePrice", kCheckBox, "Show", 4680, 920, 855, 255, "Reserve"},
    {"chkShowStartingPrice", kCheckBox, "Show", 4680, 640, 855, 255, "Start"},
    {"chkShowOutlay", kCheckBox, "Show", 4680, 360, 855, 255, "Outlay"},
    {"imgHeader", kHeader, "Outlay", 0, 0, 4335, 255, "0"},
    {"lblQuantity", kLabel, "Quantity", 0, 1480, 1695, 255},
    {"lblEstimatedEndPrice", kLabel, "Estimated End Price", 0, 1200, 1695, 255},
    {"lblReservePrice", kLabel, "Reserve Price", 0, 920, 1695, 255},
    {"lblStartingPrice", kLabel, "Starting Price", 0, 640, 1695, 255},
    {"lblOutlay", kLabel, "Outlay", 0, 360, 1695, 255},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlOutlay",
                                 .sTitle = "Outlay",
                                 .sSectionKey = "Outlay",
                                 .sReferenceBox = "chkShowOutlay",
                                 .bRowsByLabel = true,
                                 .nWidth = 5685,
                                 .nHeight = 1845,
                                 .aoControls = kControls};

}  // namespace

ctlOutlay::ctlOutlay(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

/// The tax box is left alone: it feeds the model, but the model never feeds the box.
void ctlOutlay::ApplyOutlay(clsOutlay& oOutlay, const clsAuctionType* oAuctionType) {
  const FlagGuard oApplying(m_bApplying);
  m_oAuctionType = oAuctionType != nullptr ? oAuctionType : m_oAuctionType;
  The<ctlNumericText>("txtOutlay").SetText(SingleText(oOutlay.m_fOutlay));
  The<ctlNumericText>("txtStartingPrice").SetText(SingleText(oOutlay.m_fStartingPrice));
  The<ctlNumericText>("txtReservePrice").SetText(SingleText(oOutlay.m_fReservePrice));
  The<ctlNumericText>("txtEstimatedEndPrice").SetText(SingleText(oOutlay.m_fEstimatedEndPrice));
  The<ctlNumericText>("txtQuantity").SetText(std::to_string(oOutlay.m_lQuantity));
  if (m_oAuctionType == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The kind of listing isn't known yet.");
  }
  const bool bFixedPrice = m_oAuctionType->m_bBuyItNowOnly;
  SetRowCaption(The<Label>("lblEstimatedEndPrice"),
                bFixedPrice ? "Buy it Now Price" : "Estimated End Price");
  for (const char* const sName :
       {"lblStartingPrice", "txtStartingPrice", "lblReservePrice", "txtReservePrice"}) {
    SetControlActive(!bFixedPrice, *Find(sName), false);
  }
  m_oOutlay = &oOutlay;
}

void ctlOutlay::UpdateModel() {
  if (m_bApplying || m_oOutlay == nullptr) {
    return;
  }
  m_oOutlay->m_fEstimatedEndPrice = The<ctlNumericText>("txtEstimatedEndPrice").Value();
  m_oOutlay->m_fOutlay = The<ctlNumericText>("txtOutlay").Value();
  m_oOutlay->m_fReservePrice = The<ctlNumericText>("txtReservePrice").Value();
  m_oOutlay->m_fStartingPrice = The<ctlNumericText>("txtStartingPrice").Value();
  m_oOutlay->m_lQuantity = RoundToLong(The<ctlNumericText>("txtQuantity").Value());
  m_oOutlay->m_bAddTax = ValueOf("chkOutlayInclTax") != 0;
  m_oOutlay->m_bDirty = true;
  emit Changed();
}

}  // namespace quillet
