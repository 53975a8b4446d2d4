#include "controls/ComboBox.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include "look/palette.h"

namespace quillet {
ComboBox::ComboBox(QWidget* pParent) : QComboBox(pParent), Control(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_Hover);
  QPalette oPalette = view()->palette();
  oPalette.setColor(QPalette::Base, InkColour(Ink::Hover));  // the list stands out from the window
  view()->setPalette(oPalette);
}

void ComboBox::initStyleOption(QStyleOptionComboBox* pOption) const {
  QComboBox::initStyleOption(pOption);
  const int nRoom =
      style()
          ->subControlRect(QStyle::CC_ComboBox, pOption, QStyle::SC_ComboBoxEditField, this)
          .width();
  pOption->currentText = fontMetrics().elidedText(pOption->currentText, Qt::ElideRight, nRoom);
}

void ComboBox::wheelEvent(QWheelEvent* pEvent) {
  if (hasFocus()) {
    QComboBox::wheelEvent(pEvent);
  } else {
    pEvent->ignore();
  }
}

}  // namespace quillet
