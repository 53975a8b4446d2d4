// The what-if window beside the main window.
#include "shell/frmWhatIf.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QTableView>
#include <set>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "documents/lastFolder.h"
#include "prices/money.h"
#include "shell/ButtonColumn.h"
#include "shell/frmMain.h"
#include "shell/whatif/FiguresCard.h"
#include "support/ByRegion.h"
#include "support/Captions.h"
#include "support/Prices.h"
#include "support/Screen.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class WhatIf : public ::testing::Test {
 protected:
  WhatIf() {
    Registry().Set(settings::kStartMode, "1");
    SetLastFolder(m_oFolder.sPath);
    m_oMain.Show();
    QApplication::processEvents();
    QTest::keyClick(&m_oMain, Qt::Key_3, Qt::ControlModifier);
    QApplication::processEvents();
    m_pWindow = m_oMain.findChild<frmWhatIf*>();
  }

  void Load(std::string sAuction) {
    WorkingAuction().Serialize(sAuction, false);
    WorkingAuction().SetDirty(false);
    m_oMain.Calculator().RefreshSums(true);
  }

  template <typename Kind>
  Kind& The(const char* sName) {
    return *m_pWindow->findChild<Kind*>(sName);
  }
  void Click(const char* sName) { The<QAbstractButton>(sName).click(); }
  QAbstractItemModel& Rows() { return *The<QTableView>("tblAlternatives").model(); }
  std::string Cell(int nRow, int nColumn) {
    return Rows().index(nRow, nColumn).data().toString().toStdString();
  }
  void UseRow(int nRow) {
    auto& oTable = The<QTableView>("tblAlternatives");
    oTable.setCurrentIndex(Rows().index(nRow, 0));
    QTest::keyClick(&oTable, Qt::Key_Return);
  }
  void Undo() { QTest::keyClick(m_pWindow, Qt::Key_Z, Qt::ControlModifier); }

  /// The text of the first card.
  std::string Figures() {
    return m_pWindow->findChildren<TitledCard*>().front()->accessibleName().toStdString();
  }
  void TypeOutlay(const char* sBox, const char* sNumber) {
    m_oMain.activateWindow();
    QApplication::processEvents();
    TypeInto(Set().ctlOutlaySection, sBox, sNumber);
  }
  SectionSet& Set() { return m_oMain.Calculator().Set(); }

  ScopedHost m_oHost;
  TemporaryFolder m_oFolder;
  frmMain m_oMain;
  Mirror m_oMirror;
  frmWhatIf* m_pWindow = nullptr;
};

TEST_F(WhatIf, ARowThatIsUsedIsOnScreenAndTakenBackToTheDigit) {
  for (const std::string& sSample : SampleTexts()) {
    Load(sSample);
    WorkingAuction().m_oOutlay.m_fOutlay = 1234567.875;  // more digits than its text can hold
    m_oMain.Calculator().RefreshSums(true);
    const std::string sBefore = TextOf(WorkingAuction());
    for (int nRow = 0; nRow < Rows().rowCount(); ++nRow) {
      const std::string sName = Cell(nRow, 0);
      SCOPED_TRACE(sName + " of " + sSample);
      const std::string sProfit = Cell(nRow, 2);
      const bool bAsItIs = sName.starts_with("As it is");
      UseRow(nRow);
      EXPECT_EQ(FormatMoney(WorkingAuction().m_fProfit), sProfit);
      EXPECT_EQ(m_oMirror.Differences(Set(), WorkingAuction()), "");
      EXPECT_EQ(WorkingAuction().IsDirty(), !bAsItIs);
      Undo();
      EXPECT_EQ(TextOf(WorkingAuction()), sBefore);
      EXPECT_EQ(WorkingAuction().m_oOutlay.m_fOutlay, 1234567.875);
      EXPECT_FALSE(WorkingAuction().IsDirty());
      EXPECT_EQ(m_oMirror.Differences(Set(), WorkingAuction()), "");
      EXPECT_EQ(Cell(nRow, 0), sName);
    }
  }
}

