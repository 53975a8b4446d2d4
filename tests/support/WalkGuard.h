// Checks what must hold after each step of a walk over the main window.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "shell/frmMain.h"
#include "support/Screen.h"

namespace quillet {

/// One step of a walk, and what it may have changed.
struct WalkStep {
  std::string sWhat{};
  bool bTouches = false;     ///< edits the auction on view
  bool bLaysOut = false;     ///< packs the rows again
  bool bShowsAgain = false;  ///< hides the calculator and shows it again
  bool bCleans = false;      ///< loads or saves the auction on view after it
  /// The texts given to the working and the default auction; empty if none is.
  std::array<std::string, 2> asGiven{};
};

inline constexpr int kMostRaised = 120;  // by one step; the most seen is 54
inline constexpr int kRunaway = 20000;   // beyond this the stack nearly overflows

/// An auction's text after it has been shown: without a shop there is no duration.
inline std::string AsShown(std::string sText) {
  clsCalculate oAuction;
  oAuction.Serialize(sText, false);
  if (!oAuction.m_oAuctionType.m_bShopInventory) {
    oAuction.m_oAuctionType.m_eShopDuration = kShopNone;
  }
  return TextOf(oAuction);
}

class WalkGuard {
 public:
  explicit WalkGuard(frmMain& oWindow) : m_oWindow(oWindow) {
    const auto fnCount = [this] {
      if (++m_nRaised > kRunaway) {
        std::cerr << "The clicks never end." << std::endl;
        std::abort();
      }
    };
    for (const SectionPanel* const pPanel : oWindow.Calculator().findChildren<SectionPanel*>()) {
      QObject::connect(pPanel, &SectionPanel::Changed, &m_oListener, fnCount);
    }
    for (const auto* const pButton : oWindow.Calculator().findChildren<QAbstractButton*>()) {
      QObject::connect(pButton, &QAbstractButton::toggled, &m_oListener, fnCount);
    }
    QObject::connect(&oWindow.Calculator(), &ctlCalculator::Changed, &m_oListener, fnCount);
  }
  WalkGuard(const WalkGuard&) = delete;
  WalkGuard& operator=(const WalkGuard&) = delete;

  /// Before a step: records the state.
  void Note() {
    m_nRaised = 0;
    m_nOnViewBefore = OnView();
    m_bInBox = qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
    for (Document& oDocument : m_aoDocuments) {
      oDocument.bDirty = oDocument.pAuction->IsDirty();
      oDocument.sText = TextOf(*oDocument.pAuction);
    }
  }

  /// After it: fails the test for each broken rule. `bAll` runs the slow checks after any step.
  void Check(const WalkStep& oStep, bool bAll) {
    EXPECT_LE(m_nRaised, kMostRaised) << "clicks and changes that one step has raised";
    for (std::size_t nDocument : {0U, 1U}) {
      CheckDocument(nDocument, oStep);
    }
    CheckView();
    if (bAll || oStep.bLaysOut) {
      for (const SectionPanel* const pPanel : AllPanels(Set())) {
        EXPECT_EQ(OverlapsIn(*pPanel, pPanel->Controls()), "") << pPanel->SectionKey();
      }
    }
    if (oStep.bShowsAgain) {
      EXPECT_EQ(PlacesIn(Set()), Mirror().Places());
    }
  }

 private:
  /// An auction as it was before the step.
  struct Document {
    clsCalculate* pAuction;
    bool bDirty = false;
    std::string sText{};
  };

  const SectionSet& Set() { return m_oWindow.Calculator().Set(); }
  std::size_t OnView() { return m_oWindow.Calculator().ConfigMode() ? 1 : 0; }

  /// Only the user changes an auction or marks it dirty: by an input, or by leaving a box.
  void CheckDocument(std::size_t nDocument, const WalkStep& oStep) {
    const Document& oBefore = m_aoDocuments.at(nDocument);
    const std::string& sGiven = oStep.asGiven.at(nDocument);
    SCOPED_TRACE(oBefore.pAuction->m_sName);
    const bool bTouched = nDocument == m_nOnViewBefore && (oStep.bTouches || m_bInBox);
    const bool bCleaned = oStep.bCleans && nDocument == OnView();
    const std::string sNow = AsShown(TextOf(*oBefore.pAuction));
    const bool bDirty = oBefore.pAuction->IsDirty();
    if (!bTouched || !sGiven.empty()) {
      EXPECT_EQ(sNow, AsShown(sGiven.empty() ? oBefore.sText : sGiven));
    }
    if (bCleaned || !bTouched) {
      EXPECT_EQ(bDirty, bCleaned ? false : oBefore.bDirty);
    } else if (sGiven.empty() && !HoldsTooMuch()) {
      EXPECT_TRUE(bDirty || sNow == AsShown(oBefore.sText)) << "has changed and is clean";
    }
  }

  /// The view shows its auction, and no star if it is clean.
  void CheckView() {
    clsCalculate& oAuction = *m_aoDocuments.at(OnView()).pAuction;
    EXPECT_FALSE(m_oWindow.windowTitle().endsWith('*') && !oAuction.IsDirty());
    if (!HoldsTooMuch()) {
      EXPECT_EQ(m_oMirror.Differences(Set(), oAuction), "");
    }
  }

  /// A number beyond 32 bits silently stops its section halfway, before the auction turns dirty.
  bool HoldsTooMuch() {
    const auto fnTooMuch = [](const Control& oBox) {
      return dynamic_cast<const ctlNumericText&>(oBox).Value() >
             double{std::numeric_limits<std::int32_t>::max()};
    };
    return fnTooMuch(ControlOf(Set().ctlOutlaySection, "txtQuantity")) ||
           fnTooMuch(ControlOf(Set().ctlSellingFeaturesSection, "txtExtraPictures"));
  }

  frmMain& m_oWindow;
  Mirror m_oMirror;
  std::array<Document, 2> m_aoDocuments{Document{&WorkingAuction()}, Document{&DefaultAuction()}};
  std::size_t m_nOnViewBefore = 0;
  bool m_bInBox = false;  ///< a numeric box had the focus
  int m_nRaised = 0;      ///< clicks and changes raised by the step
  QObject m_oListener;
};

}  // namespace quillet
