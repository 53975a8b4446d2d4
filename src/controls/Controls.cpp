#include "controls/Controls.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "controls/OptionInterface.h"
#include "look/font.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {

Label::Label(QWidget* pParent)
    : QLabel(pParent), Control(static_cast<QWidget&>(*this)), m_fPoints(kTextPoints) {
  setTextFormat(Qt::PlainText);
  Label::SetForeColor(kColourWindow);
}

void Label::SetCaption(const QString& sCaption) {
  if (m_sCaption != sCaption) {
    m_sCaption = sCaption;
    setText(QString(sCaption).replace("&&", "&"));
    SetWidth(Width());
  }
}

void Label::SetForeColor(std::uint32_t nColour) {
  Control::SetForeColor(nColour);
  QPalette oPalette = palette();
  if (oPalette.color(QPalette::WindowText) != ColourOf(nColour)) {
    oPalette.setColor(QPalette::WindowText, ColourOf(nColour));
    setPalette(oPalette);
  }
}

void Label::SetFontSize(double fPoints, QFont::Weight eWeight) {
  m_fPoints = fPoints;
  m_eWeight = eWeight;
  Rescale();
}

void Label::Rescale() {
  Control::Rescale();
  setFont(ThemeFont(m_fPoints, m_eWeight));
  SetWidth(Width());
}

OptionButton::OptionButton(QWidget* pParent) : MarkedButton(pParent) {
  setAutoExclusive(false);
  OptionInterface::Install();
  // Connect before any other listener, so that a click finds at most one option chosen.
  connect(this, &QAbstractButton::toggled, this, &OptionButton::PutOutOthers);
}

void OptionButton::keyPressEvent(QKeyEvent* pEvent) {
  switch (pEvent->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      ChooseNeighbour(-1);
      return;
    case Qt::Key_Down:
    case Qt::Key_Right:
      ChooseNeighbour(1);
      return;
    default:
      QRadioButton::keyPressEvent(pEvent);
  }
}

/// The options of the container, in reading order.
QList<OptionButton*> OptionButton::Group() const {
  QList<OptionButton*> aoGroup =
      parentWidget()->findChildren<OptionButton*>(QString(), Qt::FindDirectChildrenOnly);
  std::stable_sort(aoGroup.begin(), aoGroup.end(),
                   [](const auto* a, const auto* b) { return a->Top() < b->Top(); });
  return aoGroup;
}

void OptionButton::PutOutOthers() {
  if (!isChecked()) {
    return;
  }
  for (OptionButton* const pOther : Group()) {
    if (pOther != this && pOther->isChecked()) {
      const QSignalBlocker oSilence(pOther);
      pOther->setChecked(false);
      pOther->update();
    }
  }
}

void OptionButton::ChooseNeighbour(int nStep) {
  QList<OptionButton*> aoGroup = Group();
  aoGroup.removeIf([](const OptionButton* p) { return !p->isVisible() || !p->isEnabled(); });
  const auto nAt = aoGroup.indexOf(this);
  if (nAt < 0 || aoGroup.size() < 2) {
    return;
  }
  OptionButton* const pNext = aoGroup.at((nAt + nStep + aoGroup.size()) % aoGroup.size());
  pNext->setFocus(Qt::TabFocusReason);
  pNext->SetValue(1);
}

}  // namespace quillet