TEST_F(WhatIf, SeveralUsesAreTakenBackUntilSomethingElseChanges) {
  const std::string sBefore = TextOf(WorkingAuction());
  The<QAbstractButton>("imgUse").click();
  UseRow(1);
  m_oHost.asChoices = {m_oFolder / "used.qlt"};
  m_oMain.ClickButton(kButtonSave);
  EXPECT_FALSE(WorkingAuction().IsDirty());
  Undo();
  Undo();
  EXPECT_EQ(TextOf(WorkingAuction()), sBefore);
  EXPECT_TRUE(WorkingAuction().IsDirty()) << "it isn't what was saved";
  UseRow(1);
  ClickOn(Set().ctlPayPalSection, "chkUsePayPal");
  const std::string sByHand = TextOf(WorkingAuction());
  EXPECT_FALSE(The<QAbstractButton>("imgUndo").isEnabled());
  Undo();
  EXPECT_EQ(TextOf(WorkingAuction()), sByHand);
}

TEST_F(WhatIf, FollowsTheAuctionOfEveryViewWhileItIsOpen) {
  const auto fnPays = [this](const char* sMoney) {
    return Figures().find("pays " + FormatMoney(std::stod(sMoney))) != std::string::npos;
  };
  TypeOutlay("txtQuantity", "2");
  TypeOutlay("txtEstimatedEndPrice", "12.5");
  EXPECT_TRUE(fnPays("25")) << Figures();
  m_oMain.ClickButton(kButtonConfig);
  EXPECT_TRUE(fnPays("0")) << Figures();
  TypeOutlay("txtQuantity", "1");
  TypeOutlay("txtEstimatedEndPrice", "7");
  EXPECT_TRUE(fnPays("7")) << Figures();
  m_oHost.aeAnswers = {Answer::No};
  m_oMain.ClickButton(kButtonWizard);
  EXPECT_TRUE(fnPays("0")) << Figures();
  WorkingAuction().m_oOutlay.m_fEstimatedEndPrice = 3;
  m_oMain.Wizard().RefreshSums(true);
  EXPECT_TRUE(fnPays("3")) << Figures();
  QTest::keyClick(m_pWindow, Qt::Key_Escape);
  EXPECT_FALSE(m_pWindow->isVisible());
  m_oMain.Wizard().RefreshSums(true);
  m_oMain.ClickButton(kButtonCalculator);
  EXPECT_TRUE(fnPays("3")) << "a closed window is left alone";
}

TEST_F(WhatIf, WhatIsTypedInTheMainWindowCountsOnceThisOneIsActive) {
  m_oMain.activateWindow();
  QApplication::processEvents();
  auto& oQuantity = dynamic_cast<ctlNumericText&>(ControlOf(Set().ctlOutlaySection, "txtQuantity"));
  oQuantity.TextBox()->setFocus(Qt::TabFocusReason);
  QTest::keyClicks(oQuantity.TextBox(), "3");
  m_pWindow->activateWindow();
  QApplication::processEvents();
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_lQuantity, 3);
}

TEST_F(WhatIf, TabReachesWhateverTakesTheFocusAndHasAName) {
  Load(SampleTexts().front());
  UseRow(1);  // so that there is something to undo
  m_pWindow->activateWindow();
  QApplication::processEvents();
  std::set<const QWidget*> apReached;
  for (int i = 0; i < 20; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    apReached.insert(QApplication::focusWidget());
  }
  for (QWidget* const pPart : m_pWindow->findChildren<QWidget*>()) {
    if ((pPart->focusPolicy() & Qt::TabFocus) != 0 && pPart->focusProxy() == nullptr &&
        pPart->isVisible() && pPart->isEnabled()) {
      const std::string sPart =
          pPart->metaObject()->className() + pPart->objectName().toStdString();
      EXPECT_TRUE(apReached.contains(pPart)) << sPart;
      EXPECT_NE(QAccessible::queryAccessibleInterface(pPart)->text(QAccessible::Name), "") << sPart;
    }
  }
}

