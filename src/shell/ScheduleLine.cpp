#include "shell/ScheduleLine.h"

#include <algorithm>

#include "controls/layout.h"
#include "shell/MissingPriceLine.h"
#include "shell/ScheduleButton.h"

namespace quillet {

ScheduleLine::ScheduleLine(Button eButton, QWidget* pParent)
    : QWidget(pParent),
      Control(static_cast<QWidget&>(*this)),
      m_eButton(eButton),
      m_pSchedule(Make<ScheduleButton>("Schedule", this)),
      m_pMissingPrice(Make<MissingPriceLine>("MissingPrice", this)) {}

void ScheduleLine::Refresh() {
  m_pSchedule->Refresh();
  m_pMissingPrice->Refresh();
  Placed();
}

/// A long name leaves half of the line to what is missing.
void ScheduleLine::Placed() {
  constexpr int kGap = 120;
  const int nButton = std::min(m_pSchedule->WholeWidth(), Width() / 2);
  const int nRest = Width() - nButton - kGap;
  const bool bLeft = m_eButton == Button::AtLeft;
  m_pSchedule->Place(bLeft ? 0 : Width() - nButton, 0, nButton, Height());
  m_pMissingPrice->Place(bLeft ? nButton + kGap : 0, 0, std::max(nRest, 0), Height());
}

}  // namespace quillet
