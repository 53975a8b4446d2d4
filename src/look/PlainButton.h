// What the program's own buttons have in common.
#pragma once

#include <QAbstractButton>
#include <QKeyEvent>

namespace quillet {

/// Works with the mouse, Space and Enter; holding Enter down clicks it once.
class PlainButton : public QAbstractButton {
 public:
  explicit PlainButton(QWidget* pParent) : QAbstractButton(pParent) { setAttribute(Qt::WA_Hover); }

 protected:
  void keyPressEvent(QKeyEvent* pEvent) override {
    if (pEvent->key() != Qt::Key_Return && pEvent->key() != Qt::Key_Enter) {
      QAbstractButton::keyPressEvent(pEvent);
    } else if (!pEvent->isAutoRepeat()) {
      click();
    }
  }
};

}  // namespace quillet
