#include "sections/GrandTotal.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/Theme.h"

namespace quillet {
namespace {

constexpr double kPercentShare = 0.6;  // of the amount's size

QFont FontOf(double fPoints) {
  return ThemeFont(fPoints, QFont::Bold);
}
QFont PercentFontOf(double fPoints) {
  return ThemeFont(fPoints * kPercentShare, QFont::Medium);
}

double WidthOf(const QString& sAmount, const QString& sPercent, double fPoints) {
  return QFontMetricsF(FontOf(fPoints)).horizontalAdvance(sAmount) +
         QFontMetricsF(PercentFontOf(fPoints)).horizontalAdvance(sPercent);
}

}  // namespace

void GrandTotal::paintEvent(QPaintEvent* /*pEvent*/) {
  const QString sCaption = Caption();
  const auto nPercent = sCaption.indexOf(" (");
  const QString sAmount = sCaption.left(nPercent);
  const QString sPercent = nPercent < 0 ? QString() : " " + sCaption.mid(nPercent);
  // The panel may end before the label does.
  const int nRoom = std::min(width(), parentWidget()->width() - x());
  const double fNatural = WidthOf(sAmount, sPercent, kGrandTotalPoints);
  const double fPoints =
      fNatural > nRoom ? kGrandTotalPoints * nRoom / fNatural : kGrandTotalPoints;

  QPainter oPainter(this);
  oPainter.setPen(ColourOf(ForeColor()));
  oPainter.setFont(FontOf(fPoints));
  const int nAmount = oPainter.fontMetrics().horizontalAdvance(sAmount);
  oPainter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, sAmount);
  oPainter.setFont(PercentFontOf(fPoints));
  oPainter.drawText(rect().adjusted(nAmount, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, sPercent);
}

}  // namespace quillet
