#include "sections/ctlNumericText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QValidator>
#include <QWheelEvent>
#include <algorithm>

#include "base/conversions.h"
#include "base/text.h"
#include "controls/SpinButton.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr int kDesignWidth = 1980;
constexpr int kDesignHeight = 345;
constexpr int kSpinUnit = 255;  // the spin button is as many of these wide as it is high
constexpr int kTextMargin = 60;
constexpr int kNarrow = 1000;  // a box this wide needs all its room for "$999.99"
constexpr int kNarrowMargin = 15;
constexpr int kRightMargin = -30;  // the toolkit leaves room of its own
constexpr int kFreeBelow = 20;     // boxes on neighbouring rows don't touch
constexpr int kKeyStep = 1;
constexpr int kShiftedKeyStep = 10;

/// Lets everything pass except the line break after a number copied from a spreadsheet.
class DropTrailingBreaks : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& sText, int& nCaret) const override {
    while (sText.endsWith('\n') || sText.endsWith('\r')) {
      sText.chop(1);
    }
    nCaret = std::min(nCaret, static_cast<int>(sText.size()));
    return Acceptable;
  }
};

QColor InputInk(std::uint32_t nColour) {
  return nColour == kColourWindowText ? InkColour(Ink::Text) : ColourOf(nColour);
}

QColor InputGround(std::uint32_t nColour) {
  return nColour == kColourWindow ? InkColour(Ink::Field) : ColourOf(nColour);
}

}  // namespace

ctlNumericText::ctlNumericText(QWidget* pParent)
    : QWidget(pParent),
      Control(static_cast<QWidget&>(*this)),
      m_pText(new QLineEdit("0", this)),
      m_pSpin(new SpinButton(this)) {
  m_pText->setObjectName("txtValue");
  m_pText->setFrame(false);
  m_pText->setValidator(new DropTrailingBreaks(m_pText));
  QPalette oPalette = m_pText->palette();
  oPalette.setColor(QPalette::Base, Qt::transparent);  // the whole box is drawn as one
  m_pText->setPalette(oPalette);
  m_pText->installEventFilter(this);
  m_pSpin->setObjectName("UpDown1");
  // A click on the spin button puts the focus in the text and nowhere else.
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(m_pText);
  connect(m_pText, &QLineEdit::textChanged, this, &ctlNumericText::txtValue_Change);
  connect(m_pSpin, &SpinButton::Change, this, &ctlNumericText::UpDown1_Change);
  Place(0, 0, kDesignWidth, kDesignHeight);
}

void ctlNumericText::SetDecimalPlaces(std::int16_t nPlaces) {
  m_oNumber.m_nDecimalPlaces = nPlaces;
  SetDisplayValue(0);
}

void ctlNumericText::SetShowMoney(bool bShowMoney) {
  m_oNumber.m_bShowMoney = bShowMoney;
  SetDisplayValue(0);
}

std::string ctlNumericText::DecimalSeperator() const {
  return FromUtf16(m_oNumber.m_sDecimalSeperator);
}

void ctlNumericText::SetDecimalSeperator(const std::string& sSeparator) {
  m_oNumber.m_sDecimalSeperator = ToUtf16(sSeparator);
  SetDisplayValue(0);
}

std::string ctlNumericText::Text() const {
  return m_pText->text().toStdString();
}

void ctlNumericText::SetText(const std::string& sText) {
  if (!IsNumeric(sText)) {
    if (sText != Text()) {  // else the caret stays where a step put it
      m_pText->setText(QString::fromStdString(sText));
    }
    return;
  }
  const std::optional<Single> fValue = ToSingle(sText);
  if (!fValue) {
    throw Failure(FailureNumber::Overflow, "A number is too large to be shown.");
  }
  SetDisplayValue(*fValue);
}

Single ctlNumericText::Value() const {
  return m_oNumber.ParseCurrentValue(Box().sText).value_or(0);
}

void ctlNumericText::SetValue(Single /*fIgnored*/) {
  SetText(SingleText(Value()));
}

