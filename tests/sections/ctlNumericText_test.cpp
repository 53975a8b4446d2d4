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

/// A window with two boxes for money. The first shows 3.00, the second has the focus.
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

  /// The text without the region's symbol in front.
  std::string Number() const {
    const std::string sText = m_pBox->Text();
    const std::string sSymbol = CurrencySymbolText();
    return sText.starts_with(sSymbol) ? sText.substr(sSymbol.size()) : sText;
  }

  void Press(Qt::Key eKey, Qt::KeyboardModifiers eHeld = Qt::NoModifier) {
    QTest::keyClick(m_pText, eKey, eHeld);
  }

  void PutCaret(int nFromEnd) {
    m_pText->setFocus();
    m_pText->setCursorPosition(static_cast<int>(m_pText->text().size()) - nFromEnd);
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

TEST_F(ctlNumericTextTest, ArrowKeysStepByTheSideOfTheSeparatorThatTheCaretIsOn) {
  struct Row {
    int nCaretFromEnd;
    Qt::Key eKey;
    Qt::KeyboardModifiers eHeld;
    const char* sExpected;
  };
  for (const Row& oRow : {Row{3, Qt::Key_Up, Qt::NoModifier, "4.00"},
                          {4, Qt::Key_Down, Qt::ShiftModifier, "-7.00"},
                          {4, Qt::Key_Right, Qt::NoModifier, "3.00"}}) {
    m_pBox->SetText("3");
    m_oChanged.clear();
    PutCaret(oRow.nCaretFromEnd);
    Press(oRow.eKey, oRow.eHeld);
    EXPECT_EQ(Number(), oRow.sExpected) << oRow.nCaretFromEnd << " from the end, " << oRow.eKey;
    EXPECT_EQ(m_oChanged.count(), oRow.eKey == Qt::Key_Right ? 0 : 1);
  }
}

TEST_F(ctlNumericTextTest, TheKeyboardSelectsEverythingAndStepsWholeUnitsThen) {
  QTest::keyClick(m_pNext->TextBox(), Qt::Key_Backtab);
  EXPECT_EQ(m_pText->selectedText(), m_pText->text());
  Press(Qt::Key_Up);
  EXPECT_EQ(Number(), "4.00");
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

TEST_F(ctlNumericTextTest, AnythingCanBePastedAndTypingUndone) {
  using Row = std::array<const char*, 3>;  // pasted, then in the box, and there after leaving
  for (const auto& [sPasted, sInBox, sLeft] :
       {Row{"12.50\r\n", "12.50", "12.50"}, Row{"12\n13", "12\n13", "9"}, Row{"\n", "", "9"}}) {
    TypeInstead("9");
    QApplication::clipboard()->setText(sPasted);
    m_pText->selectAll();
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_pBox->Text(), sInBox);
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_pBox->Text(), sLeft) << sPasted;
  }
}

TEST_F(ctlNumericTextTest, AMillionFitsAtEveryZoomBesideTheSpinButton) {
  for (const double fZoom : {0.75, 0.9, 1.0, 1.25, 1.5, 2.0, 3.0}) {
    SetZoom(fZoom);
    m_pBox->Rescale();
    EXPECT_EQ(m_pSpin->width(), Pixels(255)) << fZoom;
    EXPECT_EQ(m_pText->width() + m_pSpin->width(), m_pBox->width()) << fZoom;
    constexpr int kToolkitsMargin = 2;
    const QRect oRoom =
        m_pText->rect() - m_pText->textMargins() - QMargins(kToolkitsMargin, 0, kToolkitsMargin, 0);
    const QFontMetrics oFont = m_pText->fontMetrics();
    EXPECT_LE(oFont.horizontalAdvance("$1000000.00"), oRoom.width()) << fZoom;
    EXPECT_LE(oFont.ascent() + oFont.descent(), oRoom.height()) << fZoom;
  }
}

TEST_F(ctlNumericTextTest, TheEdgeShowsTheFocusAndABadTextAndTheInkWhetherItIsInUse) {
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
  m_pBox->SetForeColor(kColourGreyText);
  EXPECT_EQ(m_pText->palette().color(QPalette::Text), InkColour(Ink::GreyText));
  m_pBox->SetForeColor(kColourWindowText);
  EXPECT_EQ(m_pText->palette().color(QPalette::Text), InkColour(Ink::Text));
}

}  // namespace
}  // namespace quillet
