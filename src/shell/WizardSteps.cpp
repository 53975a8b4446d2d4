#include "shell/WizardSteps.h"

#include <QPainter>

#include "look/font.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

// Twips.
constexpr int kDot = 270;
constexpr int kNameGap = 90;
constexpr int kRule = 360;  // between two steps
constexpr int kRuleGap = 120;

constexpr double kNumberPoints = 7.0;
constexpr double kTickInset = 0.29;  // of the dot's size

QFont NameFont() {
  return ThemeFont(kTextPoints, QFont::Medium);
}

double Between() {
  return Pixels(kRule + 2 * kRuleGap);
}

}  // namespace

WizardSteps::WizardSteps(QWidget* pParent)
    : QWidget(pParent), Control(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WizardSteps::SetCurrent(int nCurrent) {
  m_nCurrent = nCurrent;
  setAccessibleName(Caption());
  update();
}

QString WizardSteps::Caption() const {
  return QString("Step %1 of %2 · %3")
      .arg(m_nCurrent + 1)
      .arg(m_asNames.size())
      .arg(m_asNames.value(m_nCurrent));
}

double WizardSteps::WidthOf(int nStep) const {
  return Pixels(kDot + kNameGap) +
         QFontMetricsF(NameFont()).horizontalAdvance(m_asNames.value(nStep));
}

void WizardSteps::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  const int nSteps = static_cast<int>(m_asNames.size());
  double fWidth = (nSteps - 1) * Between();
  for (int i = 0; i < nSteps; ++i) {
    fWidth += WidthOf(i);
  }
  if (fWidth > width()) {
    oPainter.setFont(NameFont());
    oPainter.setPen(InkColour(Ink::FaintText));
    oPainter.drawText(rect(), Qt::AlignCenter, Caption());
    return;
  }
  double fLeft = (width() - fWidth) / 2;
  for (int i = 0; i < nSteps; ++i) {
    DrawStep(oPainter, i, fLeft);
    fLeft += WidthOf(i) + Between();
  }
}

/// A step, and the rule that leads to the next one.
void WizardSteps::DrawStep(QPainter& oPainter, int nStep, double fLeft) const {
  const double fMiddle = height() / 2.0;
  const double fDot = Pixels(kDot);
  DrawDot(oPainter, nStep, {fLeft, fMiddle - fDot / 2, fDot, fDot});
  oPainter.setFont(NameFont());
  const double fName = fLeft + Pixels(kDot + kNameGap);
  DrawWords(oPainter, QRectF(fName, 0, width() - fName, height()), m_asNames.value(nStep),
            InkColour(nStep == m_nCurrent ? Ink::Text : Ink::FaintText));
  if (nStep + 1 < m_asNames.size()) {
    const double fRule = fLeft + WidthOf(nStep) + Pixels(kRuleGap);
    oPainter.setPen(QPen(InkColour(nStep < m_nCurrent ? Ink::Accent : Ink::FieldEdge), 1.0));
    oPainter.drawLine(QPointF(fRule, fMiddle), QPointF(fRule + Pixels(kRule), fMiddle));
  }
}

void WizardSteps::DrawDot(QPainter& oPainter, int nStep, const QRectF& oDot) const {
  const QRectF oRing = oDot.adjusted(0.75, 0.75, -0.75, -0.75);
  const bool bCurrent = nStep == m_nCurrent;
  const bool bDone = nStep < m_nCurrent;
  oPainter.setPen(QPen(InkColour(bCurrent || bDone ? Ink::Accent : Ink::FieldEdge), 1.2));
  oPainter.setBrush(InkColour(bCurrent ? Ink::Accent : Ink::Panel));
  oPainter.drawEllipse(oRing);
  if (bDone) {
    const double fInset = oDot.width() * kTickInset;
    DrawTick(oPainter, oDot.adjusted(fInset, fInset, -fInset, -fInset), InkColour(Ink::Accent));
    return;
  }
  oPainter.setFont(ThemeFont(kNumberPoints, QFont::Bold));
  oPainter.setPen(InkColour(bCurrent ? Ink::OnAccent : Ink::FaintText));
  oPainter.drawText(oDot, Qt::AlignCenter, QString::number(nStep + 1));
}

}  // namespace quillet
