#include "sections/ctlNumericText.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "controls/SpinButton.h"
#include "look/palette.h"
#include "look/scale.h"
#include "prices/money.h"

namespace quillet {
namespace {

/// A window with two money boxes. The first shows 3.00, the second has the focus.
class ctlNumericTextTest : public ::testing::Test {
 protected:
  ctlNumericTextTest() {
    for (ctlNumericText* const pBox : {m_pBox, m_pNext}) {
      pBox->SetShowMoney(true);
      pBox->SetDecimalPlaces(2);
    }
    m_pBox->Place(0, 0, 1575, 285);
    m_pNext->Place(0, 300, 1575, 285);
    m_pBox->SetText("3");
    m_oWindow.show();
    m_oWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_oWindow));
    m_pNext->setFocus();
    m_oChanged.clear();
  }

  /// The text without the region's currency symbol.
  std::string Number() const {
    const std::string sText = m_pBox->Text();
    const std::string sSymbol = CurrencySymbolText();
    return sText.starts_with(sSymbol) ? sText.substr(sSymbol.size()) : sText;
  }

  void Press(Qt::Key eKey, Qt::KeyboardModifiers eHeld = Qt::NoModifier) {
    QTest::keyClick(m_pText, eKey, eHeld);
  }

  void TypeInstead(const QString& sText) {
    m_pText->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(m_pText, sText);
  }

  QPoint Arrow(bool bUp) const { return {m_pSpin->width() / 2, bUp ? 3 : 15}; }
  void Spin(bool bUp) { QTest::mouseClick(m_pSpin, Qt::LeftButton, {}, Arrow(bUp)); }

  bool Wheel(int nTurn, Qt::KeyboardModifiers eHeld = Qt::NoModifier) {
    const QPointF oAt(5, 5);
    QWheelEvent oEvent(oAt, m_pBox->mapToGlobal(oAt), {}, {0, nTurn}, Qt::NoButton, eHeld,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_pBox, &oEvent);
    return oEvent.isAccepted();
  }

  QWidget m_oWindow;
  ctlNumericText* m_pBox = new ctlNumericText(&m_oWindow);
  ctlNumericText* m_pNext = new ctlNumericText(&m_oWindow);
  QLineEdit* m_pText = m_pBox->TextBox();
  SpinButton* m_pSpin = m_pBox->findChild<SpinButton*>("UpDown1");
  QSignalSpy m_oChanged{m_pBox, &ctlNumericText::Changed};
};

TEST_F(ctlNumericTextTest, TheKeyboardSelectsEverythingAndStepsWholeUnitsThen) {
  QTest::keyClick(m_pNext->TextBox(), Qt::Key_Backtab);
  EXPECT_EQ(m_pText->selectedText(), m_pText->text());
  Press(Qt::Key_Up);
  EXPECT_EQ(Number(), "4.00");
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Number(), "-6.00");
  EXPECT_EQ(m_oChanged.count(), 2);
  Press(Qt::Key_Tab);
  EXPECT_TRUE(m_pNext->TextBox()->hasFocus()) << "one press of Tab passes one box";
  QTest::mouseClick(m_pText, Qt::LeftButton);
  EXPECT_TRUE(m_pText->hasFocus());
  EXPECT_FALSE(m_pText->hasSelectedText());
}

TEST_F(ctlNumericTextTest, TypingIsSilentAndLeavingTellsOfTheLastGoodText) {
  std::vector<double> afHeard;
  QObject::connect(m_pBox, &ctlNumericText::Changed, [&] { afHeard.push_back(m_pBox->Value()); });
  TypeInstead("12.5");
  EXPECT_EQ(m_pBox->Value(), 12.5);
  QTest::keyClicks(m_pText, "x");
  EXPECT_EQ(m_pBox->Text(), "12.5x");
  EXPECT_EQ(m_pBox->Value(), 0);
  for (const auto eElsewhere : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    QFocusEvent oLost(QEvent::FocusOut, eElsewhere);  // another window, or the box's own menu
    QApplication::sendEvent(m_pText, &oLost);
  }
  EXPECT_EQ(m_pBox->Text(), "12.5x");
  EXPECT_TRUE(afHeard.empty());
  Press(Qt::Key_Tab);
  EXPECT_EQ(m_pBox->Text(), "12.5");
  EXPECT_EQ(afHeard, std::vector<double>{12.5});

  m_pBox->SetMax(10);
  TypeInstead("50");
  Press(Qt::Key_Tab);
  EXPECT_EQ(m_pBox->Text(), "5") << "the last one within the bounds";
}

