#include "controls/ComboBox.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <algorithm>

#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

// Twips.
constexpr int kTextMargin = 90;
constexpr int kArrow = 90;
constexpr int kArrowRight = 165;  // from its middle to the edge

}  // namespace

ComboBox::ComboBox(QWidget* pParent) : QComboBox(pParent), Control(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_Hover);
  QPalette oPalette = view()->palette();
  oPalette.setColor(QPalette::Base, InkColour(Ink::Hover));  // the list stands out from the window
  view()->setPalette(oPalette);
}

/// As the numeric boxes are drawn.
void ComboBox::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr double kRadius = 3.0;
  const double fLine = hasFocus() ? 2.0 : 1.0;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(QPen(InkColour(hasFocus() ? Ink::Accent : Ink::FieldEdge), fLine));
  oPainter.setBrush(InkColour(Ink::Field));
  oPainter.drawRoundedRect(QRectF(rect()).adjusted(fLine / 2, fLine / 2, -fLine / 2, -fLine / 2),
                           kRadius, kRadius);
  oPainter.setPen(InkColour(Ink::Text));
  oPainter.drawText(rect().adjusted(Pixels(kTextMargin), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                    currentText());
  const double fHalf = Pixels(kArrow) / 2.0;
  const QPointF oMiddle(width() - Pixels(kArrowRight), height() / 2.0);
  QPainterPath oArrow(oMiddle + QPointF(-fHalf, -fHalf / 2));
  oArrow.lineTo(oMiddle + QPointF(0, fHalf / 2));
  oArrow.lineTo(oMiddle + QPointF(fHalf, -fHalf / 2));
  oPainter.setBrush(Qt::NoBrush);
  oPainter.setPen(QPen(InkColour(underMouse() ? Ink::Text : Ink::FaintText),
                       std::max(1.4, fHalf * 0.45), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  oPainter.drawPath(oArrow);
}

void ComboBox::wheelEvent(QWheelEvent* pEvent) {
  if (hasFocus()) {
    QComboBox::wheelEvent(pEvent);
  } else {
    pEvent->ignore();
  }
}

}  // namespace quillet
