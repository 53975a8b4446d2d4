#include "controls/Controls.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "controls/OptionInterface.h"
#include "look/font.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

QColor MarkColour(const Control& oControl, Ink eInk) {
  return oControl.ForeColor() == kColourGreyText ? InkColour(Ink::GreyText) : InkColour(eInk);
}

QRectF MarkRect(const QWidget& oWidget) {
  const double fSize = MarkPlacesAtZoom().fSize;
  return {0.5, std::floor((oWidget.height() - fSize) / 2.0) + 0.5, fSize, fSize};
}

/// The caption, and the line around it that shows where the keyboard is.
void DrawCaption(QPainter& oPainter, const QAbstractButton& oButton, const Control& oControl) {
  const QRect oText = oButton.rect().adjusted(MarkPlacesAtZoom().nTextLeft, 0, 0, 0);
  oPainter.setPen(ColourOf(oControl.ForeColor()));
  oPainter.drawText(oText, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, oButton.text());
}

void DrawFocus(QPainter& oPainter, const QRectF& oMark, double fRadius) {
  constexpr double kGap = 2.0;
  oPainter.setBrush(Qt::NoBrush);
  oPainter.setPen(QPen(InkColour(Ink::Accent), 1.5));
  oPainter.drawRoundedRect(oMark.adjusted(-kGap + 1.5, -kGap, kGap, kGap), fRadius + kGap,
                           fRadius + kGap);
}

void DrawTick(QPainter& oPainter, const QRectF& oMark, const QColor& oColour) {
  QPainterPath oPath;
  oPath.moveTo(oMark.left() + oMark.width() * 0.24, oMark.top() + oMark.height() * 0.53);
  oPath.lineTo(oMark.left() + oMark.width() * 0.43, oMark.top() + oMark.height() * 0.71);
  oPath.lineTo(oMark.left() + oMark.width() * 0.77, oMark.top() + oMark.height() * 0.32);
  oPainter.setBrush(Qt::NoBrush);
  oPainter.setPen(QPen(oColour, std::max(1.4, oMark.width() * 0.14), Qt::SolidLine, Qt::RoundCap,
                       Qt::RoundJoin));
  oPainter.drawPath(oPath);
}

QSize CaptionSize(const QAbstractButton& oButton) {
  const QSize oText = oButton.fontMetrics().size(Qt::TextShowMnemonic, oButton.text());
  return {oText.width() + MarkPlacesAtZoom().nTextLeft, oText.height()};
}

}  // namespace

MarkPlaces MarkPlacesAtZoom() {
  constexpr double kSizeInTwips = 165;
  constexpr double kTextLeftInTwips = 255;
  return {static_cast<double>(Pixels(kSizeInTwips)), Pixels(kTextLeftInTwips)};
}

Label::Label(QWidget* pParent)
    : QLabel(pParent), Control(static_cast<QWidget&>(*this)), m_fPoints(kTextPoints) {
  setTextFormat(Qt::PlainText);
  Label::SetForeColor(kColourWindow);
}

void Label::SetCaption(const QString& sCaption) {
  if (m_sCaption != sCaption) {
    m_sCaption = sCaption;
    setText(QString(sCaption).replace("&&", "&"));
    SetWidth(Width());
  }
}

void Label::SetForeColor(std::uint32_t nColour) {
  Control::SetForeColor(nColour);
  QPalette oPalette = palette();
  if (oPalette.color(QPalette::WindowText) != ColourOf(nColour)) {
    oPalette.setColor(QPalette::WindowText, ColourOf(nColour));
    setPalette(oPalette);
  }
}

void Label::SetFontSize(double fPoints, QFont::Weight eWeight) {
  m_fPoints = fPoints;
  m_eWeight = eWeight;
  Rescale();
}

void Label::Rescale() {
  Control::Rescale();
  setFont(ThemeFont(m_fPoints, m_eWeight));
  SetWidth(Width());
}

CheckBox::CheckBox(QWidget* pParent) : QCheckBox(pParent), Choice(static_cast<QWidget&>(*this)) {}

void CheckBox::SetCaption(const QString& sCaption) {
  setText(sCaption);
  SetWidth(Width());
}

QSize CheckBox::sizeHint() const {
  return CaptionSize(*this);
}

void CheckBox::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr double kRadius = 0.22;  // of the mark's size, or a small one would look like an option
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  const QRectF oMark = MarkRect(*this);
  const double fRadius = oMark.width() * kRadius;
  oPainter.setPen(QPen(MarkColour(*this, isChecked() ? Ink::Accent : Ink::FaintText), 1.0));
  oPainter.setBrush(isChecked() ? MarkColour(*this, Ink::Accent) : InkColour(Ink::Field));
  oPainter.drawRoundedRect(oMark, fRadius, fRadius);
  if (isChecked()) {
    DrawTick(oPainter, oMark, InkColour(Ink::OnAccent));
  }
  if (hasFocus()) {
    DrawFocus(oPainter, oMark, fRadius);
  }
  DrawCaption(oPainter, *this, *this);
}

