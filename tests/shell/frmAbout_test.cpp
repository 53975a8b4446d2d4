#include "shell/frmAbout.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/servers.h"
#include "controls/ComboBox.h"
#include "controls/Controls.h"
#include "controls/ImageButton.h"
#include "look/ShockwaveFlash.h"
#include "look/movies/MovieButton.h"
#include "look/movies/ScrollingText.h"
#include "look/scale.h"
#include "sections/ctlNumericText.h"
#include "shell/frmMain.h"
#include "support/PanelScript.h"
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

TEST_F(About, AnUnknownStartModeShowsAsWizardAndStays) {
  for (const auto& [sStored, sShown] :
       {std::pair("7", "Wizard 120"), {"1", "Advanced 120"}, {"", "Wizard 120"}}) {
    Registry().Set(settings::kStartMode, sStored);
    OpenSettings();
    EXPECT_EQ(Shown(), sShown) << sStored;
    QWheelEvent oWheel({5, 5}, {}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&The<ComboBox>("cboStartMode"), &oWheel);
    EXPECT_FALSE(MayApply()) << "neither filling nor the wheel is a change";
    EXPECT_EQ(Stored(), std::string(sStored) + " 120");
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

TEST_F(About, EnterAppliesWhatWasTypedAndTheBoxKeepsItWithinItsBounds) {
  for (const auto& [sTyped, sStored] : {std::pair("0", "0 120"),
                                        {"1000", "0 1000"},
                                        {"1,000", "0 1000"},
                                        {"1001", "0 100"},
                                        {"x", "0 120"}}) {
    Registry().Set(settings::kSnapToGrid, "120");
    OpenSettings();
    Type(sTyped);
    QTest::keyClick(&SnapBox(), Qt::Key_Return);
    QTest::keyClick(&SnapBox(), Qt::Key_Return);  // again, as the first may only correct the text
    EXPECT_EQ(Stored(), sStored) << sTyped;
    EXPECT_FALSE(MayApply()) << sTyped;
    EXPECT_TRUE(m_oWindow->isVisible());
    QTest::keyClick(&SnapBox(), Qt::Key_Escape);
    EXPECT_FALSE(m_oWindow->isVisible());
  }
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
    EXPECT_EQ(Page(), "settings");
  }
  for (const char* const sCommand : {"MUTE=False", "Music=1", "music=4", "mute=", "CLICK"}) {
    emit The<ShockwaveFlash>("aniFlash").FSCommand(sCommand, "");
  }
  EXPECT_EQ(Registry().Get(settings::kMusicId), "Music=1") << "as it is spelt";
  EXPECT_EQ(Registry().Get(settings::kMusicMute), "MUTE=False");
  EXPECT_EQ(m_oHost.asLinks, std::vector<std::string>{kWebsite});
}

TEST_F(About, ResetPutsTheSectionsBackAtOnceFromTheMainWindow) {
  Registry().Set(settings::kStartMode, "1");
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

}  // namespace
}  // namespace quillet
