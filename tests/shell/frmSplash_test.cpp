#include "shell/frmSplash.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "look/ShockwaveFlash.h"

namespace quillet {
namespace {

TEST(Splash, AKeyOrAClickEndsItAtOnceAndOnlyOnceAndThenAsksToGoOn) {
  for (const auto eButton : {Qt::NoButton, Qt::LeftButton, Qt::RightButton}) {
    frmSplash oSplash;
    oSplash.show();
    auto& oControl = *oSplash.findChild<ShockwaveFlash*>("ShockwaveFlash1");
    const QSignalSpy oCommands(&oControl, &ShockwaveFlash::FSCommand);
    const QSignalSpy oHurried(&oSplash, &frmSplash::Hurried);
    const auto fnHurry = [&] {
      eButton == Qt::NoButton ? QTest::keyClick(oControl.focusProxy(), Qt::Key_Space)
                              : QTest::mouseClick(oControl.focusProxy(), eButton);
    };
    EXPECT_FALSE(oSplash.LoadComplete()) << "nothing is told before the event loop has run";
    fnHurry();
    EXPECT_TRUE(oSplash.LoadComplete() && oSplash.MovieComplete());
    EXPECT_EQ(oHurried.size(), 0);
    fnHurry();
    EXPECT_EQ(oHurried.size(), 1);
    ASSERT_EQ(oCommands.size(), 2) << "start comes first, however early the key";
    EXPECT_EQ(oCommands[0][0], "start");
    EXPECT_EQ(oCommands[1][0], "stop");
  }
}

}  // namespace
}  // namespace quillet