void ctlNumericText::SetForeColor(std::uint32_t nColour) {
  if (nColour == ForeColor()) {
    return;
  }
  Control::SetForeColor(nColour);
  QPalette oPalette = m_pText->palette();
  oPalette.setColor(QPalette::Text, InputInk(nColour));
  m_pText->setPalette(oPalette);
}

void ctlNumericText::SetBackColor(std::uint32_t nColour) {
  m_nBackColor = nColour;
  update();
}

void ctlNumericText::SetAccessibleName(const QString& sName) {
  setAccessibleName(sName);
  m_pText->setAccessibleName(sName);
}

void ctlNumericText::SetDisplayValue(Single fValue) {
  BoxText oBox = Box();
  m_oNumber.SetDisplayValue(fValue, oBox);
  Show(oBox);
}

BoxText ctlNumericText::Box() const {
  const int nCaret =
      m_pText->hasSelectedText() ? m_pText->selectionStart() : m_pText->cursorPosition();
  return {m_pText->text().toStdU16String(), static_cast<std::size_t>(nCaret)};
}

/// An unchanged text keeps its selection and its undo history.
void ctlNumericText::Show(const BoxText& oBox) {
  const BoxText oBefore = Box();
  if (oBox.sText != oBefore.sText) {
    m_pText->setText(QString::fromStdU16String(oBox.sText));
    m_pText->setCursorPosition(static_cast<int>(oBox.nCaret));
  } else if (oBox.nCaret != oBefore.nCaret) {
    m_pText->setCursorPosition(static_cast<int>(oBox.nCaret));
  }
}

/// Key events end here: a Failure has no caller to reach. The toolkit's text box doesn't handle the
/// arrows itself, so the caret stays where the step put it. Enter is passed on unless the text is
/// refused.
bool ctlNumericText::txtValue_KeyDown(const QKeyEvent& oEvent) {
  if (oEvent.key() == Qt::Key_Return || oEvent.key() == Qt::Key_Enter) {
    const bool bEntered = CommitTyping();
    m_pText->selectAll();
    return !bEntered;
  }
  if (oEvent.key() != Qt::Key_Up && oEvent.key() != Qt::Key_Down) {
    return false;
  }
  constexpr Qt::KeyboardModifiers kHeld =
      Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const bool bShiftAlone = (oEvent.modifiers() & kHeld) == Qt::ShiftModifier;
  const int nStep = bShiftAlone ? kShiftedKeyStep : kKeyStep;
  StepAndTell(oEvent.key() == Qt::Key_Up ? nStep : -nStep, m_oNumber.CaretRegion(Box()));
  return true;
}

void ctlNumericText::UpDown1_Change() {
  const int nDelta = SpinDelta(m_pSpin->Range(), m_nLastSpinValue, m_pSpin->Value());
  m_nLastSpinValue = m_pSpin->Value();
  StepAndTell(nDelta, m_oNumber.HasDecimals() && m_oNumber.CaretRegion(Box()));
}

void ctlNumericText::StepAndTell(int nDelta, bool bInDecimals) {
  IgnoreFailure([&] {
    BoxText oBox = Box();
    m_oNumber.StepValue(nDelta, bInDecimals, oBox);
    Show(oBox);
    emit Changed();
  });
}

void ctlNumericText::txtValue_Change() {
  const std::u16string sText = m_pText->text().toStdU16String();
  if (m_oNumber.IsTextValid(sText)) {
    m_sLastValidText = sText;
  }
  SetRefused(!m_oNumber.CanBeShown(sText));
}

void ctlNumericText::SetRefused(bool bRefused) {
  if (bRefused != m_bRefused) {
    m_bRefused = bRefused;
    update();
  }
}

/// The text takes the focus for the whole control, so both are left at once. The good text comes
/// back first, so that listeners read the number that stays. The red edge shows that it isn't what
/// was typed, until the box gets another text.
void ctlNumericText::UserControl_LostFocus() {
  const std::u16string sText = m_pText->text().toStdU16String();
  const bool bValid = m_oNumber.IsTextValid(sText);
  if (!bValid) {
    Show({m_sLastValidText, m_sLastValidText.size()});
  }
  IgnoreFailure([&] { emit Changed(); });
  SetRefused(!bValid || !m_oNumber.CanBeShown(Box().sText));
}

