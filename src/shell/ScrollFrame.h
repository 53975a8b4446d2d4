// A frame whose content may be larger than it is.
#pragma once

#include <QScrollArea>

#include "controls/Control.h"

namespace quillet {

/// Scrolls with its thin bars and the wheel, and to an input that gets the focus.
class ScrollFrame : public QScrollArea, public Control {
  Q_OBJECT

 public:
  explicit ScrollFrame(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Frame"; }

  /// The parent of its content: as large as the frame, or as its own minimum size, which is set as
  /// for any widget.
  [[nodiscard]] QWidget& Content() const { return *widget(); }

  /// Scrolls back to the top left.
  void ShowBeginning();

 signals:
  void ContentResized();

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
  void wheelEvent(QWheelEvent* pEvent) override;
  bool focusNextPrevChild(bool bNext) override;

 private:
  void FollowFocus();
};

}  // namespace quillet
