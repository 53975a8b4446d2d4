// Drives a section by its controls' names, as a user would, and reads it back as text.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "look/palette.h"
#include "sections/SectionPanel.h"
#include "sections/controlHelpers.h"

namespace quillet {

/// Every control of a panel and of the panels within it.
inline std::vector<Control*> AllControls(const SectionPanel& oPanel) {
  std::vector<Control*> aoAll;
  for (Control* const pControl : oPanel.Controls()) {
    aoAll.push_back(pControl);
    if (const auto* const pInner = dynamic_cast<SectionPanel*>(pControl)) {
      const std::vector<Control*> aoInner = AllControls(*pInner);
      aoAll.insert(aoAll.end(), aoInner.begin(), aoInner.end());
    }
  }
  return aoAll;
}

/// The control of that name anywhere in a panel or a view; throws if there is none.
inline Control& ControlOf(const QWidget& oPlace, const std::string& sName) {
  auto* const pFound = oPlace.findChild<QWidget*>(QString::fromStdString(sName));
  return pFound != nullptr ? dynamic_cast<Control&>(*pFound)
                           : throw std::runtime_error("no control " + sName);
}

/// Clicks a box or an option with the mouse.
inline void ClickOn(const Control& oChoice) {
  QWidget& oWidget = oChoice.Widget();
  QTest::mouseClick(&oWidget, Qt::LeftButton, Qt::NoModifier, QPoint(4, oWidget.height() / 2));
}

/// Clicks several controls in turn; their names are separated by blanks.
inline void ClickOn(const QWidget& oPlace, const std::string& sNames) {
  std::istringstream oNames(sNames);
  for (std::string sName; oNames >> sName;) {
    ClickOn(ControlOf(oPlace, sName));
  }
}

/// The name of the control that has the focus.
inline std::string FocusName() {
  const QWidget* const pFocus = QApplication::focusWidget();
  const bool bBox = pFocus != nullptr && pFocus->objectName() == "txtValue";
  return pFocus == nullptr ? "none"
                           : (bBox ? pFocus->parentWidget() : pFocus)->objectName().toStdString();
}

/// Types over a numeric box's text and leaves the box.
inline void TypeInto(const QWidget& oPlace, const std::string& sName, const std::string& sText) {
  QLineEdit* const pText = dynamic_cast<ctlNumericText&>(ControlOf(oPlace, sName)).TextBox();
  pText->setFocus(Qt::TabFocusReason);
  QTest::keyClicks(pText, QString::fromStdString(sText));
  pText->clearFocus();
}

/// The names of the controls that a predicate accepts, in the panel's order, separated by blanks.
template <typename Accept>
std::string NamesWhere(const SectionPanel& oPanel, Accept&& fnAccept) {
  std::string sNames;
  for (Control* const pControl : AllControls(oPanel)) {
    if (fnAccept(*pControl)) {
      sNames += (sNames.empty() ? "" : " ") + pControl->Name();
    }
  }
  return sNames;
}

/// The boxes and options that are chosen, except the Show boxes.
inline std::string ChosenIn(const SectionPanel& oPanel) {
  return NamesWhere(oPanel, [](const Control& oControl) {
    const auto* const pChoice = dynamic_cast<const Choice*>(&oControl);
    return pChoice != nullptr && !IsShowCheck(oControl) && pChoice->Value() != 0;
  });
}

inline bool IsGrey(const Control& oControl) {
  return oControl.ForeColor() == kColourGreyText;
}

}  // namespace quillet
