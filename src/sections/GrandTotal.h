// The figures of the summary.
#pragma once

#include "controls/Controls.h"
#include "look/font.h"

namespace quillet {

/// A figure that ends a little before the right edge of its place, if the place has room.
class Figure : public Label {
 public:
  static constexpr int kGap = 150;  ///< twips

  explicit Figure(QWidget* pParent) : Label(pParent) { SetFontSize(kTextPoints, QFont::DemiBold); }

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
};

/// The profit, large, followed by its percentage, smaller. Shrinks what doesn't fit, so that even
/// the largest profit is shown whole.
class GrandTotal : public Label {
 public:
  explicit GrandTotal(QWidget* pParent) : Label(pParent) {}

  /// Makes the amount end at a place of the panel, in twips, and use the room from `nFrom` on; if
  /// both are 0 it begins at the left of the label.
  void SetAmountPlace(int nFrom, int nEnd);

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return 0; }
  void paintEvent(QPaintEvent* pEvent) override;
  void Placed() override;

 private:
  int m_nFrom = 0;
  int m_nEnd = 0;
};

}  // namespace quillet
