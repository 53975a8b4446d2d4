// The profit, large, with its percentage smaller behind it.
#pragma once

#include "sections/Controls.h"

namespace quillet {

/// Shrinks what doesn't fit, so that the largest profit is shown whole.
class GrandTotal : public Label {
 public:
  explicit GrandTotal(QWidget* pParent) : Label(pParent) {}

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return 0; }
  void paintEvent(QPaintEvent* pEvent) override;
};

}  // namespace quillet
