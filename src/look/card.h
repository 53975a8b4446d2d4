// The ground that groups what stands on it.
#pragma once

#include <QPainter>
#include <QWidget>

namespace quillet {

/// A rounded panel with a hairline around it, within `oCard`, in pixels.
void DrawCard(QPainter& oPainter, const QRectF& oCard);

/// The ground of what stands in front of others: a widget of its own, which lets the mouse through.
class Card : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
};

}  // namespace quillet
