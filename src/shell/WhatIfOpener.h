// Opens the what-if window beside the main one, and has it follow the auction on view there.
#pragma once

#include <QObject>
#include <memory>

#include "shell/frmWhatIf.h"

namespace quillet {

class ctlCalculator;
class ctlWizard;

class WhatIfOpener : public QObject, private AuctionView {
  Q_OBJECT

 public:
  /// The window belongs to `pOwner`, which holds the two views. Nothing else is owned.
  WhatIfOpener(ctlCalculator* pCalculator, ctlWizard* pWizard, QWidget* pOwner);

  /// Shows the window, or brings it to the front.
  void Open();

  // Nothing to do while the window is closed.
  void Rescale();
  void StorePlace() const;
  void Close();

 private:
  // AuctionView
  [[nodiscard]] clsCalculate& AuctionOnView() override;
  void ShowChanged(bool bReact) override;

  void EnterTyping();
  void Follow();

  ctlCalculator* m_pCalculator;
  ctlWizard* m_pWizard;
  QWidget* m_pOwner;
  std::unique_ptr<frmWhatIf> m_frmWhatIf;  ///< since it was first opened
};

}  // namespace quillet