OptionButton::OptionButton(QWidget* pParent)
    : QRadioButton(pParent), Choice(static_cast<QWidget&>(*this)) {
  setAutoExclusive(false);
  OptionInterface::Install();
  // Before any other listener, so that a click finds one option chosen at the most.
  connect(this, &QAbstractButton::toggled, this, &OptionButton::PutOutOthers);
}

void OptionButton::SetCaption(const QString& sCaption) {
  setText(sCaption);
  SetWidth(Width());
}

QSize OptionButton::sizeHint() const {
  return CaptionSize(*this);
}

void OptionButton::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  const QRectF oMark = MarkRect(*this);
  if (isChecked()) {
    oPainter.setPen(Qt::NoPen);
    oPainter.setBrush(MarkColour(*this, Ink::Accent));
    oPainter.drawEllipse(oMark);
    const double fInset = oMark.width() * 0.32;
    oPainter.setBrush(InkColour(Ink::OnAccent));
    oPainter.drawEllipse(oMark.adjusted(fInset, fInset, -fInset, -fInset));
  } else {
    oPainter.setPen(QPen(MarkColour(*this, Ink::FaintText), 1.0));
    oPainter.setBrush(InkColour(Ink::Field));
    oPainter.drawEllipse(oMark);
  }
  if (hasFocus()) {
    DrawFocus(oPainter, oMark, oMark.width() / 2.0);
  }
  DrawCaption(oPainter, *this, *this);
}

void OptionButton::keyPressEvent(QKeyEvent* pEvent) {
  switch (pEvent->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      ChooseNeighbour(-1);
      return;
    case Qt::Key_Down:
    case Qt::Key_Right:
      ChooseNeighbour(1);
      return;
    default:
      QRadioButton::keyPressEvent(pEvent);
  }
}

/// The options of the container, in reading order.
QList<OptionButton*> OptionButton::Group() const {
  QList<OptionButton*> aoGroup =
      parentWidget()->findChildren<OptionButton*>(QString(), Qt::FindDirectChildrenOnly);
  std::stable_sort(aoGroup.begin(), aoGroup.end(),
                   [](const auto* a, const auto* b) { return a->Top() < b->Top(); });
  return aoGroup;
}

void OptionButton::PutOutOthers() {
  if (!isChecked()) {
    return;
  }
  for (OptionButton* const pOther : Group()) {
    if (pOther != this && pOther->isChecked()) {
      const QSignalBlocker oSilence(pOther);
      pOther->setChecked(false);
      pOther->update();
    }
  }
}

void OptionButton::ChooseNeighbour(int nStep) {
  QList<OptionButton*> aoGroup = Group();
  aoGroup.removeIf([](const OptionButton* p) { return !p->isVisible() || !p->isEnabled(); });
  const auto nAt = aoGroup.indexOf(this);
  if (nAt < 0 || aoGroup.size() < 2) {
    return;
  }
  OptionButton* const pNext = aoGroup.at((nAt + nStep + aoGroup.size()) % aoGroup.size());
  pNext->setFocus(Qt::TabFocusReason);
  pNext->SetValue(1);
}

Image::Image(QWidget* pParent) : QWidget(pParent), Control(static_cast<QWidget&>(*this)) {
  setCursor(Qt::SizeAllCursor);
}

void Image::SetCaption(const QString& sCaption) {
  m_sCaption = sCaption;
  setAccessibleName(sCaption);
  update();
}

void Image::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr double kRadius = 5.0;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(Qt::NoPen);
  oPainter.setBrush(InkColour(Ink::HeaderBar));
  oPainter.drawRoundedRect(rect(), kRadius, kRadius);
  oPainter.setPen(InkColour(Ink::OnHeaderBar));
  oPainter.drawText(rect().adjusted(Pixels(120), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                    m_sCaption);
}

void Image::mousePressEvent(QMouseEvent* pEvent) {
  const QPointF oAt = pEvent->position();
  emit MouseDown(static_cast<float>(Twips(oAt.x())), static_cast<float>(Twips(oAt.y())));
}

void Image::mouseMoveEvent(QMouseEvent* pEvent) {
  const QPointF oAt = pEvent->position();
  emit MouseMove(static_cast<float>(Twips(oAt.x())), static_cast<float>(Twips(oAt.y())));
}

void Image::mouseReleaseEvent(QMouseEvent* pEvent) {
  const QPointF oAt = pEvent->position();
  emit MouseUp(static_cast<float>(Twips(oAt.x())), static_cast<float>(Twips(oAt.y())));
}

}  // namespace quillet
