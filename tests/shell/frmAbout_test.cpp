#include "shell/frmAbout.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <regex>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/servers.h"
#include "engine/clsCalculate.h"
#include "platform/qt/ShockwaveFlash.h"
#include "platform/qt/movies/MovieButton.h"
#include "platform/qt/movies/ScrollingText.h"
#include "sections/ComboBox.h"
#include "sections/Controls.h"
#include "sections/ImageButton.h"
#include "sections/ctlNumericText.h"
#include "shell/frmMain.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class About : public ::testing::Test {
 protected:
  ~About() override {
    g_sAboutText.clear();
    g_lSnapToGrid = 120;
  }

  void Open() {
    m_oWindow = std::make_unique<frmAbout>(nullptr);
    m_oWindow->show();
    m_oWindow->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_oWindow.get()));
  }
  void OpenSettings() {
    Open();
    Click("imgSettings");
  }
  template <typename Kind>
  Kind& The(const char* sName) {
    return *m_oWindow->findChild<Kind*>(sName);
  }
  void Click(const char* sName) { QTest::mouseClick(&The<QWidget>(sName), Qt::LeftButton); }
  void Type(const char* sText) {
    Click("txtValue");
    SnapBox().selectAll();
    QTest::keyClicks(&SnapBox(), sText);
  }
  QLineEdit& SnapBox() { return *The<ctlNumericText>("txtSnapToGrid").TextBox(); }
  std::string Shown() {
    return The<ComboBox>("cboStartMode").currentText().toStdString() + " " +
           The<ctlNumericText>("txtSnapToGrid").Text();
  }
  static std::string Stored() {
    return Registry().Get(settings::kStartMode) + " " + Registry().Get(settings::kSnapToGrid);
  }
  bool MayApply() { return The<ImageButton>("imgApply").isVisible(); }
  std::string Page() {
    return std::string(The<Frame>("fraAmination").isVisible() ? "about" : "") +
           (The<Frame>("fraSettings").isVisible() ? "settings" : "");
  }

  ScopedHost m_oHost;
  std::unique_ptr<frmAbout> m_oWindow;
};

TEST_F(About, ItsCaptionTellsTheEditionAndThePaddedVersion) {
  Open();
  const std::string sCaption = m_oWindow->windowTitle().toStdString();
  const std::regex oExpected("About - " + EditionName() + R"( \(v\d\d\.\d\d\.\d{3}\))");
  EXPECT_TRUE(std::regex_match(sCaption, oExpected)) << sCaption;
  EXPECT_EQ(m_oWindow->minimumSize(), m_oWindow->maximumSize());
}

TEST_F(About, AnUnknownStartModeShowsAsWizardAndStaysUntilApply) {
  for (const auto& [sStored, sShown] : {std::pair("7", "Wizard 120"),
                                        {"1", "Advanced 120"},
                                        {"0", "Wizard 120"},
                                        {"", "Wizard 120"}}) {
    Registry().Set(settings::kStartMode, sStored);
    OpenSettings();
    EXPECT_EQ(Shown(), sShown) << sStored;
    EXPECT_FALSE(MayApply()) << "filling the controls is no change";
    EXPECT_EQ(Stored(), std::string(sStored) + " 120");
  }
  Registry().Set(settings::kStartMode, "7");
  OpenSettings();
  Click("txtValue");
  EXPECT_TRUE(MayApply()) << "entering the box is enough";
  Click("imgApply");
  EXPECT_EQ(Stored(), "0 120");
  EXPECT_FALSE(MayApply());
}

TEST_F(About, OpeningItCreatesTheGridStepAlone) {
  Open();
  std::string sValue;
  EXPECT_TRUE(Registry().GetRegSettingString(HiveRoot::User, sValue, "SnapToGrid", "Config", ""));
  for (const char* const sName : {"StartMode", "MusicID", "MusicMute"}) {
    EXPECT_FALSE(Registry().GetRegSettingString(HiveRoot::User, sValue, sName, "Config", ""))
        << sName;
  }
}

