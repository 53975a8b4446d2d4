// Drives a section as its user would, by the names of its controls, and reads it back as text.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <array>
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

/// The control with that name, anywhere in the panel; throws if there is none.
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

/// Types over the text of a numeric box, and leaves the box.
inline void TypeInto(const SectionPanel& oPanel, const std::string& sName,
                     const std::string& sText) {
  QLineEdit* const pText = dynamic_cast<ctlNumericText&>(ControlOf(oPanel, sName)).TextBox();
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

/// How far a caption may reach, in its panel's pixels: to the next visible control of its row, or
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

/// The visible captions and amounts that are cut off in a window or a part of it.
inline std::string ClippedIn(const QWidget& oWindow) {
  std::string sClipped;
  for (const QWidget* const pWidget : oWindow.findChildren<QWidget*>()) {
    const auto* const pControl = dynamic_cast<const Control*>(pWidget);
    const auto* const pLabel = qobject_cast<const QLabel*>(pWidget);
    QSize oWanted;
    QSize oRoom = pWidget->size();
    if (const auto* const pText = qobject_cast<const QLineEdit*>(pWidget)) {
      constexpr int kToolkitsMargin = 2;
      oWanted = {pText->fontMetrics().horizontalAdvance(pText->text()),
                 pText->fontMetrics().ascent() + pText->fontMetrics().descent()};
      oRoom =
          oRoom.shrunkBy(pText->textMargins() + QMargins(kToolkitsMargin, 0, kToolkitsMargin, 0));
    } else if (pControl != nullptr && !pControl->Caption().isEmpty() && !IsHeaderImage(*pControl)) {
      const bool bWraps = pLabel != nullptr && pLabel->wordWrap();
      oWanted = bWraps ? QSize(0, pLabel->heightForWidth(pLabel->width()))
                       : QSize(pWidget->sizeHint().width(), 0);
      oRoom.setWidth(std::min(oRoom.width(), RoomFor(*pControl)));
    }
    if (pWidget->isVisible() && oWanted.boundedTo(oRoom) != oWanted) {
      sClipped += pWidget->objectName().toStdString() + " of " +
                  pWidget->parentWidget()->objectName().toStdString() + " at " +
                  std::to_string(Zoom()) + ": " + std::to_string(oWanted.width()) + " in " +
                  std::to_string(oRoom.width()) + "\n";
    }
  }
  return sClipped;
}

inline constexpr std::array kZooms = {0.75, 1.0, 1.25, 1.5, 2.0, 3.0};

}  // namespace quillet
