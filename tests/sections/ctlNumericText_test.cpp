#include "sections/ctlNumericText.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "prices/money.h"
#include "sections/SpinButton.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

/// A window with two boxes for money.
class ctlNumericTextTest : public ::testing::Test {
 protected:
  ctlNumericTextTest() {
    for (ctlNumericText* const pBox : {m_pBox, m_pNext}) {
      pBox->SetDecimalSeperator(m_oHost.sDecimalSeparator);
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

  void Press(int nKey, Qt::KeyboardModifiers eHeld = Qt::NoModifier) {
    QTest::keyClick(m_pBox->TextBox(), static_cast<Qt::Key>(nKey), eHeld);
  }

  void TypeInstead(const QString& sText) {
    m_pBox->TextBox()->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(m_pBox->TextBox(), sText);
  }

  void Spin(bool bUp) {
    QTest::mouseClick(m_pSpin, Qt::LeftButton, {}, {m_pSpin->width() / 2, bUp ? 3 : 15});
  }

  bool Wheel(int nTurn, Qt::KeyboardModifiers eHeld = Qt::NoModifier) {
    const QPointF oAt(5, 5);
    QWheelEvent oEvent(oAt, m_pBox->mapToGlobal(oAt), {}, {0, nTurn}, Qt::NoButton, eHeld,
                       Qt::NoScrollPhase, false);
    oEvent.ignore();
    QApplication::sendEvent(m_pBox, &oEvent);
    return oEvent.isAccepted();
  }

  ScopedHost m_oHost;
  QWidget m_oWindow;
  ctlNumericText* m_pBox = new ctlNumericText(&m_oWindow);
  ctlNumericText* m_pNext = new ctlNumericText(&m_oWindow);
  SpinButton* m_pSpin = m_pBox->findChild<SpinButton*>("UpDown1");
  QSignalSpy m_oChanged{m_pBox, &ctlNumericText::Changed};
};

TEST_F(ctlNumericTextTest, ArrowKeysStepByTheSideOfTheSeparatorThatTheCaretIsOn) {
  struct Row {
    int nFromEnd;  ///< where the caret stands
    int nKey;
    Qt::KeyboardModifiers eHeld;
    const char* sExpected;
  };
  for (const Row& oRow : {Row{3, Qt::Key_Up, Qt::NoModifier, "4.00"},
                          {2, Qt::Key_Up, Qt::NoModifier, "3.01"},
                          {0, Qt::Key_Down, Qt::NoModifier, "2.99"},
                          {4, Qt::Key_Up, Qt::ShiftModifier, "13.00"},
                          {0, Qt::Key_Up, Qt::ShiftModifier, "3.10"},
                          {4, Qt::Key_Down, Qt::ShiftModifier, "-7.00"},
                          {4, Qt::Key_Up, Qt::ShiftModifier | Qt::KeypadModifier, "13.00"},
                          {4, Qt::Key_Up, Qt::ShiftModifier | Qt::ControlModifier, "4.00"},
                          {4, Qt::Key_Right, Qt::NoModifier, "3.00"}}) {
    m_pBox->SetText("3");
    m_oChanged.clear();
    QLineEdit& oText = *m_pBox->TextBox();
    oText.setFocus();
    oText.setCursorPosition(static_cast<int>(oText.text().size()) - oRow.nFromEnd);
    Press(oRow.nKey, oRow.eHeld);
    EXPECT_EQ(Number(), oRow.sExpected) << oRow.nFromEnd << " from the end, key " << oRow.nKey;
    EXPECT_EQ(m_oChanged.count(), oRow.nKey == Qt::Key_Right ? 0 : 1);
  }
}

TEST_F(ctlNumericTextTest, TheSideIsKeptFromStepToStep) {
  QLineEdit& oText = *m_pBox->TextBox();
  oText.setFocus();
  oText.setCursorPosition(static_cast<int>(oText.text().size()) - 2);
  for (int i = 0; i < 3; ++i) {
    Press(Qt::Key_Up);
  }
  EXPECT_EQ(Number(), "3.03");
  Press(Qt::Key_Left);
  for (int i = 0; i < 7; ++i) {
    Press(Qt::Key_Up);
  }
  Press(Qt::Key_Down);
  EXPECT_EQ(Number(), "9.03");
}

TEST_F(ctlNumericTextTest, TheKeyboardSelectsEverythingAndStepsWholeUnitsThen) {
  QTest::keyClick(m_pNext->TextBox(), Qt::Key_Backtab);
  EXPECT_EQ(m_pBox->TextBox()->selectedText().toStdString(), m_pBox->Text());
  Press(Qt::Key_Up);
  EXPECT_EQ(Number(), "4.00");
  Press(Qt::Key_Tab);
  EXPECT_TRUE(m_pNext->TextBox()->hasFocus()) << "one press of Tab passes one box";
  QTest::mouseClick(m_pBox->TextBox(), Qt::LeftButton);
  EXPECT_TRUE(m_pBox->TextBox()->hasFocus());
  EXPECT_FALSE(m_pBox->TextBox()->hasSelectedText());
}

TEST_F(ctlNumericTextTest, TypingIsSilentAndLeavingTells) {
  TypeInstead("12.5");
  EXPECT_EQ(m_oChanged.count(), 0);
  EXPECT_EQ(m_pBox->Value(), 12.5);
  Press(Qt::Key_Tab);
  EXPECT_EQ(m_oChanged.count(), 1);
  EXPECT_EQ(m_pBox->Text(), "12.5") << "the number is formatted by whoever writes it next";
}

TEST_F(ctlNumericTextTest, ABadTextStaysInViewUntilTheFocusLeaves) {
  std::vector<double> afHeard;
  QObject::connect(m_pBox, &ctlNumericText::Changed, [&] { afHeard.push_back(m_pBox->Value()); });
  TypeInstead("7x");
  EXPECT_EQ(m_pBox->Text(), "7x");
  EXPECT_EQ(m_pBox->Value(), 0);
  Press(Qt::Key_Tab);
  EXPECT_EQ(m_pBox->Text(), "7") << "the last text that was a number";
  EXPECT_EQ(afHeard, std::vector<double>{7});

  m_pBox->SetMax(10);
  TypeInstead("50");
  Press(Qt::Key_Tab);
  EXPECT_EQ(m_pBox->Text(), "5") << "the last one within the bounds";
}

TEST_F(ctlNumericTextTest, AnotherWindowOrTheBoxesOwnMenuLeavesTheTextAlone) {
  TypeInstead("abc");
  for (const auto eReason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    QFocusEvent oLost(QEvent::FocusOut, eReason);
    QApplication::sendEvent(m_pBox->TextBox(), &oLost);
  }
  EXPECT_EQ(m_pBox->Text(), "abc");
  EXPECT_EQ(m_oChanged.count(), 0);
}

TEST_F(ctlNumericTextTest, AnEmptyBoxIsZeroAndTellsOfEveryArrowKey) {
  m_pBox->SetText("");
  EXPECT_EQ(m_pBox->Value(), 0);
  Press(Qt::Key_Up);
  EXPECT_EQ(m_pBox->Text(), "");
  EXPECT_EQ(m_oChanged.count(), 1);
}

TEST_F(ctlNumericTextTest, TheSpinButtonStepsForEverAndBringsTheFocusToTheText) {
  m_pBox->TextBox()->setCursorPosition(0);
  m_pNext->TextBox()->setText("bad");
  Spin(false);
  EXPECT_EQ(Number(), "2.00") << "the first step wraps the button's own value";
  EXPECT_TRUE(m_pBox->TextBox()->hasFocus());
  EXPECT_NE(m_pNext->Text(), "bad") << "the other box was left";
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
  const QPoint oUp(m_pSpin->width() / 2, 3);
  QTest::mousePress(m_pSpin, Qt::LeftButton, {}, oUp);
  EXPECT_EQ(m_oChanged.count(), 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return m_oChanged.count() >= 4; }, 5000));
  QTest::mouseRelease(m_pSpin, Qt::LeftButton, {}, oUp);
  const auto nSteps = m_oChanged.count();
  EXPECT_FALSE(QTest::qWaitFor([&] { return m_oChanged.count() > nSteps; }, 600));
  QTest::mousePress(m_pSpin, Qt::LeftButton, {}, oUp);
  m_pBox->SetEnabled(false);
  m_oChanged.clear();
  EXPECT_FALSE(QTest::qWaitFor([&] { return m_oChanged.count() > 0; }, 600));
}

