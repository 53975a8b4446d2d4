// The figures of the summary.
#pragma once

#include "controls/Controls.h"
#include "look/font.h"

namespace quillet {

/// A figure that ends a gap before the right edge of its place, as far as the place has room.
class Figure : public Label {
 public:
  static constexpr int kGap = 150;  ///< twips

  explicit Figure(QWidget* pParent) : Label(pParent) { SetFontSize(kTextPoints, QFont::DemiBold); }

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
};

/// The profit, large, with its percentage smaller behind it. Shrinks what doesn't fit, so that the
/// largest profit is shown whole.
class GrandTotal : public Label {
 public:
  explicit GrandTotal(QWidget* pParent) : Label(pParent) {}

  /// Lets the amount end at a place of the panel, in twips, and take the room from `nFrom` on; both
  /// 0 let it begin at the left of the label.
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
