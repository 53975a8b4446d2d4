#include "shell/ctlWizard.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "controls/ImageButton.h"
#include "controls/ScrollBar.h"
#include "shell/WizardSteps.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"
#include "support/Prices.h"

namespace quillet {
namespace {

/// Starts with a cleared auction of one item, as the wizard does.
void ClearAuction() {
  WorkingAuction().Clear();
  WorkingAuction().m_oOutlay.m_lQuantity = 1;
  WorkingAuction().SetDirty(false);
}

class Wizard : public ::testing::Test {
 protected:
  Wizard() {
    ClearAuction();
    m_oWindow.resize(1200, 1200);
  }

  /// Shows a wizard of that size in twips. The smallest main window gives it 10215 by 8010.
  void Start(int nWidth = 10215, int nHeight = 8010) {
    m_pView = new ctlWizard(&m_oWindow);
    m_pView->SetVisible(false);
    m_pView->Place(0, 0, nWidth, nHeight);
    m_oWindow.show();
    m_oWindow.activateWindow();
    m_pView->SetVisible(true);
    QApplication::processEvents();
  }

  template <typename Kind>
  Kind& The(const char* sName) {
    return dynamic_cast<Kind&>(*m_pView->findChild<QWidget*>(sName));
  }
  void Click(const char* sButton) {
    auto& oButton = The<QWidget>(sButton);
    QTest::mouseClick(&oButton, Qt::LeftButton, {}, oButton.rect().center());
  }
  int Page() { return m_pView->Current()->lIndex; }
  SectionPanel& Section() { return *m_pView->Current()->oSection; }
  void Press(int nKey, Qt::KeyboardModifiers eWith = {}) {
    QWidget* const pFocus = QApplication::focusWidget();
    QTest::keyClick(pFocus != nullptr ? pFocus : m_pView, static_cast<Qt::Key>(nKey), eWith);
  }