TEST_F(ctlNumericTextTest, TheWheelStepsByWholeNotchesAndIsTheWindowsWithCtrl) {
  m_pBox->TextBox()->setCursorPosition(0);
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

TEST_F(ctlNumericTextTest, WritingAPropertyShowsWhatItIsDefinedToShow) {
  m_pBox->SetText("2.5");
  m_pBox->SetValue(5);
  EXPECT_EQ(Number(), "2.50") << "the written value counts for nothing";
  m_pBox->SetText("three");
  EXPECT_EQ(m_pBox->Text(), "three");
  m_pBox->SetValue(5);
  EXPECT_EQ(Number(), "0.00");
  m_pBox->SetMin(4);
  m_pBox->SetMax(10);
  EXPECT_EQ(Number(), "0.00") << "bounds count from the next write on";
  m_pBox->SetText("50");
  EXPECT_EQ(Number(), "10.00");
  m_pBox->SetShowMoney(false);
  EXPECT_EQ(m_pBox->Text(), "4.00");
  m_pBox->SetDecimalPlaces(0);
  EXPECT_EQ(m_pBox->Text(), "4");
  m_pBox->SetMin(0);
  m_pBox->SetMax(0);
  EXPECT_THROW(m_pBox->SetText("1E39"), Failure);
  EXPECT_THROW(m_pBox->SetText("3000000000"), Failure);
  EXPECT_EQ(m_oChanged.count(), 0);
}

TEST_F(ctlNumericTextTest, AStepThatFailsChangesAndTellsNothing) {
  m_pBox->SetDecimalPlaces(5);
  m_pBox->TextBox()->end(false);
  Press(Qt::Key_Up);
  EXPECT_EQ(Number(), "0.00000");
  EXPECT_EQ(m_oChanged.count(), 0);
  m_pBox->SetShowMoney(false);
  m_pBox->SetDecimalPlaces(0);
  TypeInstead("3000000000");
  Press(Qt::Key_Up);
  EXPECT_EQ(m_pBox->Text(), "3000000000");
  EXPECT_EQ(m_oChanged.count(), 0);
}

TEST_F(ctlNumericTextTest, AnythingCanBePastedAndUndone) {
  struct Row {
    const char* sPasted;
    const char* sInBox;
    const char* sAfterLeaving;
  };
  for (const Row& oRow : {Row{"12.50\r\n", "12.50", "12.50"},
                          {"12\n13", "12\n13", "9"},
                          {"\n", "", "9"},
                          {"1,000.00", "1,000.00", "9"}}) {
    m_pNext->setFocus();
    TypeInstead("9");
    QApplication::clipboard()->setText(oRow.sPasted);
    m_pBox->TextBox()->selectAll();
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_pBox->Text(), oRow.sInBox);
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_pBox->Text(), oRow.sAfterLeaving) << oRow.sPasted;
  }
  m_pBox->SetText("3");
  TypeInstead("8");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Number(), "3.00");
}

