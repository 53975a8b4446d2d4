// Two arrows, one above the other, that step a value and wrap round.
#pragma once

#include <QBasicTimer>
#include <QWidget>

#include "controls/SpinRange.h"

namespace quillet {

/// Never takes the focus. Keeps stepping while it is held down.
class SpinButton : public QWidget {
  Q_OBJECT

 public:
  explicit SpinButton(QWidget* pParent);

  [[nodiscard]] const SpinRange& Range() const { return m_oRange; }
  [[nodiscard]] int Value() const { return m_nValue; }

  /// Goes one increment up or down, wrapping round at the ends.
  void Step(bool bUp);

 signals:
  void Change();

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  void mouseMoveEvent(QMouseEvent* pEvent) override;
  void mouseReleaseEvent(QMouseEvent* pEvent) override;
  void leaveEvent(QEvent* pEvent) override;
  void hideEvent(QHideEvent* pEvent) override;
  void changeEvent(QEvent* pEvent) override;
  void timerEvent(QTimerEvent* pEvent) override;

 private:
  enum class Arrow { None, Up, Down };
  [[nodiscard]] Arrow ArrowAt(const QPoint& oAt) const;
  [[nodiscard]] QRect RectOf(Arrow eArrow) const;
  void SetHover(Arrow eArrow);
  void LetGo();

  SpinRange m_oRange;
  int m_nValue = 0;
  Arrow m_ePressed = Arrow::None;
  Arrow m_eHover = Arrow::None;
  QBasicTimer m_oRepeat;
};

}  // namespace quillet