  QWidget m_oWindow;
  ctlWizard* m_pView = nullptr;
};

TEST_F(Wizard, ClicksLeadThroughTheFivePagesInTheirOrder) {
  Start();
  QSignalSpy oComplete(m_pView, &ctlWizard::WizardComplete);
  std::string sPages;
  for (int i = 0; i < 5; ++i, Click("imgNext")) {
    for (const SectionPanel* const pSection : m_pView->Set().Sections()) {
      sPages += pSection->isVisible() ? std::string(pSection->SectionKey()) + ":" : "";
    }
    sPages += FocusName() + " ";
    EXPECT_TRUE(The<WizardSteps>("Steps").Caption().contains(QString("Step %1 of 5").arg(i + 1)));
    EXPECT_EQ(The<ImageButton>("imgBack").isVisible(), i > 0);
    EXPECT_EQ(The<ImageButton>("imgNext").Caption(), i < 4 ? "&Next" : "&Finish");
    EXPECT_EQ(oComplete.count(), 0);
  }
  EXPECT_EQ(sPages,
            "AuctionType:optStandardAution Outlay:txtOutlay SellingFeatures:chkHomePageFeatured "
            "PayPal:chkUsePayPal Postage:chkUsePostage ");
  EXPECT_EQ(oComplete.count(), 1);
  EXPECT_EQ(Page(), 4) << "the window turns the view off";
  EXPECT_FALSE(WorkingAuction().IsDirty()) << "nothing was entered";
}

TEST_F(Wizard, TodaysFeesHaveAPageForAsLongAsTheyAreInUse) {
  const auto fnStep = [this] { return The<WizardSteps>("Steps").Caption().toStdString(); };
  UseScheduleOfToday();
  Start();
  Click("imgNext");
  Click("imgNext");
  EXPECT_EQ(fnStep(), "Step 3 of 6 · Sale Fees");
  EXPECT_NE(The<Label>("lblInfo").Caption().indexOf("category"), -1);
  UseShippedSchedule();
  m_pView->FollowSchedule();
  EXPECT_EQ(fnStep(), "Step 2 of 5 · Outlay");
  UseScheduleOfToday();
  m_pView->FollowSchedule();
  EXPECT_EQ(fnStep(), "Step 2 of 6 · Outlay");
  Click("imgNext");
  EXPECT_EQ(fnStep(), "Step 3 of 6 · Sale Fees");
  EXPECT_GT(Section().Height(), 2000) << "its rows are in place";
}

TEST_F(Wizard, KeysLeadThroughThePages) {
  const struct {
    int nKey;
    Qt::KeyboardModifiers eWith;
    int nPage;
    int nComplete;
    const char* sWhat;
  } kKeys[] = {
      {Qt::Key_Left, Qt::AltModifier, 0, 0, "nothing to go back to"},
      {Qt::Key_Return, {}, 1, 0, "from an option"},
      {Qt::Key_Enter, Qt::KeypadModifier, 2, 0, "from a numeric box"},
      {Qt::Key_N, Qt::AltModifier, 3, 0, "Next by its access key"},
      {Qt::Key_B, Qt::AltModifier, 2, 0, "Back by its own"},
      {Qt::Key_Left, Qt::AltModifier, 1, 0, "back"},
      {Qt::Key_Right, Qt::AltModifier, 2, 0, "on"},
      {Qt::Key_Return, {}, 3, 0, "from a box"},
      {Qt::Key_Return, {}, 4, 0, "from a box"},
      {Qt::Key_Return, {}, 4, 1, "Finish"},
      {Qt::Key_Escape, {}, 4, 2, "Cancel"},
      {Qt::Key_F, Qt::AltModifier, 4, 3, "Finish by its access key"},
  };
  Start();
  QSignalSpy oComplete(m_pView, &ctlWizard::WizardComplete);
  for (const auto& [nKey, eWith, nPage, nComplete, sWhat] : kKeys) {
    Press(nKey, eWith);
    // A button pressed by its access key stays down for a moment.
    EXPECT_TRUE(QTest::qWaitFor([&] { return Page() == nPage && oComplete.count() == nComplete; }))
        << sWhat << ": page " << Page() << ", complete " << oComplete.count();
  }
  EXPECT_FALSE(WorkingAuction().IsDirty()) << "nothing was entered";
  The<ImageButton>("imgBack").setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(Page(), 3) << "Enter works the button that has the focus";
}

TEST_F(Wizard, TabGoesFromThePageToTheButtonsAndScrollsToWhereItIs) {
  Start(10215, 5205);
  const auto& oView = The<Frame>("fraViewPort");
  std::string sButtons;
  for (int i = 0; i < 60 && !sButtons.ends_with("imgCancel"); ++i) {
    const QWidget* const pFocus = QApplication::focusWidget();
    if (oView.isAncestorOf(pFocus)) {
      const QRect oPlace(pFocus->mapTo(&oView, QPoint()), pFocus->size());
      EXPECT_TRUE(oView.rect().contains(oPlace)) << FocusName() << " after " << i << " tabs";
    } else {
      sButtons += " " + FocusName();
    }
    Press(Qt::Key_Tab);
  }
  EXPECT_EQ(sButtons, " imgNext imgCancel");
}

TEST_F(Wizard, TheInstructionOfAFrameCanBeReplacedInTheSettings) {
  Registry().SetRegSettingString(HiveRoot::User, "What does it cost?", "Page0", "Wizard");
  Start();
  EXPECT_EQ(The<Label>("lblInfo").Caption(), "Please enter your type of auction");
  Click("imgNext");
  EXPECT_EQ(The<Label>("lblInfo").Caption(), "What does it cost?");
  std::string sText;
  EXPECT_FALSE(Registry().GetRegSettingString(HiveRoot::User, sText, "Page1", "Wizard", ""))
      << "what isn't there isn't created";
}

TEST_F(Wizard, CancelKeepsWhatWasEnteredAndTheNextShowBeginsAnew) {
  Start();
  ClickOn(Section(), "chkBuyItNow");
  Click("imgNext");
  TypeInto(Section(), "txtOutlay", "40");
  TypeInto(Section(), "txtEstimatedEndPrice", "149");
  Press(Qt::Key_Return);
  EXPECT_TRUE(IsGrey(ControlOf(Section(), "chkBuyItNow"))) << "the price is fixed";
  const std::string sText = TextOf(WorkingAuction());
  EXPECT_NE(sText.find("[TYPE]000|True|False|3|0|0|0|False[TYPE][OUTLAY]40|0|0|149|1|False"),
            std::string::npos)
      << sText;
  Click("imgCancel");
  EXPECT_EQ(TextOf(WorkingAuction()), sText);
  m_pView->SetVisible(false);
  ClearAuction();
  m_pView->SetVisible(true);
  EXPECT_EQ(Page(), 0);
  EXPECT_FALSE(WorkingAuction().IsDirty()) << "showing an auction doesn't change it";
  Click("imgNext");
  EXPECT_EQ(dynamic_cast<ctlNumericText&>(ControlOf(Section(), "txtOutlay")).Value(), 0.0F);
}

TEST_F(Wizard, TypingCountsWhicheverWayThePageIsLeft) {
  Start();
  Click("imgNext");
  QTest::keyClicks(QApplication::focusWidget(), "12");
  Press(Qt::Key_Escape);
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_fOutlay, 12.0F) << "before the window takes over";
  Press(Qt::Key_Tab);
  QTest::keyClicks(QApplication::focusWidget(), "34");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_fOutlay, 34.0F);
  Click("imgNext");
  QTest::keyClicks(QApplication::focusWidget(), "56");
  Click("Steps");
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_fOutlay, 56.0F) << "a click beside the section";
  Press(Qt::Key_Tab);
  QTest::keyClicks(QApplication::focusWidget(), "7x");
  for (const int nPage : {1, 2}) {
    Click("imgNext");
    EXPECT_EQ(Page(), nPage) << "what is refused is to be seen first";
  }
}

TEST_F(Wizard, ThePageMovesWhenTheThumbIsLetGo) {
  Start(10215, 5205);
  auto& oBar = The<ScrollBar>("vsbVert");
  oBar.setSliderDown(true);
  oBar.setSliderPosition(400);
  EXPECT_EQ(Section().Top(), 120);
  oBar.setSliderDown(false);
  EXPECT_EQ(Section().Top(), -400);
}

}  // namespace
}  // namespace quillet
