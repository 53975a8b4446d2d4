// A box that opens a list to choose from.
#pragma once

#include <QComboBox>

#include "controls/Control.h"

namespace quillet {

class ComboBox : public QComboBox, public Control {
 public:
  explicit ComboBox(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "ComboBox"; }

 protected:
  /// A choice too long for the box ends in dots.
  void initStyleOption(QStyleOptionComboBox* pOption) const override;

  /// Steps through the list while it has the focus; otherwise the wheel scrolls the page.
  void wheelEvent(QWheelEvent* pEvent) override;
};

}  // namespace quillet
