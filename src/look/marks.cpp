#include "look/marks.h"

#include <QPolygonF>
#include <algorithm>
#include <initializer_list>

#include "look/font.h"

namespace quillet {
namespace {

/// The place, shrunk by half a line's width, so that the line around it stays inside.
QRectF Within(const QRectF& oPlace, double fLine) {
  return oPlace.adjusted(fLine / 2, fLine / 2, -fLine / 2, -fLine / 2);
}

/// A line through points given in units of the square's side, at least 1.5 pixels thick.
void DrawLine(QPainter& oPainter, const QRectF& oSquare, std::initializer_list<QPointF> aoPoints,
              const QColor& oColour) {
  constexpr double kThickness = 0.22;
  QPolygonF oLine;
  for (const QPointF& oPoint : aoPoints) {
    oLine << oSquare.topLeft() + oPoint * oSquare.width();
  }
  oPainter.setPen({oColour, std::max(1.5, oSquare.width() * kThickness), Qt::SolidLine,
                   Qt::RoundCap, Qt::RoundJoin});
  oPainter.drawPolyline(oLine);
}

}  // namespace

void DrawTick(QPainter& oPainter, const QRectF& oSquare, const QColor& oColour) {
  DrawLine(oPainter, oSquare, {{0.02, 0.52}, {0.36, 0.86}, {0.98, 0.16}}, oColour);
}

void DrawChevron(QPainter& oPainter, const QRectF& oSquare, Towards eTowards,
                 const QColor& oColour) {
  switch (eTowards) {
    case Towards::Left:
      return DrawLine(oPainter, oSquare, {{0.7, 0.1}, {0.3, 0.5}, {0.7, 0.9}}, oColour);
    case Towards::Right:
      return DrawLine(oPainter, oSquare, {{0.3, 0.1}, {0.7, 0.5}, {0.3, 0.9}}, oColour);
    case Towards::Down:
      return DrawLine(oPainter, oSquare, {{0.1, 0.3}, {0.5, 0.7}, {0.9, 0.3}}, oColour);
  }
}

void DrawRing(QPainter& oPainter, const QRectF& oPlace, double fRadius, double fWidth) {
  DrawRounded(oPainter, oPlace, fRadius, QPen(InkColour(Ink::Accent), fWidth), Qt::NoBrush);
}

void DrawRounded(QPainter& oPainter, const QRectF& oPlace, double fRadius, const QPen& oEdge,
                 const QBrush& oFace) {
  oPainter.setPen(oEdge);
  oPainter.setBrush(oFace);
  oPainter.drawRoundedRect(oPlace, fRadius, fRadius);
}

double DrawField(QPainter& oPainter, const QRectF& oBox, Ink eEdge, const QColor& oGround) {
  constexpr double kRadius = 3.0;
  const double fLine = eEdge == Ink::FieldEdge ? 1.0 : 2.0;
  DrawRounded(oPainter, Within(oBox, fLine), kRadius, QPen(InkColour(eEdge), fLine), oGround);
  return fLine;
}

void DrawCard(QPainter& oPainter, const QRectF& oCard) {
  constexpr double kRadius = 7.0;
  DrawRounded(oPainter, Within(oCard, 1.0), kRadius, InkColour(Ink::Hairline),
              InkColour(Ink::Panel));
}

void DrawWords(QPainter& oPainter, const QRectF& oPlace, const QString& sWords,
               const QColor& oColour, int nFlags) {
  oPainter.setPen(oColour);
  oPainter.drawText(oPlace, nFlags | int{Qt::AlignVCenter} | int{Qt::AlignLeft}, sWords);
}

void DrawTitle(QPainter& oPainter, const QRectF& oPlace, const QString& sTitle) {
  constexpr double kPoints = 6.75;
  constexpr double kSpacing = 112.0;
  QFont oFont = ThemeFont(kPoints, QFont::DemiBold);
  oFont.setLetterSpacing(QFont::PercentageSpacing, kSpacing);
  oFont.setCapitalization(QFont::AllUppercase);
  oPainter.setFont(oFont);
  DrawWords(oPainter, oPlace, sTitle, InkColour(Ink::FaintText));
}

void Card::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawCard(oPainter, rect());
}

}  // namespace quillet
