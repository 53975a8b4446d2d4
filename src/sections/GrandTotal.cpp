#include "sections/GrandTotal.h"

#include <QPainter>
#include <algorithm>

#include "look/font.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr double kPercentShare = 0.6;  // of the amount's size

QFont FontOf(double fPoints) {
  return ThemeFont(fPoints, QFont::Bold);
}
QFont PercentFontOf(double fPoints) {
  return ThemeFont(fPoints * kPercentShare, QFont::Medium);
}

double WidthOf(const QString& sText, const QFont& oFont) {
  return QFontMetricsF(oFont).horizontalAdvance(sText);
}

}  // namespace

void Figure::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setPen(ColourOf(ForeColor()));
  const int nSlack = width() - fontMetrics().horizontalAdvance(text());
  oPainter.drawText(rect().adjusted(0, 0, -std::clamp(nSlack, 0, Pixels(kGap)), 0),
                    Qt::AlignVCenter | Qt::AlignRight, text());
}

void GrandTotal::SetAmountPlace(int nFrom, int nEnd) {
  m_nFrom = nFrom;
  m_nEnd = nEnd;
  Place(Left(), Top(), Width(), Height());
}

void GrandTotal::Placed() {
  if (m_nEnd != 0) {
    QRect oPlace = geometry();
    oPlace.setLeft(Pixels(m_nFrom));
    setGeometry(oPlace);
  }
}

void GrandTotal::paintEvent(QPaintEvent* /*pEvent*/) {
  const QString sCaption = Caption();
  const auto nPercent = sCaption.indexOf(" (");
  const QString sAmount = sCaption.left(nPercent);
  const QString sPercent = nPercent < 0 ? QString() : " " + sCaption.mid(nPercent);
  const double fAmount = WidthOf(sAmount, FontOf(kGrandTotalPoints));
  const double fPercent = WidthOf(sPercent, PercentFontOf(kGrandTotalPoints));
  // The panel may end before the label does.
  const double fRoom = std::min(width(), parentWidget()->width() - x());
  double fShrink = std::min(1.0, fRoom / (fAmount + fPercent));
  double fLeft = 0;
  if (m_nEnd != 0) {
    const double fEnd = Pixels(m_nEnd) - x();
    fShrink = std::min({1.0, fEnd / fAmount, (fRoom - fEnd) / std::max(1.0, fPercent)});
    fLeft = fEnd - fAmount * fShrink;
  }

  QPainter oPainter(this);
  const auto fnDraw = [&](const QString& sText, const QFont& oFont, double fFrom) {
    oPainter.setFont(oFont);
    DrawWords(oPainter, QRectF(rect()).adjusted(fFrom, 0, 0, 0), sText, ColourOf(ForeColor()));
  };
  fnDraw(sAmount, FontOf(kGrandTotalPoints * fShrink), fLeft);
  fnDraw(sPercent, PercentFontOf(kGrandTotalPoints * fShrink), fLeft + fAmount * fShrink);
}

}  // namespace quillet