TEST_F(ctlNumericTextTest, EnterEntersWhatWasTypedAndSelectsIt) {
  TypeInstead("12.5x");
  for (const auto eKey : {Qt::Key_Return, Qt::Key_Enter}) {
    QKeyEvent oPress(QEvent::KeyPress, eKey, Qt::NoModifier);
    QApplication::sendEvent(m_pText, &oPress);
    EXPECT_EQ(oPress.isAccepted(), eKey == Qt::Key_Return) << "what is refused goes no further";
    EXPECT_EQ(m_pText->selectedText(), "12.5");
    EXPECT_EQ(m_oChanged.count(), 1) << "there is nothing more to enter";
  }
}

TEST_F(ctlNumericTextTest, TheSpinButtonStepsForEverAndBringsTheFocusToTheText) {
  m_pText->setCursorPosition(0);
  QTest::keyClicks(m_pNext->TextBox(), "bad");
  Spin(false);
  EXPECT_EQ(Number(), "2.00") << "the first step wraps the button's own value";
  EXPECT_TRUE(m_pText->hasFocus());
  EXPECT_EQ(m_pNext->Value(), 0) << "the other box was left";
  for (int i = 0; i < 205; ++i) {
    Spin(true);
  }
  EXPECT_EQ(Number(), "207.00");
  EXPECT_EQ(m_oChanged.count(), 206);
  Press(Qt::Key_Right);
  Spin(true);
  EXPECT_EQ(Number(), "207.01");
}

TEST_F(ctlNumericTextTest, AHeldSpinButtonGoesOnUntilItIsLetGoOrDisabled) {
  for (const bool bDisable : {false, true}) {
    m_oChanged.clear();
    QTest::mousePress(m_pSpin, Qt::LeftButton, {}, Arrow(true));
    EXPECT_EQ(m_oChanged.count(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_oChanged.count() >= 4; }, 5000));
    bDisable ? m_pBox->SetEnabled(false)
             : QTest::mouseRelease(m_pSpin, Qt::LeftButton, {}, Arrow(true));
    m_oChanged.clear();
    EXPECT_FALSE(QTest::qWaitFor([&] { return m_oChanged.count() > 0; }, 250));
  }
}

TEST_F(ctlNumericTextTest, TheWheelStepsByWholeNotchesAndIsThePagesWithCtrlOrWithoutTheFocus) {
  m_pText->setCursorPosition(0);
  EXPECT_FALSE(Wheel(120));
  EXPECT_EQ(Number(), "3.00");
  m_pText->setFocus();
  EXPECT_TRUE(Wheel(120));
  EXPECT_EQ(Number(), "4.00");
  Wheel(-60);
  EXPECT_EQ(Number(), "4.00");
  Wheel(-180);
  EXPECT_EQ(Number(), "2.00");
  EXPECT_EQ(m_oChanged.count(), 3);
  EXPECT_FALSE(Wheel(120, Qt::ControlModifier));
  EXPECT_EQ(Number(), "2.00");
}

TEST_F(ctlNumericTextTest, TheBreakBehindAPastedNumberIsDropped) {
  QApplication::clipboard()->setText("12.50\r\n");
  TypeInstead("9");
  m_pText->selectAll();
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(m_pBox->Text(), "12.50");
}

TEST_F(ctlNumericTextTest, TheEdgeShowsTheFocusAndABadText) {
  const auto fnEdge = [&] { return m_pBox->grab().toImage().pixelColor(0, m_pBox->height() / 2); };
  EXPECT_EQ(fnEdge(), InkColour(Ink::FieldEdge));
  TypeInstead("7");
  EXPECT_EQ(fnEdge(), InkColour(Ink::Accent));
  TypeInstead("x");
  EXPECT_EQ(fnEdge(), InkColour(Ink::Error));
  Press(Qt::Key_Tab);
  EXPECT_EQ(fnEdge(), InkColour(Ink::Error)) << "what was typed isn't what stands there";
  m_pBox->SetText("8");
  EXPECT_EQ(fnEdge(), InkColour(Ink::FieldEdge));
}

}  // namespace
}  // namespace quillet
