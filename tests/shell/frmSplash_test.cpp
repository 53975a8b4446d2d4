#include "shell/frmSplash.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "look/ShockwaveFlash.h"

namespace quillet {
namespace {

constexpr int kPatience = 10000;  // milliseconds

class Splash : public ::testing::Test {
 protected:
  frmSplash& Open() {
    m_oWindow = std::make_unique<frmSplash>();
    m_oWindow->show();
    m_oCommands = std::make_unique<QSignalSpy>(&Control(), &ShockwaveFlash::FSCommand);
    return *m_oWindow;
  }
  ShockwaveFlash& Control() { return *m_oWindow->findChild<ShockwaveFlash*>("ShockwaveFlash1"); }
  QWidget& Movie() { return *Control().focusProxy(); }
  QStringList Commands() const {
    QStringList asCommands;
    for (const QVariantList& oCommand : *m_oCommands) {
      asCommands += oCommand.value(0).toString();
    }
    return asCommands;
  }

  std::unique_ptr<frmSplash> m_oWindow;
  std::unique_ptr<QSignalSpy> m_oCommands;
};

TEST_F(Splash, LoadsThenEndsByItself) {
  const frmSplash& oSplash = Open();
  EXPECT_FALSE(oSplash.LoadComplete()) << "nothing is told before the event loop has run";
  ASSERT_TRUE(QTest::qWaitFor([&] { return oSplash.LoadComplete(); }, kPatience));
  EXPECT_FALSE(oSplash.MovieComplete());
  ASSERT_TRUE(QTest::qWaitFor([&] { return oSplash.MovieComplete(); }, kPatience));
  EXPECT_EQ(Commands(), QStringList({"start", "stop"}));
}

TEST_F(Splash, AKeyOrAClickEndsItAtOnceAndOnlyOnceAndThenAsksToGoOn) {
  const QSignalSpy oHurried(&Open(), &frmSplash::Hurried);
  QTest::keyClick(&Movie(), Qt::Key_Space);
  EXPECT_EQ(Commands(), QStringList({"start", "stop"}))
      << "start comes first, however early the key";
  EXPECT_EQ(oHurried.size(), 0);
  QTest::mouseClick(&Movie(), Qt::LeftButton);
  QTest::keyClick(&Movie(), Qt::Key_Space);
  EXPECT_EQ(m_oCommands->size(), 2);
  EXPECT_EQ(oHurried.size(), 2);
  Open();
  QTest::mouseClick(&Movie(), Qt::RightButton);
  EXPECT_EQ(Commands(), QStringList({"start", "stop"}));
  EXPECT_TRUE(m_oWindow->LoadComplete() && m_oWindow->MovieComplete());
}

}  // namespace
}  // namespace quillet
