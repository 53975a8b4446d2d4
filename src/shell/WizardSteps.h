// Shows the current step of the wizard: a row of numbered dots with the steps' names.
#pragma once

#include <QStringList>
#include <QWidget>

#include "controls/Control.h"

namespace quillet {

class WizardSteps : public QWidget, public Control {
 public:
  explicit WizardSteps(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "WizardSteps"; }

  void SetSteps(const QStringList& asNames) { m_asNames = asNames; }

  /// Counted from 0. The steps before it are shown as done.
  void SetCurrent(int nCurrent);

  /// "Step 2 of 5 · Outlay", which is also shown instead if there isn't enough room.
  [[nodiscard]] QString Caption() const override;

 protected:
  void paintEvent(QPaintEvent* pEvent) override;

 private:
  [[nodiscard]] double WidthOf(int nStep) const;
  void DrawStep(QPainter& oPainter, int nStep, double fLeft) const;
  void DrawDot(QPainter& oPainter, int nStep, const QRectF& oDot) const;

  QStringList m_asNames;
  int m_nCurrent = 0;
};

}  // namespace quillet
