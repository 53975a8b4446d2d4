// One line beside the summary: the fee schedule in use, and what keeps it from pricing some sale.
#pragma once

#include <QWidget>

#include "controls/Control.h"

namespace quillet {

class MissingPriceLine;
class ScheduleButton;

class ScheduleLine : public QWidget, public Control {
 public:
  /// Which end of the line the button stands at.
  enum class Button { AtLeft, AtRight };

  ScheduleLine(Button eButton, QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "ScheduleLine"; }

  /// Asks the program's fee schedule anew.
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
