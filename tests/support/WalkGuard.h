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

#include "base/conversions.h"
#include "base/regionControls.h"
#include "sections/VisibleList.h"
#include "sections/controlHelpers.h"
#include "shell/frmMain.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"
#include "support/Places.h"

namespace quillet {

/// A step that was taken, and what it may have changed.
struct WalkStep {
  std::string sWhat{};
  bool bTouches = false;     ///< edits the auction on view
  bool bLaysOut = false;     ///< packs the rows anew
  bool bShowsAgain = false;  ///< hides the calculator and shows it again
  bool bCleans = false;      ///< loads or saves the auction on view
};

inline constexpr int kMostRaised = 120;  // by a step; walks have seen 54
inline constexpr int kRunaway = 20000;   // beyond it the stack is near its end

inline void ReadInto(clsCalculate& oAuction, std::string sText) {
  oAuction.Serialize(sText, false);
  oAuction.DoCalc();
}

/// An amount of more than seven digits loses the others in the text, and with them its figures.
inline bool StandsInText(const clsCalculate& oAuction) {
  const clsOutlay& oOutlay = oAuction.m_oOutlay;
  const clsPostage& oPostage = oAuction.m_oPostage;
  const std::array afAmounts = {oOutlay.m_fOutlay,       oOutlay.m_fStartingPrice,
                                oOutlay.m_fReservePrice, oOutlay.m_fEstimatedEndPrice,
                                oPostage.m_fWeight,      oPostage.m_fManualPostage,
                                oPostage.m_fProfit};
  return std::all_of(afAmounts.begin(), afAmounts.end(),
                     [](Single f) { return ToSingle(SingleText(f)) == f; });
}

/// The figures of a summary, one after the other.
inline std::string FiguresOf(const ctlSellingCosts& oSummary) {
  std::string sFigures;
  for (const char* const sLabel :
       {"lblInsertionFeeTotal", "lblListingCostTotal", "lblReserveFeeTotal",
        "lblFinalValueFeeTotal", "lblSellingCostTotal", "lblPostageTotal", "lblPayPalTotal",
        "lblProfitGrandTotal"}) {
    sFigures += oSummary.The(sLabel).Caption().toStdString() + " ";
  }
  return sFigures;
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
    QObject::connect(&oWindow.Calculator(), &ctlCalculator::Changed, &m_oListener, [this, fnCount] {
      fnCount();
      ++m_nCalculated;
      for (Document& oDocument : m_aoDocuments) {
        oDocument.sCalculated = TextOf(*oDocument.pAuction);
        oDocument.bExact = StandsInText(*oDocument.pAuction);
      }
    });
  }

  WalkGuard(const WalkGuard&) = delete;
  WalkGuard& operator=(const WalkGuard&) = delete;

  /// Before a step: notes how things stand.
  void Note() {
    m_nRaised = 0;
    m_nCalculated = 0;
    m_pOnViewBefore = &OnView();
    m_bInBox = qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
    for (Document& oDocument : m_aoDocuments) {
      oDocument.bDirty = oDocument.pAuction->IsDirty();
      oDocument.sText = TextOf(*oDocument.pAuction);
    }
  }

  /// After it: fails the test for each rule that is broken. What costs much is checked if `bAll`.
  void Check(const WalkStep& oStep, bool bAll) {
    EXPECT_LE(m_nRaised, kMostRaised) << "clicks and changes that one step has raised";
    CheckDirty(oStep);
    CheckSummary(oStep);
    if (bAll || oStep.bLaysOut) {
      CheckPlaces(oStep);
    }
  }

 private:
  /// An auction as it stood before the step.
  struct Document {
    clsCalculate* pAuction;
    bool bDirty = false;
    std::string sText{};
    std::string sCalculated{};  ///< its text when the view last calculated
    bool bExact = true;         ///< that text held every digit
  };

  Document& OnView() { return m_aoDocuments[m_oWindow.Calculator().ConfigMode() ? 1 : 0]; }

  /// Only what the user has done to it makes an auction dirty: an input, or a box that is left.
  void CheckDirty(const WalkStep& oStep) {
    for (const Document& oDocument : m_aoDocuments) {
      const bool bOnView = &oDocument == m_pOnViewBefore || &oDocument == &OnView();
      const bool bTouched = &oDocument == m_pOnViewBefore && (oStep.bTouches || m_bInBox);
      const bool bDirty = oDocument.pAuction->IsDirty();
      const std::string& sName = oDocument.pAuction->m_sName;
      EXPECT_FALSE(bDirty && !oDocument.bDirty && !bTouched) << sName << " is dirty, untouched";
      if (!bOnView) {
        EXPECT_EQ(TextOf(*oDocument.pAuction), oDocument.sText) << sName << " isn't on view";
      }
      if (oStep.bTouches && &oDocument == m_pOnViewBefore && !QuantityIsTooLarge()) {
        EXPECT_TRUE(bDirty || TextOf(*oDocument.pAuction) == oDocument.sText)
            << sName << " has changed and is clean";
      }
    }
    const bool bStar = m_oWindow.windowTitle().endsWith('*');
    EXPECT_FALSE(bStar && !OnView().pAuction->IsDirty()) << "a star for a clean auction";
    EXPECT_FALSE(oStep.bCleans && OnView().pAuction->IsDirty()) << "saved or loaded, and dirty";
  }

  /// That ends the outlay's work, once the prices are written, without a mark and without a word.
  bool QuantityIsTooLarge() const {
    const Control& oBox = ControlOf(m_oWindow.Calculator().Set().ctlOutlaySection, "txtQuantity");
    return dynamic_cast<const ctlNumericText&>(oBox).Value() >
           double{std::numeric_limits<std::int32_t>::max()};
  }

  /// The summary shows what the auction's text gives. To push an auction into the boxes can change
  /// it once more, where it is of another kind than the one before.
  void CheckSummary(const WalkStep& oStep) {
    if (!OnView().bExact) {
      return;
    }
    const ctlSellingCosts& oShown = m_oWindow.Calculator().Set().ctlSellingCostsSection;
    clsCalculate oFresh;
    ReadInto(oFresh, OnView().sCalculated);
    ctlSellingCosts oSummary(nullptr);
    oSummary.ApplySellingCosts(oFresh);
    EXPECT_EQ(FiguresOf(oShown), FiguresOf(oSummary)) << OnView().sCalculated;
    if (oStep.bTouches && m_nCalculated > 0) {
      const std::string sNow = TextOf(*OnView().pAuction);
      clsCalculate oNow;
      ReadInto(oNow, sNow);
      oSummary.ApplySellingCosts(oNow);
      EXPECT_EQ(FiguresOf(oShown), FiguresOf(oSummary)) << sNow;
    }
  }

  /// The rows on view are those that the mode, the list and the region ask for, and none lies on
  /// another. A calculator that is shown again looks as after a restart.
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
  int m_nCalculated = 0;  ///< of them, the calculations of the view
  QObject m_oListener;
};

}  // namespace quillet