TEST_F(About, ApplyStoresAndCancelTakesBack) {
  OpenSettings();
  Type("45");
  QTest::keyClick(&The<ComboBox>("cboStartMode"), Qt::Key_Down);
  EXPECT_EQ(Shown(), "Advanced 45");
  EXPECT_EQ(g_lSnapToGrid, 120);
  Click("imgCancel");
  EXPECT_EQ(Shown(), "Wizard 120");
  EXPECT_FALSE(MayApply());
  EXPECT_TRUE(m_oWindow->isVisible());
  Type("45");
  Click("imgApply");
  EXPECT_EQ(Stored(), "0 45");
  EXPECT_EQ(g_lSnapToGrid, 45);
  EXPECT_FALSE(MayApply()) << "the focus doesn't fall back into the box";
}

TEST_F(About, ChoosingTheSameStartModeAgainOffersApply) {
  OpenSettings();
  emit The<ComboBox>("cboStartMode").activated(0);
  EXPECT_TRUE(MayApply());
}

TEST_F(About, EnterAppliesWhatWasTypedAndTheBoxKeepsItWithinItsBounds) {
  for (const auto& [sTyped, sStored] : {std::pair("0", "0 120"),
                                        {"1", "0 1"},
                                        {"1000", "0 1000"},
                                        {"1001", "0 100"},
                                        {"x", "0 120"},
                                        {"", "0 120"}}) {
    Registry().Set(settings::kSnapToGrid, "120");
    OpenSettings();
    Type(sTyped);
    if (*sTyped == '\0') {
      QTest::keyClick(&SnapBox(), Qt::Key_Delete);
    }
    QTest::keyClick(&SnapBox(), Qt::Key_Return);
    EXPECT_EQ(Stored(), sStored) << sTyped;
    EXPECT_FALSE(MayApply()) << sTyped;
    EXPECT_TRUE(m_oWindow->isVisible());
    QTest::keyClick(&SnapBox(), Qt::Key_Escape);
    EXPECT_FALSE(m_oWindow->isVisible());
  }
}

TEST_F(About, ANumberBeyondEverythingEndsTheFillingInSilence) {
  Registry().Set(settings::kSnapToGrid, "1e60");
  OpenSettings();
  EXPECT_TRUE(m_oHost.aoShown.empty());
  EXPECT_EQ(Page(), "settings");
}

TEST_F(About, APageIsAFrameWhoseTagIsItsName) {
  Open();
  EXPECT_EQ(Page(), "about");
  auto* const pOther = new Frame(m_oWindow.get());
  pOther->SetName("fraOther");
  pOther->SetTag("other");
  pOther->Place(15, 30, 45, 60);
  pOther->SetVisible(true);
  Click("imgSettings");
  EXPECT_EQ(Page(), "settings");
  EXPECT_TRUE(pOther->isVisible() && pOther->isEnabled());
  EXPECT_EQ(pOther->geometry(), QRect(1, 2, 3, 4));
  EXPECT_FALSE(The<Frame>("fraAmination").isEnabled());
  Click("imgAbout");
  EXPECT_EQ(Page(), "about");
}

TEST_F(About, TheMovieGetsTheMessageWithItsBreaksAndWhatItSends) {
  g_sAboutText = "Fish & chips\\nC:\\Sales?a=1&mute=false";
  Registry().Set(settings::kMusicId, "music=2");
  Registry().Set(settings::kMusicMute, "MUTE=True");
  for (int i = 0; i < 2; ++i) {
    Open();
    EXPECT_EQ(Page(), "about") << "each time anew";
    EXPECT_EQ(m_oWindow->findChild<ScrollingText*>()->accessibleName(),
              "Fish & chips\nC:\\Sales?a=1&mute=false");
    EXPECT_TRUE(The<MovieButton>("tune2").isChecked() && The<MovieButton>("mute").isChecked());
    Click("imgSettings");
  }
}

TEST_F(About, TheMoviesCommandsAreStoredAsTheyAreSpelt) {
  struct Row {
    const char* sCommand;
    const char* sMusic;
    const char* sMute;
  };
  const Row aoRows[] = {
      {"MUTE=TRUE", "music=0", "MUTE=TRUE"}, {"music=3", "music=3", "MUTE=TRUE"},
      {"music=4", "music=3", "MUTE=TRUE"},   {"Music=1", "Music=1", "MUTE=TRUE"},
      {"mute=", "Music=1", "MUTE=TRUE"},     {"mute=false", "Music=1", "mute=false"},
      {"music=01", "Music=1", "mute=false"}, {"", "Music=1", "mute=false"}};
  Open();
  for (const Row& oRow : aoRows) {
    emit The<ShockwaveFlash>("aniFlash").FSCommand(oRow.sCommand, "");
    EXPECT_EQ(Registry().Get(settings::kMusicId), oRow.sMusic) << oRow.sCommand;
    EXPECT_EQ(Registry().Get(settings::kMusicMute), oRow.sMute) << oRow.sCommand;
  }
  EXPECT_TRUE(m_oHost.asLinks.empty());
  Click("website");
  emit The<ShockwaveFlash>("aniFlash").FSCommand("CLICK", "");
  EXPECT_EQ(m_oHost.asLinks, std::vector<std::string>({kWebsite, kWebsite}));
}

