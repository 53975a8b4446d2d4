#include "shell/ScrollFrame.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>

#include "look/scale.h"

namespace quillet {

ScrollFrame::ScrollFrame(QWidget* pParent)
    : QScrollArea(pParent), Control(static_cast<QWidget&>(*this)) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(new QWidget);
  // Queued, so that anything inside the content has scrolled to the input first.
  connect(qApp, &QApplication::focusChanged, this, &ScrollFrame::FollowFocus, Qt::QueuedConnection);
}

void ScrollFrame::ShowBeginning() {
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
}

bool ScrollFrame::eventFilter(QObject* pWatched, QEvent* pEvent) {
  const bool bHandled = QScrollArea::eventFilter(pWatched, pEvent);
  if (pWatched == widget() && pEvent->type() == QEvent::Resize) {
    emit ContentResized();
  }
  return bHandled;
}

/// With Ctrl held the wheel zooms the window.
void ScrollFrame::wheelEvent(QWheelEvent* pEvent) {
  if ((pEvent->modifiers() & Qt::ControlModifier) != 0) {
    pEvent->ignore();
  } else {
    QScrollArea::wheelEvent(pEvent);
  }
}

/// The toolkit would scroll at once, to wherever the focus is briefly while a view is hidden.
bool ScrollFrame::focusNextPrevChild(bool bNext) {
  return QWidget::focusNextPrevChild(bNext);  // NOLINT(bugprone-parent-virtual-call)
}

/// Ignores sections and views, which only a click can focus: the scroll position stays.
void ScrollFrame::FollowFocus() {
  constexpr int kMargin = 360;
  const QWidget* pNow = QApplication::focusWidget();
  if (pNow == nullptr || (pNow->focusPolicy() & Qt::TabFocus) == 0 ||
      !widget()->isAncestorOf(pNow)) {
    return;
  }
  if (pNow->parentWidget()->focusProxy() == pNow) {
    pNow = pNow->parentWidget();  // a box's text takes the focus for it
  }
  const QRect oInput(pNow->mapTo(widget(), QPoint()), pNow->size());
  ensureVisible(oInput.center().x(), oInput.center().y(), oInput.width() / 2 + Pixels(kMargin),
                oInput.height() / 2 + Pixels(kMargin));
}

}  // namespace quillet
