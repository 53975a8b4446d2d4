// One line beside the summary: the fee schedule in use, and why it can't price some sale.
#pragma once

#include <QWidget>

#include "controls/Control.h"

namespace quillet {

class MissingPriceLine;
class ScheduleButton;

class ScheduleLine : public QWidget, public Control {
 public:
  /// Which end of the line the button is at.
  enum class Button { AtLeft, AtRight };

  ScheduleLine(Button eButton, QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "ScheduleLine"; }

  /// Checks the program's fee schedule again.
  void Refresh();

  [[nodiscard]] ScheduleButton& Schedule() const { return *m_pSchedule; }

 protected:
  void Placed() override;

 private:
  Button m_eButton;
  ScheduleButton* m_pSchedule;
  MissingPriceLine* m_pMissingPrice;
};

}  // namespace quillet
