// Names the fee schedule in use, and lets the user choose another one.
#pragma once

#include <QAbstractButton>
#include <string>

#include "controls/Control.h"

namespace quillet {

/// Text and a small arrow, without a border. A click, Space or Enter opens a menu.
class ScheduleButton : public QAbstractButton, public Control {
  Q_OBJECT

 public:
  explicit ScheduleButton(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Image"; }

  /// Updates its text and tooltip from the schedules on offer.
  void Refresh();

  /// The width, in twips, that shows its whole text at the current zoom.
  [[nodiscard]] int WholeWidth() const;

  /// Loads a schedule by its bare file name, and raises Chosen, or says why it can't be used.
  void Choose(const std::string& sFile);

 signals:
  /// Another schedule is in use: everything that shows fees must be updated.
  void Chosen();

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;

 private:
  void ShowMenu();
};

}  // namespace quillet
