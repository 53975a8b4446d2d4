#include "sections/ScrollBar.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionSlider>
#include <algorithm>

#include "platform/qt/Theme.h"

namespace quillet {
namespace {

void DrawChevron(QPainter& oPainter, const QRectF& oArrow, bool bUp, const QColor& oColour) {
  const double fHalf = oArrow.width() * 0.2;
  const double fRise = (bUp ? -fHalf : fHalf) * 0.6;
  const QPointF oCentre = oArrow.center();
  QPainterPath oPath(oCentre + QPointF(-fHalf, -fRise));
  oPath.lineTo(oCentre + QPointF(0, fRise));
  oPath.lineTo(oCentre + QPointF(fHalf, -fRise));
  oPainter.setBrush(Qt::NoBrush);
  oPainter.setPen(
      QPen(oColour, std::max(1.4, fHalf * 0.4), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  oPainter.drawPath(oPath);
}

}  // namespace

ScrollBar::ScrollBar(QWidget* pParent)
    : QScrollBar(Qt::Vertical, pParent), Control(static_cast<QWidget&>(*this)) {
  setTracking(false);
  setAttribute(Qt::WA_Hover);
}

void ScrollBar::paintEvent(QPaintEvent* /*pEvent*/) {
  QStyleOptionSlider oOption;
  initStyleOption(&oOption);
  const auto fnRect = [&](QStyle::SubControl ePart) {
    return QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &oOption, ePart, this));
  };
  const bool bHot = isSliderDown() || (underMouse() && isEnabled());
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.fillRect(rect(), InkColour(Ink::Ground));
  const QRectF oThumb = fnRect(QStyle::SC_ScrollBarSlider);
  const double fInset = oThumb.width() * 0.28;
  const QRectF oInk = oThumb.adjusted(fInset, 1, -fInset, -1);
  oPainter.setPen(Qt::NoPen);
  oPainter.setBrush(InkColour(bHot ? Ink::FaintText : Ink::FieldEdge));
  oPainter.drawRoundedRect(oInk, oInk.width() / 2, oInk.width() / 2);
  const auto fnArrow = [&](QStyle::SubControl ePart, bool bUp, bool bMore) {
    DrawChevron(oPainter, fnRect(ePart), bUp, InkColour(bMore ? Ink::Text : Ink::FieldEdge));
  };
  fnArrow(QStyle::SC_ScrollBarSubLine, true, sliderPosition() > minimum());
  fnArrow(QStyle::SC_ScrollBarAddLine, false, sliderPosition() < maximum());
}

}  // namespace quillet
