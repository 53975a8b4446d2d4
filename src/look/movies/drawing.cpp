#include "look/movies/drawing.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "look/font.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

// As in graphics/quillet.svg, whose units these are.
constexpr QRectF kQuill(48.0, 38.0, 166.0, 180.0);

QPainterPath Vane() {
  QPainterPath oVane(QPointF(86, 166));
  oVane.cubicTo(78, 108, 128, 52, 214, 38);
  oVane.cubicTo(214, 76, 204, 104, 186, 124);
  oVane.lineTo(158, 128);
  oVane.lineTo(170, 140);
  oVane.cubicTo(148, 156, 120, 166, 86, 166);
  return oVane;
}

QPainterPath Curve(const QPointF& oFrom, const QPointF& oBend1, const QPointF& oBend2,
                   const QPointF& oTo) {
  QPainterPath oCurve(oFrom);
  oCurve.cubicTo(oBend1, oBend2, oTo);
  return oCurve;
}

QPen RoundPen(const QColor& oColour, double fWidth) {
  return {oColour, fWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

QFont MovieFont(double fPoints, QFont::Weight eWeight, double fScale) {
  QFont oFont = ThemeFont(fPoints, eWeight);
  oFont.setPointSizeF(oFont.pointSizeF() * fScale / Zoom());
  return oFont;
}

void DrawQuill(QPainter& oPainter, const QRectF& oPlace) {
  constexpr QColor kLight(0x8C, 0xC0, 0xFF);
  constexpr QColor kDark(0x3F, 0x86, 0xE6);
  QLinearGradient oSheen(QPointF(214, 38), QPointF(80, 166));
  oSheen.setColorAt(0, kLight);
  oSheen.setColorAt(1, kDark);
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.translate(oPlace.topLeft());
  oPainter.scale(oPlace.width() / kQuill.width(), oPlace.height() / kQuill.height());
  oPainter.translate(-kQuill.topLeft());
  oPainter.fillPath(Vane(), oSheen);
  oPainter.strokePath(Curve({172, 80}, {138, 100}, {104, 134}, {84, 168}),
                      RoundPen(InkColour(Ink::Ground), 10));
  oPainter.strokePath(Curve({92, 156}, {76, 176}, {64, 192}, {56, 210}),
                      RoundPen(InkColour(Ink::Text), 16));
  oPainter.restore();
}

double Eased(double fNow, double fBegin, double fEnd) {
  const double fPart = std::clamp((fNow - fBegin) / (fEnd - fBegin), 0.0, 1.0);
  return fPart * fPart * (3.0 - 2.0 * fPart);
}

}  // namespace quillet
