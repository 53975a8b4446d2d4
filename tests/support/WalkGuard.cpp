#include "support/WalkGuard.h"

#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <set>

#include "base/conversions.h"
#include "base/regionControls.h"
#include "prices/money.h"
#include "sections/VisibleList.h"
#include "sections/controlHelpers.h"
#include "support/Log.h"
#include "support/PanelScript.h"

namespace quillet {
namespace {

constexpr int kMostRaised = 120;  // by a step; walks have seen 54
constexpr int kRunaway = 20000;   // beyond it the stack is near its end

std::string TextOf(clsCalculate& oAuction) {
  std::string sText;
  oAuction.Serialize(sText, true);
  return sText;
}

void ReadInto(clsCalculate& oAuction, std::string sText) {
  oAuction.Serialize(sText, false);
  oAuction.DoCalc();
}

/// An amount of more than seven digits loses the others in the text, and with them its figures.
bool StandsInText(const clsCalculate& oAuction) {
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
std::string FiguresOf(const ctlSellingCosts& oSummary) {
  std::string sFigures;
  for (const char* const sLabel :
       {"lblInsertionFeeTotal", "lblListingCostTotal", "lblReserveFeeTotal",
        "lblFinalValueFeeTotal", "lblSellingCostTotal", "lblPostageTotal", "lblPayPalTotal",
        "lblProfitGrandTotal"}) {
    sFigures += oSummary.The(sLabel).Caption().toStdString() + " ";
  }
  return sFigures;
}

bool IsPacked(const SectionPanel& oPanel, const Control& oControl) {
  return oControl.Container() == &oPanel && !IsShowCheck(oControl) && !IsHeaderImage(oControl);
}

std::vector<DesignedControl> RowsOf(const SectionPanel& oPanel) {
  std::vector<DesignedControl> aoRows;
  for (const Control* const pControl : oPanel.Controls()) {
    if (IsPacked(oPanel, *pControl)) {
      aoRows.push_back({pControl->Name(), pControl->Top(), pControl->Height()});
    }
  }
  return aoRows;
}

/// These register their rows anew at each show and at each click on a Show box, at the places that
/// the rows then have: a row that was hidden, and the one that was packed into its place, are one
/// row from then on. The others keep the design's places.
bool RegistersAnew(const SectionPanel& oPanel) {
  static const std::set<std::string> asKeys = {"Outlay", "SellingFeatures", "AuctionType",
                                               "PayPal"};
  return asKeys.contains(oPanel.SectionKey());
}

}  // namespace

WalkGuard::WalkGuard(frmMain& oWindow, const std::vector<SectionPanel*>& aoPanels)
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
    m_aoRegistered[pPanel] = RowsOf(*pPanel);
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

WalkGuard::~WalkGuard() = default;

WalkGuard::Document& WalkGuard::OnView() {
  return m_aoDocuments[m_oWindow.Calculator().ConfigMode() ? 1 : 0];
}

void WalkGuard::Note() {
  m_nRaised = 0;
  m_nCalculated = 0;
  m_pOnViewBefore = &OnView();
  m_bInBox = qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr;
  for (Document& oDocument : m_aoDocuments) {
    oDocument.bDirty = oDocument.pAuction->IsDirty();
    oDocument.sText = TextOf(*oDocument.pAuction);
  }
  for (const SectionPanel* const pPanel : m_aoPanels) {
    m_aoBefore[pPanel] = RowsOf(*pPanel);
  }
}

void WalkGuard::Check(const WalkStep& oStep, bool bAll) {
  CheckRecursion();
  CheckDirty(oStep);
  CheckSummary(oStep);
  if (bAll || !oStep.sSaved.empty()) {
    CheckSaved(oStep);
  }
  FollowRegistration(oStep);
  if (bAll || oStep.bLaysOut) {
    CheckPlaces(oStep);
  }
}

void WalkGuard::CheckRecursion() {
  m_nMostRaised = std::max(m_nMostRaised, m_nRaised);
  EXPECT_LE(m_nRaised, kMostRaised) << "clicks and changes that one step has raised";
}

/// Only what the user has done to it makes an auction dirty: an input, or a box that is left.
void WalkGuard::CheckDirty(const WalkStep& oStep) {
  for (const Document& oDocument : m_aoDocuments) {
    const bool bOnView = &oDocument == m_pOnViewBefore || &oDocument == &OnView();
    const bool bTouched = &oDocument == m_pOnViewBefore && (oStep.bTouches || m_bInBox);
    const bool bDirty = oDocument.pAuction->IsDirty();
    const std::string& sName = oDocument.pAuction->m_sName;
    EXPECT_FALSE(bDirty && !oDocument.bDirty && !bTouched) << sName << " is dirty, untouched";
    if (!bOnView) {
      EXPECT_EQ(TextOf(*oDocument.pAuction), oDocument.sText) << sName << " isn't on view";
    }
    if (oStep.bTouches && &oDocument == m_pOnViewBefore) {
      EXPECT_TRUE(bDirty || TextOf(*oDocument.pAuction) == oDocument.sText)
          << sName << " has changed and is clean";
    }
  }
  const bool bStar = m_oWindow.windowTitle().endsWith('*');
  EXPECT_FALSE(bStar && !OnView().pAuction->IsDirty()) << "a star for a clean auction";
  EXPECT_FALSE(oStep.bCleans && OnView().pAuction->IsDirty()) << "saved or loaded, and dirty";
}

/// The summary shows what the auction's text gives. To push an auction into the boxes can change
/// it once more, where it is of another kind than the one before.
void WalkGuard::CheckSummary(const WalkStep& oStep) {
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
    CheckSectionTotals(oNow);
  }
}

void WalkGuard::CheckSectionTotals(clsCalculate& oFresh) {
  SectionSet& oSet = m_oWindow.Calculator().Set();
  const auto fnCheck = [](const SectionPanel& oSection, Single fTotal) {
    EXPECT_EQ(oSection.Find("lblTotal")->Caption().toStdString(),
              "Section Total " + FormatMoney(fTotal))
        << oSection.SectionKey();
  };
  fnCheck(oSet.ctlAuctionTypeSection, oFresh.m_oAuctionType.DoCalc(oFresh.m_oOutlay));
  fnCheck(oSet.ctlSellingFeaturesSection,
          oFresh.m_oSellingFeatures.DoCalc(&oFresh.m_oAuctionType, &oFresh.m_oOutlay));
  fnCheck(oSet.ctlPayPalSection, oFresh.m_fPayPayCost);
  fnCheck(oSet.ctlPostageSection, oFresh.m_fPostageCost);
}

/// What is saved, read and saved again stays the same, and so do its figures.
void WalkGuard::CheckSaved(const WalkStep& oStep) {
  const std::string sText = TextOf(*OnView().pAuction);
  if (!oStep.sSaved.empty()) {
    EXPECT_EQ(ReadTestFile(oStep.sSaved), sText + "\n");
  }
  clsCalculate oRead;
  ReadInto(oRead, sText);
  EXPECT_EQ(TextOf(oRead), sText);
  if (!StandsInText(*OnView().pAuction)) {
    return;
  }
  OnView().pAuction->DoCalc();
  const auto fnFigures = [](const clsCalculate& o) {
    return std::array{o.m_fProfit,        o.m_fSellCost,    o.m_fPostageCost, o.m_fPostageProfit,
                      o.m_fFinalValueFee, o.m_fListingCost, o.m_fReserveCost, o.m_fPayPayCost};
  };
  EXPECT_EQ(fnFigures(*OnView().pAuction), fnFigures(oRead)) << sText;
}

void WalkGuard::FollowRegistration(const WalkStep& oStep) {
  for (const SectionPanel* const pPanel : m_aoPanels) {
    if (RegistersAnew(*pPanel) && (oStep.bShowsAgain || oStep.pTicked == pPanel)) {
      m_aoRegistered[pPanel] = m_aoBefore[pPanel];
    }
  }
}

/// The rows on view are those that the mode, the list and the region ask for; they stand packed in
/// the order and in the rows in which they were registered; and the panel ends with the last one.
void WalkGuard::CheckPlaces(const WalkStep& oStep) {
  for (const SectionPanel* const pPanel : m_aoPanels) {
    SCOPED_TRACE(pPanel->SectionKey());
    std::vector<DesignedControl> aoRows = m_aoRegistered[pPanel];
    std::stable_sort(aoRows.begin(), aoRows.end(),
                     [](const auto& a, const auto& b) { return a.nTop < b.nTop; });
    const clsTokeniser oList = LoadVisibleList(pPanel->SectionKey());
    std::vector<PackedControl> aoShown;
    std::vector<std::string> asHidden;
    int nBottom = 0;
    for (DesignedControl& oRow : aoRows) {
      const Control& oControl = *pPanel->Find(oRow.sName);
      oRow.nCurrentHeight = oControl.Height();
      if (oStep.bLaysOut) {
        EXPECT_EQ(oControl.Visible(),
                  RegionAllowsControl(oRow.sName) &&
                      (pPanel->ShowConfig() || NameInVisibleList(oRow.sName, oList)))
            << oRow.sName;
      }
      if (oControl.Visible()) {
        aoShown.emplace_back(oRow.sName, oControl.Top());
        nBottom = oControl.Top() + oControl.Height();
      } else {
        asHidden.push_back(oRow.sName);
      }
    }
    CheckRows(aoShown, asHidden, aoRows);
    EXPECT_EQ(pPanel->Height(), nBottom);
    if (!aoShown.empty()) {
      EXPECT_EQ(aoShown.front().second, aoRows.front().nTop) << "where the first row stands";
    }
  }
}

}  // namespace quillet
