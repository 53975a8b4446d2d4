#include "look/movies/AboutMovie.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "look/ShockwaveFlash.h"
#include "look/movies/MovieButton.h"
#include "look/movies/ScrollingText.h"
#include "platform/Sound.h"

namespace quillet {
namespace {

/// While it exists, it is the program's sound and records what is played.
class RecordedSound : public Sound {
 public:
  RecordedSound() { SetSound(this); }
  RecordedSound(const RecordedSound&) = delete;
  RecordedSound& operator=(const RecordedSound&) = delete;
  ~RecordedSound() override { SetSound(nullptr); }
  void Play(int nTune) override { sPlaying = "tune " + std::to_string(nTune); }
  void Stop() override { sPlaying = "nothing"; }

  std::string sPlaying = "nothing";
};

class AboutMovieTest : public ::testing::Test {
 protected:
  AboutMovieTest() {
    m_oWindow.resize(361, 241);
    m_oFlash.setGeometry(m_oWindow.rect());
  }
  void Show(const QString& sParameters) {
    m_oFlash.SetMovie("About.swf?" + sParameters);
    m_oWindow.show();
    m_oWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_oWindow));
    QApplication::processEvents();
  }
  MovieButton& Button(const char* sName) { return *m_oFlash.findChild<MovieButton*>(sName); }
  void Click(const char* sName) { QTest::mouseClick(&Button(sName), Qt::LeftButton); }

  RecordedSound m_oSound;
  QWidget m_oWindow;
  ShockwaveFlash m_oFlash{&m_oWindow};
  QSignalSpy m_oCommands{&m_oFlash, &ShockwaveFlash::FSCommand};
};

TEST_F(AboutMovieTest, ATuneThatIsChosenOutlivesAMute) {
  Show("AboutInfo=x&music=2&mute=false");
  EXPECT_EQ(m_oSound.sPlaying, "tune 2");
  Click("tune3");
  EXPECT_EQ(m_oSound.sPlaying, "tune 3");
  Click("mute");
  EXPECT_EQ(m_oSound.sPlaying, "nothing");
  Click("tune1");
  EXPECT_EQ(m_oSound.sPlaying, "nothing");
  EXPECT_TRUE(Button("tune1").isChecked() && !Button("tune3").isChecked());
  Click("mute");
  EXPECT_EQ(m_oSound.sPlaying, "tune 1");
  Click("website");
  QStringList asCommands;
  for (const QVariantList& oCommand : m_oCommands) {
    asCommands += oCommand[0].toString();
  }
  EXPECT_EQ(asCommands.join(' '), "music=3 mute=true music=1 mute=false click");
  m_oWindow.hide();
  EXPECT_EQ(m_oSound.sPlaying, "nothing") << "out of view";
}

TEST_F(AboutMovieTest, TheTextScrollsAndNothingButLineBreaksIsReadInIt) {
  Show("AboutInfo=One<br>Two<BR/><br><b>&amp;&music=0&mute=false");
  const auto& oText = *m_oFlash.findChild<ScrollingText*>();
  EXPECT_EQ(oText.accessibleName(), "One\nTwo\n\n<b>&amp;");
  EXPECT_TRUE(QTest::qWaitFor([&] { return oText.Offset() > 0; }, 10000));
}

}  // namespace
}  // namespace quillet
