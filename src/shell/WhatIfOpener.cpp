#include "shell/WhatIfOpener.h"

#include "base/failure.h"
#include "shell/ctlCalculator.h"
#include "shell/ctlWizard.h"
#include "shell/formPosition.h"

namespace quillet {

WhatIfOpener::WhatIfOpener(ctlCalculator* pCalculator, ctlWizard* pWizard, QWidget* pOwner)
    : m_pCalculator(pCalculator), m_pWizard(pWizard), m_pOwner(pOwner) {
  const auto fnOpen = [this] { IgnoreFailure([this] { Open(); }); };
  connect(m_pCalculator, &ctlCalculator::WhatIfClicked, this, fnOpen);
  connect(m_pCalculator, &ctlCalculator::Shown, this, &WhatIfOpener::Follow);
  connect(m_pWizard, &ctlWizard::WhatIfClicked, this, fnOpen);
  connect(m_pWizard, &ctlWizard::Shown, this, &WhatIfOpener::Follow);
}

void WhatIfOpener::Open() {
  ctlNumericText::CommitFocused();
  if (m_frmWhatIf == nullptr) {
    m_frmWhatIf = std::make_unique<frmWhatIf>(static_cast<AuctionView&>(*this), m_pOwner);
    connect(m_frmWhatIf.get(), &frmWhatIf::Entered, this, &WhatIfOpener::EnterTyping);
  }
  m_frmWhatIf->Open();
}

/// A box of the owner keeps its focus, and what was typed, while another window is active.
void WhatIfOpener::EnterTyping() {
  if (m_pOwner->focusWidget() == nullptr) {
    return;
  }
  if (auto* const pBox = qobject_cast<ctlNumericText*>(m_pOwner->focusWidget()->parent())) {
    pBox->CommitTyping();
  }
}

void WhatIfOpener::Follow() {
  if (m_frmWhatIf != nullptr) {
    m_frmWhatIf->Follow();
  }
}

clsCalculate& WhatIfOpener::AuctionOnView() {
  return m_pWizard->Visible() ? WorkingAuction() : m_pCalculator->Document();
}

void WhatIfOpener::ShowChanged(bool bReact) {
  SectionSet& oSet = m_pWizard->Visible() ? m_pWizard->Set() : m_pCalculator->Set();
  oSet.ShowChanged(AuctionOnView(), bReact);
}

void WhatIfOpener::Rescale() {
  if (m_frmWhatIf != nullptr) {
    m_frmWhatIf->Rescale();
  }
}

void WhatIfOpener::StorePlace() const {
  if (m_frmWhatIf != nullptr && m_frmWhatIf->isVisible()) {
    SaveFormPosition(*m_frmWhatIf);
  }
}

void WhatIfOpener::Close() {
  if (m_frmWhatIf != nullptr) {
    m_frmWhatIf->close();
  }
}

}  // namespace quillet
