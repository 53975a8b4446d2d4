// Line icons, drawn from tables of strokes.
#pragma once

class QColor;
class QPainter;
class QRectF;

namespace quillet {

enum class Icon {
  New,
  Calculator,
  Wizard,
  Save,
  Load,
  Configure,
  About,
  Question,
  Warning,
  Critical,
  Note,
  Sound,
  Muted,
  Link,
};

/// Draws an icon into a square, with lines `fStroke` units wide; the square's side is 24 units.
void DrawIcon(QPainter& oPainter, Icon eIcon, const QRectF& oSquare, const QColor& oColour,
              double fStroke);

}  // namespace quillet
