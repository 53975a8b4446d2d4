#include "controls/ScrollBar.h"

namespace quillet {

ScrollBar::ScrollBar(QWidget* pParent)
    : QScrollBar(Qt::Vertical, pParent), Control(static_cast<QWidget&>(*this)) {
  setTracking(false);
}

}  // namespace quillet
