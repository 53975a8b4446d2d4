// The marks and backgrounds that everything on screen is drawn with. Places are in pixels.
#pragma once

#include <QPainter>
#include <QWidget>

#include "look/palette.h"

namespace quillet {

/// As wide as its square.
void DrawTick(QPainter& oPainter, const QRectF& oSquare, const QColor& oColour);

enum class Towards { Right, Down, Left };

/// Centred in its square; its two ends are the square's width apart.
void DrawChevron(QPainter& oPainter, const QRectF& oSquare, Towards eTowards,
                 const QColor& oColour);

/// Shows the keyboard focus: a rounded line around a place.
void DrawRing(QPainter& oPainter, const QRectF& oPlace, double fRadius, double fWidth = 1.5);

/// A rectangle with rounded corners.
void DrawRounded(QPainter& oPainter, const QRectF& oPlace, double fRadius, const QPen& oEdge,
                 const QBrush& oFace);

/// The box of an input; `eEdge` is FieldEdge, or another colour, which gets a thicker line. Returns
/// the width of that line.
double DrawField(QPainter& oPainter, const QRectF& oBox, Ink eEdge, const QColor& oGround);

/// A rounded panel with a hairline around it.
void DrawCard(QPainter& oPainter, const QRectF& oCard);

/// Text at the left of a place, vertically centred. `nFlags` may say how to show an access key.
void DrawWords(QPainter& oPainter, const QRectF& oPlace, const QString& sWords,
               const QColor& oColour, int nFlags = 0);

/// The title of a card, left-aligned and vertically centred.
void DrawTitle(QPainter& oPainter, const QRectF& oPlace, const QString& sTitle);

/// The background of something in front of others: a widget of its own, transparent to the mouse.
class Card : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
};

}  // namespace quillet
