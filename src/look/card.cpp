#include "look/card.h"

#include "look/palette.h"

namespace quillet {

void DrawCard(QPainter& oPainter, const QRectF& oCard) {
  constexpr double kRadius = 7.0;
  oPainter.setPen(QPen(InkColour(Ink::Hairline), 1.0));
  oPainter.setBrush(InkColour(Ink::Panel));
  oPainter.drawRoundedRect(oCard.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

void Card::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawCard(oPainter, rect());
}

}  // namespace quillet
