#include "controls/SpinButton.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>

#include "look/palette.h"

namespace quillet {
namespace {

constexpr int kFirstRepeat = 400;  // milliseconds
constexpr int kRepeat = 70;

void DrawTriangle(QPainter& oPainter, const QRectF& oRect, bool bUp) {
  const double fHalfWidth = oRect.width() * 0.16;
  const double fHalfHeight = fHalfWidth * (bUp ? -0.7 : 0.7);
  // A little towards the middle, so that the two arrows look like a pair.
  const QPointF oMiddle = oRect.center() + QPointF(0, bUp ? 1.0 : -1.0);
  oPainter.drawPolygon(QPolygonF{oMiddle + QPointF(-fHalfWidth, -fHalfHeight),
                                 oMiddle + QPointF(fHalfWidth, -fHalfHeight),
                                 oMiddle + QPointF(0, fHalfHeight)});
}

}  // namespace

SpinButton::SpinButton(QWidget* pParent) : QWidget(pParent) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
}

void SpinButton::Step(bool bUp) {
  const int nNext = m_nValue + (bUp ? m_oRange.nIncrement : -m_oRange.nIncrement);
  m_nValue = nNext > m_oRange.nMax ? m_oRange.nMin : nNext < m_oRange.nMin ? m_oRange.nMax : nNext;
  emit Change();
}

SpinButton::Arrow SpinButton::ArrowAt(const QPoint& oAt) const {
  if (!rect().contains(oAt)) {
    return Arrow::None;
  }
  return oAt.y() < height() / 2 ? Arrow::Up : Arrow::Down;
}

QRect SpinButton::RectOf(Arrow eArrow) const {
  const int nHalf = height() / 2;
  return eArrow == Arrow::Up ? QRect(0, 0, width(), nHalf)
                             : QRect(0, nHalf, width(), height() - nHalf);
}

void SpinButton::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(Qt::NoPen);
  if (isEnabled() && m_eHover != Arrow::None) {
    // Keep clear of the outline around the whole box.
    const QRectF oInside = QRectF(rect()).adjusted(1, 2, -2, -2);
    const Ink eInk = m_ePressed == m_eHover ? Ink::FieldEdge : Ink::Hairline;
    oPainter.fillRect(oInside & QRectF(RectOf(m_eHover)), InkColour(eInk));
  }
  for (const Arrow eArrow : {Arrow::Up, Arrow::Down}) {
    const bool bLit = isEnabled() && m_eHover == eArrow;
    oPainter.setBrush(InkColour(!isEnabled() ? Ink::FieldEdge : bLit ? Ink::Text : Ink::FaintText));
    DrawTriangle(oPainter, RectOf(eArrow), eArrow == Arrow::Up);
  }
}

void SpinButton::mousePressEvent(QMouseEvent* pEvent) {
  if (pEvent->button() != Qt::LeftButton) {
    pEvent->ignore();
    return;
  }
  m_ePressed = ArrowAt(pEvent->position().toPoint());
  SetHover(m_ePressed);
  m_oRepeat.start(kFirstRepeat, this);
  Step(m_ePressed == Arrow::Up);
}

void SpinButton::mouseMoveEvent(QMouseEvent* pEvent) {
  SetHover(ArrowAt(pEvent->position().toPoint()));
}

void SpinButton::mouseReleaseEvent(QMouseEvent* pEvent) {
  if (pEvent->button() == Qt::LeftButton) {
    LetGo();
  }
}

void SpinButton::leaveEvent(QEvent* /*pEvent*/) {
  SetHover(Arrow::None);
}

void SpinButton::hideEvent(QHideEvent* /*pEvent*/) {
  LetGo();
}

void SpinButton::changeEvent(QEvent* pEvent) {
  if (pEvent->type() == QEvent::EnabledChange && !isEnabled()) {
    LetGo();
  }
  QWidget::changeEvent(pEvent);
}

/// Steps only while the pointer is on the arrow that was pressed.
void SpinButton::timerEvent(QTimerEvent* /*pEvent*/) {
  m_oRepeat.start(kRepeat, this);
  if (m_eHover == m_ePressed) {
    Step(m_ePressed == Arrow::Up);
  }
}

void SpinButton::SetHover(Arrow eArrow) {
  if (m_eHover != eArrow) {
    m_eHover = eArrow;
    update();
  }
}

void SpinButton::LetGo() {
  m_oRepeat.stop();
  m_ePressed = Arrow::None;
  update();
}

}  // namespace quillet
