// The ground that groups what stands on it.
#pragma once

#include <QPainter>

namespace quillet {

/// A rounded panel with a hairline around it, within `oCard`, in pixels.
void DrawCard(QPainter& oPainter, const QRectF& oCard);

}  // namespace quillet
