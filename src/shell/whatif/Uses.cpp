#include "shell/whatif/Uses.h"

namespace quillet {
void Uses::Use(clsCalculate& oAuction, const Change& oChange) {
  m_bSaved = CanUndo() && (m_bSaved || !oAuction.IsDirty());
  m_apKept.push_back(std::make_unique<KeptAuction>(oAuction));
  m_oAuction = &oAuction;
  oChange(oAuction);
}

void Uses::Done(clsCalculate& oAuction) {
  m_pLeft = std::make_unique<KeptAuction>(oAuction);
}

void Uses::Follow(clsCalculate& oAuction) {
  if (CanUndo() && (m_oAuction != &oAuction || !m_pLeft->IsUnchanged())) {
    m_apKept.clear();
  }
}

void Uses::Undo() {
  m_bSaved = m_bSaved || !m_oAuction->IsDirty();
  m_apKept.back()->PutBack();
  m_apKept.pop_back();
  if (m_bSaved) {
    m_oAuction->SetDirty(true);
  }
}

}  // namespace quillet
