// A vertical scroll bar.
#pragma once

#include <QScrollBar>

#include "controls/Control.h"

namespace quillet {

/// Raises valueChanged() when a drag of its thumb ends, and otherwise at each step.
class ScrollBar : public QScrollBar, public Control {
 public:
  explicit ScrollBar(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "VScrollBar"; }
};

}  // namespace quillet
