// Says why the fee schedule can't price some sale.
#pragma once

#include "controls/Controls.h"

namespace quillet {

/// One line beside the summary, in the colour of a warning; hidden while nothing is missing. It is
/// right-aligned, and its tooltip shows what doesn't fit.
class MissingPriceLine : public Label {
 public:
  explicit MissingPriceLine(QWidget* pParent);

  /// Checks the program's fee schedule again.
  void Refresh();

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return 0; }  // it stays within its place
  void paintEvent(QPaintEvent* pEvent) override;
};

}  // namespace quillet
