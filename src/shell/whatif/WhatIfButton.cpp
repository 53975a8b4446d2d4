#include "shell/whatif/WhatIfButton.h"

#include <QKeySequence>

#include "controls/layout.h"

namespace quillet {

ImageButton* MakeWhatIfButton(QWidget* pParent) {
  auto* const pButton = Make<ImageButton>("imgWhatIf", pParent);
  const QString sKey = QKeySequence(kWhatIfKey).toString(QKeySequence::NativeText);
  pButton->SetCaption("What if…");
  pButton->setToolTip(
      QString("Break-even, where the money goes, and ways to list side by side (%1)").arg(sKey));
  pButton->setAccessibleName("What if");
  pButton->setFocusPolicy(Qt::TabFocus);
  return pButton;
}

}  // namespace quillet
