// Names the fee schedule in use, and lets the user choose another one.
#pragma once

#include <QAbstractButton>
#include <string>

#include "controls/Control.h"

namespace quillet {

/// Words and a small arrow, without an edge. Opens a menu by the mouse, by Space and by Enter.
class ScheduleButton : public QAbstractButton, public Control {
  Q_OBJECT

 public:
  explicit ScheduleButton(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Image"; }

  /// Takes its words and its tooltip anew from the schedules on offer.
  void Refresh();

  /// The width, in twips, that shows all of its words at the current zoom.
  [[nodiscard]] int WholeWidth() const;

  /// Loads a schedule by its bare file name, and raises Chosen; or says why it can't be used.
  void Choose(const std::string& sFile);

 signals:
  /// Another schedule is in use: whatever shows fees is to show them anew.
  void Chosen();

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;

 private:
  void ShowMenu();
};

}  // namespace quillet
