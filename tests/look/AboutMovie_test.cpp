#include "look/movies/AboutMovie.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "look/ShockwaveFlash.h"
#include "look/movies/MovieButton.h"
#include "look/movies/ScrollingText.h"
#include "look/scale.h"
#include "platform/Sound.h"

namespace quillet {
namespace {

/// The program's sound for as long as it lives: it writes down what it is asked to play.
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
  MovieButton& Button(const char* sName) {
    return *m_oFlash.findChildren<MovieButton*>(sName).constLast();
  }
  ScrollingText& Text() { return *m_oFlash.findChildren<ScrollingText*>().constLast(); }
  void Click(const char* sName) { QTest::mouseClick(&Button(sName), Qt::LeftButton); }
  QString Command(int i) const { return m_oCommands.value(i).value(0).toString(); }

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
  const QStringList asExpected = {"music=3", "mute=true", "music=1", "mute=false", "click"};
  m_oWindow.hide();
  EXPECT_EQ(m_oSound.sPlaying, "nothing") << "out of view";
  ASSERT_EQ(m_oCommands.size(), asExpected.size());
  for (int i = 0; i < asExpected.size(); ++i) {
    EXPECT_EQ(Command(i), asExpected.at(i)) << i;
  }
}

TEST_F(AboutMovieTest, KeysAndScreenReadersReachEveryButton) {
  Show("AboutInfo=One<br>Two<BR/><br><b>&amp;&music=0&mute=false");
  EXPECT_EQ(Text().accessibleName(), "One\nTwo\n\n<b>&amp;") << "nothing but line breaks is read";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Text().Offset() > 0; }, 10000));
  Text().setFocus();
  for (const char* const sName : {"tune0", "tune1", "tune2", "tune3", "mute", "website"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &Button(sName)) << sName;
    m_oCommands.clear();
    QTest::keyClick(&Button(sName), Qt::Key_Return);
    QTest::keyClick(&Button(sName), Qt::Key_Space);
    EXPECT_EQ(m_oCommands.size(), 2) << sName;
    QAccessibleInterface* const pAccess = QAccessible::queryAccessibleInterface(&Button(sName));
    EXPECT_FALSE(pAccess->text(QAccessible::Name).isEmpty()) << sName;
    EXPECT_TRUE(pAccess->actionInterface() != nullptr) << sName;
  }
}

}  // namespace
}  // namespace quillet
