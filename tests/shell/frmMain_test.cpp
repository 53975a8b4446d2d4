#include "shell/frmMain.h"

#include <QApplication>
#include <QScreen>
#include <QSysInfo>
#include <QTest>
#include <QWindow>
#include <memory>

#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/clsRegistryAccess.h"
#include "documents/lastFolder.h"
#include "look/ShockwaveFlash.h"
#include "look/scale.h"
#include "shell/zoomSteps.h"
#include "support/Log.h"
#include "support/MemoryHive.h"
#include "support/Screen.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class Window : public ::testing::Test {
 protected:
  Window() {
    Registry().Set(settings::kStartMode, "1");
    SetLastFolder(m_oFolder.sPath);
  }

  frmMain& Start() {
    m_oWindow = std::make_unique<frmMain>();
    m_oWindow->Show();
    QApplication::processEvents();
    return *m_oWindow;
  }

  /// The caption after the edition's name.
  std::string Caption() {
    const std::string sCaption = m_oWindow->windowHandle()->title().toStdString();
    EXPECT_TRUE(sCaption.starts_with(EditionName()));
    return sCaption.substr(EditionName().size());
  }

  void Change() { ClickOn(m_oWindow->Calculator().Set().ctlPayPalSection, "chkUsePayPal"); }

  ScopedHost m_oHost;
  TemporaryFolder m_oFolder;
  std::unique_ptr<frmMain> m_oWindow;
};

TEST_F(Window, TheStarFollowsTheDocument) {
  Start();
  EXPECT_EQ(Caption(), "");
  Change();
  EXPECT_EQ(Caption(), "*");
  // Windows allows no "*" in a name.
  const std::string sName = QSysInfo::kernelType() == "winnt" ? "camera" : "camera[*]";
  m_oHost.asChoices = {m_oFolder / (sName + ".qlt")};
  m_oWindow->ClickButton(kButtonSave);
  EXPECT_EQ(Caption(), " - " + sName);
  Change();
  EXPECT_EQ(Caption(), " - " + sName + "*");
  m_oHost.aeAnswers = {Answer::No};
  m_oWindow->ClickButton(kButtonNew);
  EXPECT_EQ(Caption(), "") << "no star, although the auction still counts as changed";
  EXPECT_TRUE(WorkingAuction().IsDirty());
}

TEST_F(Window, AFailedLoadLeavesTheAuctionItsStarAndTheCaption) {
  Start();
  Change();
  const std::string sBefore = TextOf(WorkingAuction());
  WriteTestFile(m_oFolder / "bad.qlt", "[TYPE]001[TYPE][OUTLAY]9|9|9|9|9|True[OUTLAY]");
  m_oHost.asChoices = {m_oFolder / "bad.qlt"};
  m_oWindow->ClickButton(kButtonLoad);
  EXPECT_THAT(m_oHost.aoShown,
              testing::ElementsAre(ShownMessage{"Failure loading section [PAYPAL]", 0, ""}));
  EXPECT_EQ(Caption(), "*");
  EXPECT_EQ(TextOf(WorkingAuction()), sBefore);
  EXPECT_FALSE(m_oWindow->close()) << "asked about what is still unsaved, and cancelled";
  EXPECT_EQ(m_oHost.aoShown.size(), 2U);
}

TEST_F(Window, EveryRowIsThereWhetherOrNotTheSettingsCanBeWritten) {
  std::array<std::string, 2> asRows;
  for (const bool bWritable : {true, false}) {
    MemoryHive oHive;
    SetRegistryHive(oHive);
    Registry().Set(settings::kStartMode, "1");
    oHive.bWritable = bWritable;
    Start();
    for (const int nButton : {kButtonCalculator, kButtonConfig, kButtonCalculator}) {
      m_oWindow->ClickButton(nButton);
      asRows.at(bWritable) += PlacesIn(m_oWindow->Calculator().Set());
    }
    m_oWindow.reset();  // before its settings
  }
  EXPECT_NE(asRows[0].find("txtOutlay"), std::string::npos);
  EXPECT_EQ(asRows[0], asRows[1]);
}

