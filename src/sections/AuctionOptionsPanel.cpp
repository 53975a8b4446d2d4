#include "sections/AuctionOptionsPanel.h"

#include <algorithm>

#include "answers/tips.h"
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
    const bool bOnOffer = m_oOptions.IsOnOffer(oRow.nValue);
    Control& oInput = *Find(oRow.sName);
    SetControlActive(bOnOffer && m_oOptions.fnActive(oAuctionType), oInput, false);
    oInput.SetEnabled(bOnOffer);
  }
}

std::string AuctionOptionsPanel::TipOf(const Control& oInput, const clsCalculate& oAuction) const {
  const auto pRow =
      std::find_if(m_oOptions.aoRows.begin(), m_oOptions.aoRows.end(),
                   [&](const OptionRow& oRow) { return oRow.sName == oInput.Name(); });
  if (pRow == m_oOptions.aoRows.end()) {
    return {};
  }
  const std::string sName = WordsOf(oInput).toStdString();
  if (!m_oOptions.fnActive(oAuction.m_oAuctionType) || !m_oOptions.IsOnOffer(pRow->nValue)) {
    return NotOnOfferTip(sName);
  }
  const bool bChosen = ValueOf(pRow->sName) != 0;
  return ListingTip(oAuction, sName, bChosen,
                    bChosen ? Change() : ListWith(m_oOptions.m_lField, pRow->nValue));
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
