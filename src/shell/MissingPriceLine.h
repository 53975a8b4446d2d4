// Tells what keeps the fee schedule from pricing some sale.
#pragma once

#include "controls/Controls.h"

namespace quillet {

/// One line beside the summary, in the colour of a warning; gone while nothing is missing. It ends
/// at the right, and what its place can't hold is in its tooltip.
class MissingPriceLine : public Label {
 public:
  explicit MissingPriceLine(QWidget* pParent);

  /// Asks the program's fee schedule anew.
  void Refresh();

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return 0; }  // it keeps to its place
  void paintEvent(QPaintEvent* pEvent) override;
};

}  // namespace quillet
