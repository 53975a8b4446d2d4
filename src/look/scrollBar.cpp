#include "look/scrollBar.h"

#include <QPainter>
#include <QStyleOptionSlider>
#include <algorithm>

#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {

QRect PartOfScrollBar(const QStyleOptionSlider& oBar, QStyle::SubControl ePart) {
  const bool bAcross = oBar.orientation == Qt::Horizontal;
  const int nWay = bAcross ? oBar.rect.width() : oBar.rect.height();
  const double fSteps = oBar.maximum - oBar.minimum + std::max(1, oBar.pageStep);
  const int nShare = static_cast<int>(nWay * oBar.pageStep / fSteps);
  constexpr double kTwipsOfLeastThumb = 360.0;
  const int nThumb = std::min(nWay, std::max(nShare, Pixels(kTwipsOfLeastThumb)));
  const int nAt = QStyle::sliderPositionFromValue(oBar.minimum, oBar.maximum, oBar.sliderPosition,
                                                  nWay - nThumb, oBar.upsideDown);
  const auto fnPart = [&](int nFrom, int nLength) {
    return bAcross ? QRect(nFrom, 0, nLength, oBar.rect.height())
                   : QRect(0, nFrom, oBar.rect.width(), nLength);
  };
  switch (ePart) {
    case QStyle::SC_ScrollBarSlider:
      return fnPart(nAt, nThumb);
    case QStyle::SC_ScrollBarSubPage:
      return fnPart(0, nAt);
    case QStyle::SC_ScrollBarAddPage:
      return fnPart(nAt + nThumb, nWay - nAt - nThumb);
    case QStyle::SC_ScrollBarGroove:
      return oBar.rect;
    default:
      return {};
  }
}

void DrawScrollBar(QPainter& oPainter, const QStyleOptionSlider& oBar) {
  oPainter.fillRect(oBar.rect, oBar.palette.window());
  if (oBar.maximum <= oBar.minimum) {
    return;
  }
  const bool bHot = (oBar.state & (QStyle::State_Sunken | QStyle::State_MouseOver)) != 0;
  const QRectF oThumb = PartOfScrollBar(oBar, QStyle::SC_ScrollBarSlider);
  const double fInset = std::min(oThumb.width(), oThumb.height()) * 0.25;
  const QRectF oInk = oThumb.adjusted(fInset, fInset, -fInset, -fInset);
  const double fRadius = std::min(oInk.width(), oInk.height()) / 2;
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawRounded(oPainter, oInk, fRadius, Qt::NoPen,
              InkColour(bHot ? Ink::FaintText : Ink::FieldEdge));
  oPainter.restore();
}

}  // namespace quillet