TEST_F(ctlNumericTextTest, AUserWithACommaTypesAndStepsWithIt) {
  m_oHost.sDecimalSeparator = ",";
  m_pBox->SetDecimalSeperator(",");
  m_pBox->SetText("0,5");
  EXPECT_EQ(Number(), "0,50");
  TypeInstead("12,34");
  EXPECT_EQ(m_pBox->Value(), Single(12.34));
  Press(Qt::Key_Up);
  EXPECT_EQ(Number(), "12,35");
}

TEST_F(ctlNumericTextTest, ADisabledBoxIsGreyAndPassedOver) {
  m_pBox->SetForeColor(kColourGreyText);
  m_pBox->SetEnabled(false);
  QTest::keyClick(m_pNext->TextBox(), Qt::Key_Tab);
  EXPECT_TRUE(m_pNext->TextBox()->hasFocus());
  EXPECT_EQ(m_pBox->TextBox()->palette().color(QPalette::Text), InkColour(Ink::GreyText));
  Spin(true);
  EXPECT_EQ(Number(), "3.00");
  m_pBox->SetForeColor(kColourWindowText);
  EXPECT_EQ(m_pBox->TextBox()->palette().color(QPalette::Text), InkColour(Ink::Text));
}

TEST_F(ctlNumericTextTest, AMillionFitsAtEveryZoomBesideTheSpinButton) {
  for (const double fZoom : {0.75, 0.9, 1.0, 1.25, 1.5, 2.0, 3.0}) {
    SetZoom(fZoom);
    m_pBox->Rescale();
    QLineEdit& oText = *m_pBox->TextBox();
    EXPECT_EQ(m_pSpin->width(), Pixels(255)) << fZoom;
    EXPECT_EQ(oText.width() + m_pSpin->width(), m_pBox->width()) << fZoom;
    constexpr int kToolkitsMargin = 2;
    const int nRoom = oText.width() - oText.textMargins().left() - 2 * kToolkitsMargin;
    EXPECT_LE(oText.fontMetrics().horizontalAdvance("$1000000.00"), nRoom) << fZoom;
    EXPECT_LE(oText.fontMetrics().height(), oText.height()) << fZoom;
  }
}

TEST_F(ctlNumericTextTest, TheEdgeShowsTheFocusAndABadText) {
  const auto fnEdge = [&] { return m_pBox->grab().toImage().pixelColor(0, m_pBox->height() / 2); };
  EXPECT_EQ(fnEdge(), InkColour(Ink::FieldEdge));
  TypeInstead("7");
  EXPECT_EQ(fnEdge(), InkColour(Ink::Accent));
  TypeInstead("x");
  EXPECT_EQ(fnEdge(), InkColour(Ink::Error));
}

TEST_F(ctlNumericTextTest, ScreenReadersFindTheNameOnWhatHasTheFocus) {
  m_pBox->SetAccessibleName("Starting Price");
  QAccessibleInterface* const pText = QAccessible::queryAccessibleInterface(m_pBox->TextBox());
  EXPECT_EQ(pText->text(QAccessible::Name), "Starting Price");
}

}  // namespace
}  // namespace quillet
