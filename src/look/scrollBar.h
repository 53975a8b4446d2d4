// A thin scroll bar without arrows.
#pragma once

#include <QStyle>

class QStyleOptionSlider;

namespace quillet {

/// The place of a part: the thumb, the track on either side of it, or the whole.
[[nodiscard]] QRect PartOfScrollBar(const QStyleOptionSlider& oBar, QStyle::SubControl ePart);

/// Only its background if there is nothing to scroll.
void DrawScrollBar(QPainter& oPainter, const QStyleOptionSlider& oBar);

}  // namespace quillet
