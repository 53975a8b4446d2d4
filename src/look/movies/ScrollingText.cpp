#include "look/movies/ScrollingText.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QRegularExpression>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "look/marks.h"
#include "look/movies/drawing.h"
#include "look/palette.h"

namespace quillet {
namespace {

constexpr double kPoints = 9.0;
constexpr double kSpeed = 22.0;  // units of the design a second
constexpr double kRestAtFirst = 2.0;
constexpr double kFade = 20.0;  // units at either end, where lines fade in and out
constexpr double kMargin = 3.0;
constexpr int kTick = 16;         // milliseconds
constexpr double kLongest = 0.1;  // seconds that one tick may count for

}  // namespace

ScrollingText::ScrollingText(const QString& sText, QWidget* pParent)
    : QWidget(pParent),
      m_asParagraphs(
          sText.split(QRegularExpression("<br */?>", QRegularExpression::CaseInsensitiveOption))),
      m_fRest(kRestAtFirst) {
  setFocusPolicy(Qt::TabFocus);
  setAccessibleName(m_asParagraphs.join('\n'));
  m_oTicks.setTimerType(Qt::PreciseTimer);
  connect(&m_oTicks, &QTimer::timeout, this, &ScrollingText::Advance);
}

void ScrollingText::SetScale(double fScale) {
  m_fScale = fScale;
  setFont(MovieFont(kPoints, QFont::Medium, fScale));
  Wrap();
}

void ScrollingText::Advance() {
  const double fPassed = std::min(static_cast<double>(m_oClock.restart()) / 1000.0, kLongest);
  if (m_bHeld) {
    return;
  }
  m_fRest -= fPassed;
  if (m_fRest <= 0.0) {
    Move(fPassed * kSpeed * m_fScale);
  }
}

/// Scrolls until the last line has gone, then comes in again from below.
void ScrollingText::Move(double fPixels) {
  const double fHeight = LineHeight() * static_cast<double>(m_asLines.size());
  const double fTop = kFade * m_fScale;
  m_fOffset += fPixels;
  if (m_fOffset > fTop + fHeight) {
    m_fOffset = fTop - height();
  }
  m_fOffset = std::max(m_fOffset, fTop - height());
  update();
}

double ScrollingText::LineHeight() const {
  return std::ceil(QFontMetricsF(font()).lineSpacing() * 1.15);
}

void ScrollingText::Wrap() {
  m_asLines.clear();
  for (const QString& sParagraph : m_asParagraphs) {
    if (sParagraph.isEmpty()) {
      m_asLines += QString();
      continue;
    }
    QTextLayout oLayout(sParagraph, font());
    QTextOption oOption;
    oOption.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    oLayout.setTextOption(oOption);
    oLayout.beginLayout();
    for (QTextLine oLine = oLayout.createLine(); oLine.isValid(); oLine = oLayout.createLine()) {
      oLine.setLineWidth(std::max(width() - 2 * kMargin * m_fScale, 1.0));
      m_asLines += sParagraph.mid(oLine.textStart(), oLine.textLength()).trimmed();
    }
    oLayout.endLayout();
  }
  update();
}

/// Whole pixels, so that letters are sharp.
void ScrollingText::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  const double fLine = LineHeight();
  const double fFade = kFade * m_fScale;
  const double fTop = std::round(fFade - m_fOffset);
  const double fAscent = QFontMetricsF(font()).ascent();
  QLinearGradient oInk(0, 0, 0, height());
  const QColor oText = InkColour(Ink::Text);
  const QColor oClear(oText.red(), oText.green(), oText.blue(), 0);
  oInk.setColorAt(0, oClear);
  oInk.setColorAt(std::min(fFade / height(), 0.5), oText);
  oInk.setColorAt(std::max(1.0 - fFade / height(), 0.5), oText);
  oInk.setColorAt(1, oClear);
  oPainter.setPen(QPen(oInk, 1.0));
  const auto nFirst = static_cast<qsizetype>(std::max(0.0, std::floor(-fTop / fLine)));
  for (qsizetype i = nFirst; i < m_asLines.size(); ++i) {
    const double fAt = fTop + static_cast<double>(i) * fLine;
    if (fAt > height()) {
      break;
    }
    oPainter.drawText(QPointF(kMargin * m_fScale, fAt + fAscent), m_asLines.at(i));
  }
  if (hasFocus()) {
    oPainter.setRenderHint(QPainter::Antialiasing);
    DrawRing(oPainter, QRectF(rect()).adjusted(1, 1, -1, -1), 4);
  }
}

void ScrollingText::resizeEvent(QResizeEvent* /*pEvent*/) {
  Wrap();
}

void ScrollingText::showEvent(QShowEvent* /*pEvent*/) {
  m_oClock.start();
  m_oTicks.start(kTick);
}

void ScrollingText::hideEvent(QHideEvent* /*pEvent*/) {
  m_oTicks.stop();
}

void ScrollingText::keyPressEvent(QKeyEvent* pEvent) {
  switch (pEvent->key()) {
    case Qt::Key_Up:
      return Move(-LineHeight());
    case Qt::Key_Down:
      return Move(LineHeight());
    case Qt::Key_Space:
      m_bHeld = !m_bHeld;
      return;
    default:
      QWidget::keyPressEvent(pEvent);
  }
}

void ScrollingText::mousePressEvent(QMouseEvent* /*pEvent*/) {
  m_bHeld = !m_bHeld;
}

void ScrollingText::wheelEvent(QWheelEvent* pEvent) {
  constexpr double kNotch = 120.0;
  Move(-pEvent->angleDelta().y() / kNotch * 2.0 * LineHeight());
}

}  // namespace quillet
