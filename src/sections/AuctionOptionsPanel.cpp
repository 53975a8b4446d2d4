#include "sections/AuctionOptionsPanel.h"

#include "sections/controlHelpers.h"

namespace quillet {

AuctionOptionsPanel::AuctionOptionsPanel(const AuctionOptions& oOptions, QWidget* pParent)
    : SectionPanel(oOptions.oDesign, pParent), m_oOptions(oOptions) {}

/// No write is guarded: a click that it raises comes back here until nothing changes any more. So a
/// greyed check box must never be ticked: greying would untick it, and its click would tick it
/// again.
void AuctionOptionsPanel::ApplyAuctionType(clsAuctionType& oAuctionType) {
  m_oAuctionType = &oAuctionType;
  for (const OptionRow& oRow : m_oOptions.aoRows) {
    auto& oInput = The<Choice>(oRow.sName);
    const bool bChosen = oAuctionType.*m_oOptions.m_lField == oRow.nValue;
    const bool bStays =
        m_oOptions.fnActive(oAuctionType) || dynamic_cast<CheckBox*>(&oInput) == nullptr;
    oInput.SetValue(bChosen && bStays ? 1 : 0);
  }
  for (const OptionRow& oRow : m_oOptions.aoRows) {
    SetControlActive(m_oOptions.fnActive(oAuctionType), *Find(oRow.sName), false);
  }
}

void AuctionOptionsPanel::UpdateModel() {
  if (m_oAuctionType == nullptr) {
    return;
  }
  for (const OptionRow& oRow : m_oOptions.aoRows) {
    if (ValueOf(oRow.sName) != 0) {
      m_oAuctionType->*m_oOptions.m_lField = oRow.nValue;
    }
  }
  m_oAuctionType->m_bDirty = true;
  ApplyAuctionType(*m_oAuctionType);
  emit Changed();
}

}  // namespace quillet