bool ctlNumericText::CommitTyping() {
  if (!m_pText->isModified()) {
    return true;
  }
  UserControl_LostFocus();
  m_pText->setModified(false);
  return !m_bRefused;
}

bool ctlNumericText::CommitFocused() {
  const QWidget* const pFocus = QApplication::focusWidget();
  auto* const pBox = pFocus != nullptr ? qobject_cast<ctlNumericText*>(pFocus->parent()) : nullptr;
  return pBox == nullptr || pBox->CommitTyping();
}

void ctlNumericText::LeaveFor(QWidget& oView) {
  auto* const pText = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  const bool bUntouched = pText != nullptr && !pText->isModified();
  const QSignalBlocker oQuiet(bUntouched ? pText->parent() : nullptr);
  oView.setFocus();
}

bool ctlNumericText::eventFilter(QObject* pWatched, QEvent* pEvent) {
  switch (pEvent->type()) {
    case QEvent::KeyPress:
      return txtValue_KeyDown(static_cast<QKeyEvent&>(*pEvent));
    case QEvent::FocusIn:
      update();
      break;
    case QEvent::FocusOut: {
      update();
      // In another window, or in the text's own menu, the focus comes back to where it was.
      const Qt::FocusReason eReason = static_cast<QFocusEvent&>(*pEvent).reason();
      if (eReason != Qt::ActiveWindowFocusReason && eReason != Qt::PopupFocusReason) {
        UserControl_LostFocus();
      }
      break;
    }
    default:
      break;
  }
  return QWidget::eventFilter(pWatched, pEvent);
}

/// Steps like the spin button in the box that has the focus; over any other the page scrolls. With
/// Ctrl held the wheel zooms the window.
void ctlNumericText::wheelEvent(QWheelEvent* pEvent) {
  constexpr int kNotch = 120;
  if (!m_pText->hasFocus() || (pEvent->modifiers() & Qt::ControlModifier) != 0 ||
      pEvent->angleDelta().y() == 0) {
    pEvent->ignore();
    return;
  }
  m_nWheel += pEvent->angleDelta().y();
  for (; std::abs(m_nWheel) >= kNotch; m_nWheel -= m_nWheel > 0 ? kNotch : -kNotch) {
    m_pSpin->Step(m_nWheel > 0);
  }
  pEvent->accept();
}

void ctlNumericText::paintEvent(QPaintEvent* /*pEvent*/) {
  const Ink eEdge = m_bRefused ? Ink::Error : m_pText->hasFocus() ? Ink::Accent : Ink::FieldEdge;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  // A panel ends with the label of its last row, which can be less high than the box.
  const int nRoom = isWindow() ? height() : parentWidget()->height() - y();
  const int nBottom = std::min(height() - Pixels(kFreeBelow), nRoom);
  const double fLine =
      DrawField(oPainter, QRectF(0, 0, width(), nBottom), eEdge, InputGround(m_nBackColor));
  oPainter.setPen(QPen(InkColour(Ink::FieldEdge), 1.0));
  const double fBetween = m_pText->width() + 0.5;
  oPainter.drawLine(QPointF(fBetween, fLine), QPointF(fBetween, nBottom - fLine));
}

void ctlNumericText::Placed() {
  const int nSpinWidth =
      std::min(width(), Pixels(RoundToLong(Height() / double{kSpinUnit}) * kSpinUnit));
  m_pText->setGeometry(0, 0, width() - nSpinWidth, height());
  const int nMargin = Width() > kNarrow ? kTextMargin : kNarrowMargin;
  m_pText->setTextMargins(Pixels(nMargin), 0, Pixels(kRightMargin), Pixels(kFreeBelow));
  m_pSpin->setGeometry(width() - nSpinWidth, 0, nSpinWidth, height());
}

}  // namespace quillet
