#include "look/ShockwaveFlash.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "look/font.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

QString MovieOf(const char* sName) {
  return QString("C:\\Quillet?\\Graphics\\Buttons\\%1_button.swf").arg(sName);
}

class ShockwaveFlashTest : public ::testing::Test {
 protected:
  ShockwaveFlashTest() {
    m_oWindow.setPalette(InkColour(Ink::Column));
    m_oWindow.resize(Pixels(3000), Pixels(3000));
    m_oFlash.setGeometry(0, 0, Pixels(1080), Pixels(1080));
    m_oWindow.show();
    QApplication::setActiveWindow(&m_oWindow);
  }
  QAbstractButton& Button() { return *m_oFlash.findChild<QAbstractButton*>(); }
  QImage Picture() { return m_oFlash.grab().toImage(); }

  QWidget m_oWindow;
  ShockwaveFlash m_oFlash{&m_oWindow};
  QSignalSpy m_oCommands{&m_oFlash, &ShockwaveFlash::FSCommand};
};

TEST_F(ShockwaveFlashTest, EachButtonMovieIsAButtonThatSendsClick) {
  for (const auto& [sName, sCaption] : {std::pair("New", "New"),
                                        {"Calc", "Calculator"},
                                        {"Wizard", "Wizard"},
                                        {"Save", "Save"},
                                        {"Load", "Load"},
                                        {"Config", "Configure"},
                                        {"About", "About"}}) {
    m_oFlash.SetMovie(MovieOf(sName));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QAccessibleInterface* const pAccess = QAccessible::queryAccessibleInterface(&Button());
    EXPECT_EQ(pAccess->role(), QAccessible::Button) << sName;
    EXPECT_EQ(pAccess->text(QAccessible::Name), sCaption);
    m_oCommands.clear();
    QTest::mouseClick(&Button(), Qt::LeftButton, {}, {1, 1});
    m_oFlash.setFocus();
    for (const auto eKey : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
      QTest::keyClick(QApplication::focusWidget(), eKey);
    }
    EXPECT_EQ(m_oCommands.size(), 4) << sName;
    EXPECT_EQ(m_oCommands.value(0), QVariantList({"click", ""})) << sName;
    Button().clearFocus();
    const QImage oPicture = Picture();
    EXPECT_EQ(oPicture, Picture());
    m_oFlash.SetCurrent(true);
    EXPECT_NE(oPicture, Picture()) << "the current view can be seen";
    EXPECT_LE(QFontMetrics(ThemeFont(kTextPoints, QFont::DemiBold)).horizontalAdvance(sCaption),
              Button().width());
  }
}

TEST_F(ShockwaveFlashTest, AnUnknownMovieShowsAndSendsNothing) {
  m_oFlash.SetMovie(MovieOf("Save"));
  m_oFlash.SetMovie("C:\\Quillet\\Graphics\\Nothing.swf");
  m_oFlash.SetCurrent(true);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(m_oFlash.findChildren<QWidget*>().empty());
  QTest::mouseClick(&m_oFlash, Qt::LeftButton);
  EXPECT_EQ(m_oCommands.size(), 0);
}

}  // namespace
}  // namespace quillet