TEST_F(WhatIf, TheGoalGivesThePriceThatIsUsed) {
  Load(SampleTexts().front());
  auto& oBox = The<ctlNumericText>("txtGoal");
  const auto fnWant = [&](const char* sNumber) {
    oBox.TextBox()->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(oBox.TextBox(), sNumber);
    QTest::keyClick(oBox.TextBox(), Qt::Key_Return);
  };
  const auto aoKinds = The<QWidget>("fraGoalKind").findChildren<OptionButton*>();
  fnWant("33.5");
  Click("imgUse");
  EXPECT_GE(WorkingAuction().m_fProfit, 33.5);
  EXPECT_LT(WorkingAuction().m_fProfit, 33.53);
  aoKinds.at(1)->click();
  EXPECT_EQ(oBox.Text(), "33.50") << "a percentage has no currency";
  Click("imgUse");
  EXPECT_GE(WorkingAuction().m_fProfit / WorkingAuction().m_fSellCost, 0.335);
  aoKinds.at(2)->click();
  const std::string sBefore = TextOf(WorkingAuction());
  for (const char* const sRefused : {"-1", "a third"}) {
    fnWant(sRefused);
    EXPECT_EQ(oBox.Text(), "33.50") << sRefused;
  }
  fnWant("99.9");
  EXPECT_FALSE(The<QAbstractButton>("imgUse").isEnabled()) << "no price does it";
  EXPECT_EQ(TextOf(WorkingAuction()), sBefore);
}

TEST_F(WhatIf, WhatCantBeCalculatedIsSaidAloneInTheFirstLine) {
  const auto fnShown = [this] {
    std::string sShown;
    for (const QWidget* const pPart : m_pWindow->findChildren<QWidget*>()) {
      const auto* const pLabel = qobject_cast<const QLabel*>(pPart);
      const bool bSays = qobject_cast<const TitledCard*>(pPart) != nullptr || pLabel != nullptr;
      sShown += bSays && pPart->isVisible() ? (pLabel ? pLabel->text() : "card").toStdString() : "";
    }
    return sShown;
  };
  const std::string sWhole = fnShown();
  TypeOutlay("txtEstimatedEndPrice", "3e38");
  TypeOutlay("txtQuantity", "999");
  EXPECT_EQ(fnShown(), "An amount is too large to calculate with.");
  EXPECT_FALSE(The<QAbstractButton>("imgCopy").isEnabled());
  TypeOutlay("txtEstimatedEndPrice", "3");
  EXPECT_EQ(fnShown(), sWhole);
}

TEST_F(WhatIf, IsCopiedAsTextWithTabs) {
  UseSchedule("CurrencySymbol,$\nCurrencyFormat,0.00\nFeatureBold,2.00\n" +
              Tiers("Opening", {{"0", "-1", "1"}}) + Tiers("FinalValue", {{"0", "-1", "10"}}));
  m_oHost.sDecimalSeparator = ",";
  WorkingAuction().m_oOutlay.m_fOutlay = 30;
  WorkingAuction().m_oOutlay.m_fEstimatedEndPrice = 20;
  WorkingAuction().m_oOutlay.m_lQuantity = 1;
  WorkingAuction().m_oSellingFeatures.AddFeature(kFeatureBold);
  m_oMain.Calculator().RefreshSums(true);
  Click("imgCopy");
  const QString sCopied = QApplication::clipboard()->text();
  EXPECT_TRUE(
      sCopied.startsWith("Where the money goes\tAmount\tPercent\n"
                         "Outlay\t30,00\t"))
      << sCopied.toStdString();
  EXPECT_TRUE(sCopied.contains("\nInsertion and features\t3,00\t")) << sCopied.toStdString();
  EXPECT_TRUE(sCopied.contains("\n\nWhat if\tFees\tProfit\tDifference\n")) << sCopied.toStdString();
  EXPECT_TRUE(sCopied.contains("\nAs it is: standard auction\t"));
}

TEST_F(WhatIf, NothingIsCutOffAtAnyZoomAndTodaysFeesHaveAnAdRate) {
  EXPECT_EQ(Figures().find("ad rate"), std::string::npos);
  UseScheduleOfToday();
  m_oMain.Calculator().FollowSchedule();
  Load("[OUTLAY]50|0|0|100|1|False[OUTLAY]");
  const char* const sRate = ByRegion("Break-even ad rate 29.7 %", "Break-even ad rate 35.6 %");
  EXPECT_TRUE(Figures().ends_with(sRate)) << Figures();
  for (const double fZoom : kZooms) {
    m_oMain.SetZoomPercent(static_cast<int>(fZoom * 100));
    for (const int nWidth : {380, 640, 1100}) {
      m_pWindow->resize(static_cast<int>(nWidth * fZoom), static_cast<int>(800 * fZoom));
      QApplication::processEvents();
      EXPECT_EQ(ClippedIn(*m_pWindow), "") << nWidth;
    }
  }
}

}  // namespace
}  // namespace quillet
