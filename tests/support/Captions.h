// Finds captions that are cut off.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <string>

#include "look/scale.h"
#include "sections/controlHelpers.h"

namespace quillet {

inline constexpr std::array kZooms = {0.75, 1.0, 1.25, 1.5, 2.0, 3.0};

/// The pixels that a caption has up to the next visible control in its row, or to the panel's edge.
inline int RoomFor(const Control& oCaptioned) {
  const QWidget& oWidget = oCaptioned.Widget();
  int nRoom = oWidget.parentWidget()->width();
  for (const QObject* const pChild : oWidget.parentWidget()->children()) {
    const auto* const pOther = dynamic_cast<const Control*>(pChild);
    if (pOther != nullptr && pOther->Visible() && pOther->Top() == oCaptioned.Top() &&
        pOther->Left() > oCaptioned.Left()) {
      nRoom = std::min(nRoom, pOther->Widget().x());
    }
  }
  return nRoom - oWidget.x();
}

/// Lists the visible captions and amounts that are cut off in a window or part of one.
inline std::string ClippedIn(const QWidget& oWindow) {
  std::string sClipped;
  for (const QWidget* const pWidget : oWindow.findChildren<QWidget*>()) {
    const auto* const pControl = dynamic_cast<const Control*>(pWidget);
    const auto* const pLabel = qobject_cast<const QLabel*>(pWidget);
    QSize oWanted;
    QSize oRoom = pWidget->size();
    if (const auto* const pText = qobject_cast<const QLineEdit*>(pWidget)) {
      constexpr int kToolkitsMargin = 2;
      oWanted = {pText->fontMetrics().horizontalAdvance(pText->text()),
                 pText->fontMetrics().ascent() + pText->fontMetrics().descent()};
      oRoom =
          oRoom.shrunkBy(pText->textMargins() + QMargins(kToolkitsMargin, 0, kToolkitsMargin, 0));
    } else if (pControl != nullptr && !pControl->Caption().isEmpty() && !IsHeaderImage(*pControl)) {
      const bool bWraps = pLabel != nullptr && pLabel->wordWrap();
      oWanted = bWraps ? QSize(0, pLabel->heightForWidth(pLabel->width()))
                       : QSize(pWidget->sizeHint().width(), 0);
      oRoom.setWidth(std::min(oRoom.width(), RoomFor(*pControl)));
    }
    if (pWidget->isVisible() && oWanted.boundedTo(oRoom) != oWanted) {
      sClipped += pWidget->objectName().toStdString() + " of " +
                  pWidget->parentWidget()->objectName().toStdString() + " at " +
                  std::to_string(Zoom()) + ": " + std::to_string(oWanted.width()) + " in " +
                  std::to_string(oRoom.width()) + "\n";
    }
  }
  return sClipped;
}

}  // namespace quillet
