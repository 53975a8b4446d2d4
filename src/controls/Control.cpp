#include "controls/Control.h"

#include <QWidget>
#include <algorithm>

#include "look/font.h"
#include "look/scale.h"

namespace quillet {

void Control::SetName(const std::string& sName) {
  m_sName = sName;
  m_oWidget->setObjectName(QString::fromStdString(sName));
}

void Control::Place(int nLeft, int nTop, int nWidth, int nHeight) {
  m_nLeft = nLeft;
  m_nTop = nTop;
  m_nWidth = nWidth;
  m_nHeight = nHeight;
  // Convert the edges, not the size, so that neighbours meet at every zoom.
  const QPoint oTopLeft(Pixels(nLeft), Pixels(nTop));
  QRect oPlace(oTopLeft, QPoint(Pixels(nLeft + nWidth) - 1, Pixels(nTop + nHeight) - 1));
  oPlace.setWidth(std::max(oPlace.width(), PixelsForCaption()));
  m_oWidget->setGeometry(oPlace);
  Placed();
}

void Control::SetVisible(bool bVisible) {
  m_bVisible = bVisible;
  m_oWidget->setVisible(bVisible);
}

bool Control::Enabled() const {
  return !m_oWidget->testAttribute(Qt::WA_ForceDisabled);
}

void Control::SetEnabled(bool bEnabled) {
  m_oWidget->setEnabled(bEnabled);
}

void Control::SetForeColor(std::uint32_t nColour) {
  if (m_nForeColor != nColour) {
    m_nForeColor = nColour;
    m_oWidget->update();
  }
}

Control* Control::Container() const {
  return dynamic_cast<Control*>(m_oWidget->parentWidget());
}

void Control::Rescale() {
  m_oWidget->setFont(ThemeFont(kTextPoints));
  Place(m_nLeft, m_nTop, m_nWidth, m_nHeight);
}

QString WordsOf(const Control& oControl) {
  constexpr QChar kAmpersand(0x1);
  return oControl.Caption()
      .replace("&&", kAmpersand)
      .remove('&')
      .replace(kAmpersand, '&')
      .trimmed();
}

void RescaleAll(QWidget& oWidget) {
  for (QWidget* const pWidget : oWidget.findChildren<QWidget*>()) {
    if (auto* const pControl = dynamic_cast<Control*>(pWidget)) {
      pControl->Rescale();
    }
  }
}

}  // namespace quillet
