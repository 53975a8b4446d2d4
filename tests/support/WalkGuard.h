// What must hold after each step of a walk over the main window.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/regionControls.h"
#include "sections/VisibleList.h"
#include "sections/controlHelpers.h"
#include "shell/frmMain.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"
#include "support/Places.h"
#include "support/Screen.h"

namespace quillet {

/// A step that was taken, and what it may have changed.
struct WalkStep {
  std::string sWhat{};
  bool bTouches = false;     ///< edits the auction on view
  bool bLaysOut = false;     ///< packs the rows again
  bool bShowsAgain = false;  ///< hides the calculator and shows it again
  bool bCleans = false;      ///< loads or saves the auction then on view
  /// The texts that the two auctions are given; empty where there is none.
  std::string sWorking{};
  std::string sDefault{};
};

inline constexpr int kMostRaised = 120;  // by a step; walks have seen 54
inline constexpr int kRunaway = 20000;   // beyond it the stack nearly overflows

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
  WalkGuard(frmMain& oWindow, const std::vector<SectionPanel*>& aoPanels)
      : m_oWindow(oWindow),
        m_aoPanels(aoPanels),
        m_aoDocuments{Document{&WorkingAuction()}, Document{&DefaultAuction()}} {
    const auto fnCount = [this] {
      if (++m_nRaised > kRunaway) {
        std::cerr << "The clicks never end." << std::endl;
        std::abort();
      }
    };
    for (const SectionPanel* const pPanel : aoPanels) {
      QObject::connect(pPanel, &SectionPanel::Changed, &m_oListener, fnCount);
      for (Control* const pControl : pPanel->Controls()) {
        if (auto* const pButton = dynamic_cast<QAbstractButton*>(pControl)) {
          QObject::connect(pButton, &QAbstractButton::toggled, &m_oListener, fnCount);
        }
      }
    }
    QObject::connect(&oWindow.Calculator(), &ctlCalculator::Changed, &m_oListener, fnCount);
  }

  WalkGuard(const WalkGuard&) = delete;
  WalkGuard& operator=(const WalkGuard&) = delete;

  /// Before a step: records the state.
  void Note() {
    m_nRaised = 0;
    m_pOnViewBefore = &OnView();
    m_bInBox = qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
    for (Document& oDocument : m_aoDocuments) {
      oDocument.bDirty = oDocument.pAuction->IsDirty();
      oDocument.sText = TextOf(*oDocument.pAuction);
    }
  }

  /// After it: fails the test for each broken rule. Slow checks run only with `bAll`.
  void Check(const WalkStep& oStep, bool bAll) {
    EXPECT_LE(m_nRaised, kMostRaised) << "clicks and changes that one step has raised";
    CheckDocument(m_aoDocuments[0], oStep, oStep.sWorking);
    CheckDocument(m_aoDocuments[1], oStep, oStep.sDefault);
    CheckView();
    if (bAll || oStep.bLaysOut) {
      CheckPlaces(oStep);
    }
  }

 private:
  /// An auction as it was before the step.
  struct Document {
    clsCalculate* pAuction;
    bool bDirty = false;
    std::string sText{};
  };

  Document& OnView() { return m_aoDocuments[m_oWindow.Calculator().ConfigMode() ? 1 : 0]; }

  /// Only the user changes an auction or marks it dirty: by an input, or by leaving a box.
  void CheckDocument(const Document& oBefore, const WalkStep& oStep, const std::string& sGiven) {
    SCOPED_TRACE(oBefore.pAuction->m_sName);
    const bool bTouched = &oBefore == m_pOnViewBefore && (oStep.bTouches || m_bInBox);
    const bool bCleaned = oStep.bCleans && &oBefore == &OnView();
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
    clsCalculate& oAuction = *OnView().pAuction;
    EXPECT_FALSE(m_oWindow.windowTitle().endsWith('*') && !oAuction.IsDirty());
    if (!HoldsTooMuch()) {
      EXPECT_EQ(WrongOnScreen(m_oWindow.Calculator().Set(), oAuction), "");
    }
  }

  /// A number beyond 32 bits silently ends its section's work halfway, without marking it dirty.
  bool HoldsTooMuch() const {
    const SectionSet& oSet = m_oWindow.Calculator().Set();
    const auto fnTooMuch = [](const Control& oBox) {
      return dynamic_cast<const ctlNumericText&>(oBox).Value() >
             double{std::numeric_limits<std::int32_t>::max()};
    };
    return fnTooMuch(ControlOf(oSet.ctlOutlaySection, "txtQuantity")) ||
           fnTooMuch(ControlOf(oSet.ctlSellingFeaturesSection, "txtExtraPictures"));
  }

  /// The visible rows are those that the mode, the list and the region ask for, and none overlap. A
  /// calculator that is shown again looks as it does after a restart.
  void CheckPlaces(const WalkStep& oStep) {
    for (const SectionPanel* const pPanel : m_aoPanels) {
      SCOPED_TRACE(pPanel->SectionKey());
      const clsTokeniser oList = LoadVisibleList(pPanel->SectionKey());
      for (const Control* const pRow : RowsIn(*pPanel)) {
        EXPECT_TRUE(!oStep.bLaysOut ||
                    pRow->Visible() ==
                        (RegionAllowsControl(pRow->Name()) &&
                         (pPanel->ShowConfig() || NameInVisibleList(pRow->Name(), oList))))
            << pRow->Name();
      }
      EXPECT_EQ(OverlapsIn(*pPanel), "");
    }
    if (oStep.bShowsAgain) {
      EXPECT_EQ(PlacesOf(m_oWindow.Calculator().Set().Sections()), PlacesAfterRestart());
    }
  }

  frmMain& m_oWindow;
  const std::vector<SectionPanel*>& m_aoPanels;
  std::array<Document, 2> m_aoDocuments;
  const Document* m_pOnViewBefore = nullptr;
  bool m_bInBox = false;  ///< a numeric box had the focus
  int m_nRaised = 0;      ///< clicks and changes raised by the step
  QObject m_oListener;
};

}  // namespace quillet