TEST_F(About, ResetPutsTheSectionsBackAtOnceFromTheMainWindow) {
  Registry().Set(settings::kStartMode, "1");
  Registry().Set(settings::kZoom, "100");
  WorkingAuction().SetDirty(false);  // so that the window needn't ask
  DefaultAuction().SetDirty(false);
  frmMain oMain;
  oMain.Show();
  Control& oPayPal = oMain.Calculator().Set().ctlPayPalSection;
  const int nLeft = oPayPal.Left();
  oPayPal.SetLeft(nLeft + 600);
  bool bOpened = false;
  QTimer::singleShot(0, &oMain, [&] {
    auto* const pAbout = dynamic_cast<frmAbout*>(QApplication::activeModalWidget());
    ASSERT_NE(pAbout, nullptr);
    bOpened = pAbout->parentWidget() == &oMain;
    QTest::mouseClick(pAbout->findChild<ImageButton*>("imgSettings"), Qt::LeftButton);
    QTest::mouseClick(pAbout->findChild<ImageButton*>("imgResetPositions"), Qt::LeftButton);
    EXPECT_FALSE(pAbout->findChild<ImageButton*>("imgApply")->isVisible());
    pAbout->close();
  });
  emit oMain.findChild<ShockwaveFlash*>("swfAbout")->FSCommand("click", "");
  EXPECT_TRUE(bOpened);
  EXPECT_EQ(oPayPal.Left(), nLeft);
  EXPECT_EQ(oMain.findChild<frmAbout*>(), nullptr) << "it is gone when it is closed";
}

TEST_F(About, KeysReachEveryControlAndEachHasANameForScreenReaders) {
  OpenSettings();
  Click("txtValue");  // so that Apply is there
  const QStringList asExpected = {"imgApply",     "imgCancel", "imgAbout",         "imgSettings",
                                  "cboStartMode", "txtValue",  "imgResetPositions"};
  QStringList asReached;
  SnapBox().setFocus();
  for (int i = 0; i < asExpected.size(); ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* const pNow = QApplication::focusWidget();
    asReached += pNow->objectName();
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(pNow)->text(QAccessible::Name).isEmpty())
        << pNow->objectName().toStdString();
    EXPECT_NE(QAccessible::queryAccessibleInterface(pNow)->role(), QAccessible::Client);
  }
  asReached.sort();
  QStringList asSorted = asExpected;
  asSorted.sort();
  EXPECT_EQ(asReached, asSorted);
}

TEST_F(About, NoCaptionIsClippedAtAnyZoom) {
  for (const double fZoom : {0.75, 1.0, 1.25, 1.5, 2.0, 3.0}) {
    SetZoom(fZoom);
    OpenSettings();
    The<ImageButton>("imgApply").SetVisible(true);
    for (QWidget* const pWidget : m_oWindow->findChildren<QWidget*>()) {
      auto* const pControl = dynamic_cast<Control*>(pWidget);
      if (pControl == nullptr || pControl->Caption().isEmpty()) {
        continue;
      }
      const auto* const pLabel = dynamic_cast<Label*>(pWidget);
      const bool bWraps = pLabel != nullptr && pLabel->wordWrap();
      EXPECT_LE(bWraps ? pWidget->heightForWidth(pWidget->width()) : pWidget->sizeHint().width(),
                bWraps ? pWidget->height() : pWidget->width())
          << pControl->Name() << " at " << fZoom;
      EXPECT_TRUE(pWidget->parentWidget()->rect().contains(pWidget->geometry()))
          << pControl->Name();
    }
    EXPECT_LE(The<QWidget>("Label2").geometry().right(),
              The<QWidget>("imgResetPositions").geometry().left() + Pixels(45))
        << fZoom;
  }
}

}  // namespace
}  // namespace quillet