TEST_F(Window, ConfigModeSavesASettingAndLoadsNothing) {
  Start();
  m_oWindow->ClickButton(kButtonConfig);
  EXPECT_EQ(Caption(), " - Default Configuration");
  Change();
  EXPECT_EQ(Caption(), " - Default Configuration*");
  m_oWindow->ClickButton(kButtonLoad);
  m_oWindow->ClickButton(kButtonSave);
  EXPECT_TRUE(m_oHost.aoDialogs.empty());
  EXPECT_NE(Registry().Get(settings::kDefaultAuction).find("[PAYPAL]True|"), std::string::npos);
  EXPECT_EQ(Caption(), " - Default Configuration");
  m_oWindow->ClickButton(kButtonNew);
  EXPECT_TRUE(WorkingAuction().m_oPayPal.m_bEnabled) << "a new auction is the default one";
}

TEST_F(Window, ACommandByKeyLeavesTheBoxBeforeItBringsAnotherAuction) {
  Start();
  auto& oBox = dynamic_cast<ctlNumericText&>(
      ControlOf(m_oWindow->Calculator().Set().ctlOutlaySection, "txtOutlay"));
  oBox.TextBox()->setFocus();
  QTest::keyClick(oBox.TextBox(), Qt::Key_5);
  QTest::keyClick(m_oWindow.get(), Qt::Key_Comma, Qt::ControlModifier);
  EXPECT_FALSE(DefaultAuction().IsDirty());
  EXPECT_EQ(DefaultAuction().m_oOutlay.m_fOutlay, 0);
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_fOutlay, 5) << "what was typed counts";
  QTest::keyClick(m_oWindow.get(), Qt::Key_1, Qt::ControlModifier);
  oBox.TextBox()->setFocus();
  QTest::keyClick(oBox.TextBox(), Qt::Key_7);
  m_oHost.asChoices = {m_oFolder / "typed.qlt"};
  QTest::keyClick(m_oWindow.get(), Qt::Key_S, Qt::ControlModifier);
  QTest::keyClick(m_oWindow.get(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(m_oHost.aoShown.empty()) << "what was just saved is not asked about";
}

TEST_F(Window, ARowThatGoesWithTheFocusChangesNoAuction) {
  Start();
  m_oWindow->ClickButton(kButtonConfig);
  ClickOn(m_oWindow->Calculator().Set().ctlOutlaySection, "chkShowStartingPrice");
  m_oWindow->ClickButton(kButtonCalculator);
  EXPECT_FALSE(WorkingAuction().IsDirty());
}

TEST_F(Window, CloseAsksAndCanBeCancelled) {
  Start();
  Change();
  m_oHost.aeAnswers = {Answer::Cancel};
  EXPECT_FALSE(m_oWindow->close());
  EXPECT_TRUE(m_oWindow->isVisible());
  std::string sStored;
  EXPECT_TRUE(Registry().GetRegSettingString(HiveRoot::User, sStored, "Left", "Forms\\Main", ""))
      << "the place is stored whether or not the exit goes ahead";
  m_oHost.aeAnswers = {Answer::Yes};
  m_oHost.asChoices = {std::nullopt};
  EXPECT_FALSE(m_oWindow->close()) << "the save dialog was cancelled";
  m_oHost.aeAnswers = {Answer::Cancel};
  EXPECT_FALSE(m_oWindow->EndSession(true));
  EXPECT_FALSE(m_oWindow->close()) << "asked again";
  m_oHost.aeAnswers = {Answer::No};
  EXPECT_TRUE(m_oWindow->EndSession(true));
  m_oHost.aoShown.clear();
  EXPECT_TRUE(m_oWindow->close()) << "by the session";
  EXPECT_TRUE(m_oHost.aoShown.empty());
}

TEST_F(Window, AMovieClicksInAnyCaseAndSaysNothingElse) {
  Start();
  const auto aoMovies = m_oWindow->findChildren<ShockwaveFlash*>("swfVerticalMenuButtons");
  ASSERT_EQ(aoMovies.size(), 6);
  emit aoMovies.at(kButtonConfig)->FSCommand("clock", "");
  EXPECT_FALSE(m_oWindow->Calculator().ConfigMode());
  emit aoMovies.at(kButtonConfig)->FSCommand("CLICK", "");
  EXPECT_TRUE(m_oWindow->Calculator().ConfigMode());
  m_oWindow->ClickButton(6);
  ASSERT_FALSE(m_oHost.aoShown.empty());
  EXPECT_EQ(m_oHost.aoShown.back(), (ShownMessage{"Button not recognised", 64, ""}));
}

TEST_F(Window, AZoomBeyondTheScreenLetsTheFrameScrollAndComesBackToTheSize) {
  Start();
  const QRect oScreen = m_oWindow->screen()->availableGeometry();
  const QSize oBefore = m_oWindow->size();
  const QSize oSection = m_oWindow->Calculator().Set().ctlOutlaySection.size();
  for (int i = 0; i < 5; ++i) {
    QTest::keyClick(m_oWindow.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(oScreen.contains(m_oWindow->frameGeometry())) << Zoom();
    const auto aoButtons = m_oWindow->findChildren<ShockwaveFlash*>("swfVerticalMenuButtons");
    EXPECT_FALSE(m_oWindow->findChild<ShockwaveFlash*>("swfAbout")
                     ->geometry()
                     .intersects(aoButtons.at(kButtonConfig)->geometry()));
  }
  EXPECT_EQ(Registry().Get(settings::kZoom), "200");
  QWidget& oLast = ControlOf(m_oWindow->Calculator().Set().ctlPostageSection, "txtManual").Widget();
  oLast.setFocus();
  QApplication::processEvents();
  EXPECT_TRUE(m_oWindow->rect().contains({oLast.mapTo(m_oWindow.get(), QPoint()), oLast.size()}))
      << "the focus is followed";
  QTest::keyClick(m_oWindow.get(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(m_oWindow->size(), oBefore);
  EXPECT_EQ(m_oWindow->Calculator().Set().ctlOutlaySection.size(), oSection);
  EXPECT_EQ(Registry().Get(settings::kZoom), "100");
}

TEST_F(Window, AnyStartModeButZeroStartsInTheCalculator) {
  DefaultAuction().m_oOutlay.m_lQuantity = 7;
  for (const char* const sMode : {"1", "2", "x"}) {
    Registry().Set(settings::kStartMode, sMode);
    Start();
    EXPECT_EQ(WorkingAuction().m_oOutlay.m_lQuantity, 7) << sMode;
    WorkingAuction().Clear();
  }
  Registry().Set(settings::kStartMode, "0");
  Start();
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_lQuantity, 1) << "the wizard starts with one item";
}

TEST(ZoomSteps, GoUpAndDownAndTheLargestThatFitsIsChosen) {
  for (const auto& [nFrom, bLarger, nTo] :
       {std::tuple(100, true, 110), {300, true, 300}, {75, false, 75}, {103, false, 100}}) {
    EXPECT_EQ(NextZoomStep(nFrom, bLarger), nTo) << nFrom;
  }
  // 150 % is 1080 high; an exact fit is enough; if none fits, the smallest is chosen.
  for (const auto& [nHeight, nFitting] : {std::pair(1040, 125), {1080, 150}, {480, 75}}) {
    EXPECT_EQ(LargestFittingZoom(900, 720, 1920, nHeight), nFitting) << nHeight;
  }
}

}  // namespace
}  // namespace quillet
