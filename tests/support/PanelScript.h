// Drives a section as its user would, by the names of its controls, and reads it back in words.
#pragma once

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "look/palette.h"
#include "look/scale.h"
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

/// The control of that name, wherever it stands in the panel; an exception if there is none.
inline Control& ControlOf(const SectionPanel& oPanel, const std::string& sName) {
  for (Control* const pControl : AllControls(oPanel)) {
    if (pControl->Name() == sName) {
      return *pControl;
    }
  }
  throw std::runtime_error("no control " + sName);
}

/// Clicks boxes and options with the mouse, one after another; names separated by blanks.
inline void ClickOn(const SectionPanel& oPanel, const std::string& sNames) {
  std::istringstream oNames(sNames);
  for (std::string sName; oNames >> sName;) {
    QWidget& oWidget = ControlOf(oPanel, sName).Widget();
    QTest::mouseClick(&oWidget, Qt::LeftButton, Qt::NoModifier, QPoint(4, oWidget.height() / 2));
  }
}

/// Types into a numeric box in place of what it holds, and leaves it.
inline void TypeInto(const SectionPanel& oPanel, const std::string& sName,
                     const std::string& sText) {
  QLineEdit* const pText = dynamic_cast<ctlNumericText&>(ControlOf(oPanel, sName)).TextBox();
  pText->setFocus(Qt::TabFocusReason);
  QTest::keyClicks(pText, QString::fromStdString(sText));
  pText->clearFocus();
}

/// The names of the controls that a test accepts, in the panel's order, separated by blanks.
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

/// The boxes and options that are chosen, but for the Show boxes.
inline std::string ChosenIn(const SectionPanel& oPanel) {
  return NamesWhere(oPanel, [](const Control& oControl) {
    const auto* const pChoice = dynamic_cast<const Choice*>(&oControl);
    return pChoice != nullptr && !IsShowCheck(oControl) && pChoice->Value() != 0;
  });
}

inline bool IsGrey(const Control& oControl) {
  return oControl.ForeColor() == kColourGreyText;
}

/// Out of config mode the Show boxes stand beyond the panel's edge, disabled.
inline bool IsOnView(const Control& oControl) {
  return oControl.Visible() && (oControl.Enabled() || !IsShowCheck(oControl));
}

/// How far a caption may reach, in its panel's pixels: to the next control of its row on view, or
/// to the panel's edge.
inline int RoomFor(const Control& oCaptioned) {
  const QWidget& oWidget = oCaptioned.Widget();
  int nRoom = oWidget.parentWidget()->width();
  for (const QObject* const pChild : oWidget.parentWidget()->children()) {
    const auto* const pOther = dynamic_cast<const Control*>(pChild);
    if (pOther != nullptr && pOther->Visible() && pOther->Top() == oCaptioned.Top() &&
        pOther->Left() > oCaptioned.Left()) {
      nRoom = std::min(nRoom, pOther->Widget().x());
    }
  }
  return nRoom - oWidget.x();
}

/// Those captions on view that are cut off at any zoom that the program offers.
inline std::string ClippedCaptionsIn(SectionPanel& oPanel) {
  std::string sClipped;
  for (const double fZoom : {0.75, 1.0, 1.25, 1.5, 2.0, 3.0}) {
    SetZoom(fZoom);
    RescaleAll(*oPanel.window());
    for (Control* const pControl : AllControls(oPanel)) {
      const int nWanted = pControl->Widget().sizeHint().width();
      const int nRoom = std::min(pControl->Widget().width(), RoomFor(*pControl));
      if (!pControl->Caption().isEmpty() && !IsHeaderImage(*pControl) && IsOnView(*pControl) &&
          nWanted > nRoom) {
        sClipped += pControl->Name() + " at zoom " + std::to_string(fZoom) + ": " +
                    std::to_string(nWanted) + " in " + std::to_string(nRoom) + "\n";
      }
    }
  }
  SetZoom(1.0);
  RescaleAll(*oPanel.window());
  return sClipped;
}

}  // namespace quillet
