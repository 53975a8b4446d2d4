// The marks and grounds that everything on screen is drawn with. Places are in pixels.
#pragma once

#include <QPainter>
#include <QWidget>

#include "look/palette.h"

namespace quillet {

/// As wide as its square.
void DrawTick(QPainter& oPainter, const QRectF& oSquare, const QColor& oColour);

enum class Towards { Right, Down, Left };

/// Stands in the middle of its square, and is as wide as the square between its two ends.
void DrawChevron(QPainter& oPainter, const QRectF& oSquare, Towards eTowards,
                 const QColor& oColour);

/// Shows where the keyboard is: a rounded line around a place.
void DrawRing(QPainter& oPainter, const QRectF& oPlace, double fRadius, double fWidth = 1.5);

/// A rectangle with round corners.
void DrawRounded(QPainter& oPainter, const QRectF& oPlace, double fRadius, const QPen& oEdge,
                 const QBrush& oFace);

/// The box of an input; `eEdge` is FieldEdge, or a colour that tells something by a stronger line.
/// Returns the width of that line.
double DrawField(QPainter& oPainter, const QRectF& oBox, Ink eEdge, const QColor& oGround);

/// A rounded panel with a hairline around it.
void DrawCard(QPainter& oPainter, const QRectF& oCard);

/// Words at the left of a place, halfway down. `nFlags` may tell how to show an access key.
void DrawWords(QPainter& oPainter, const QRectF& oPlace, const QString& sWords,
               const QColor& oColour, int nFlags = 0);

/// The ground of what stands in front of others: a widget of its own, which lets the mouse through.
class Card : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
};

}  // namespace quillet
