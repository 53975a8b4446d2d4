#include "shell/whatif/CurveCard.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/FormatNumber.h"
#include "base/failure.h"
#include "look/font.h"
#include "look/marks.h"
#include "look/scale.h"
#include "prices/money.h"
#include "shell/whatif/figures.h"

namespace quillet {
namespace {

constexpr double kAxisPoints = 7.0;

// Twips.
constexpr int kHeight = 2550;
constexpr int kBelowPlot = 330;
constexpr int kGutterGap = 90;
constexpr int kDot = 75;  // radius
constexpr int kLabelGap = 120;
constexpr int kLabelLine = 210;

QFont AxisFont() {
  return ThemeFont(kAxisPoints);
}

/// An amount, without decimals if steps are whole.
QString AxisText(double fAmount, double fStep) {
  const char* const sPattern = fStep >= 1 ? "0" : "0.00";
  return QString::fromStdString(CurrencySymbolText() + FormatNumber(fAmount, sPattern));
}

void DrawDot(QPainter& oPainter, const QPointF& oAt, const QColor& oEdge, const QColor& oFace) {
  constexpr double kEdge = 2.0;
  oPainter.setPen(QPen(oEdge, kEdge));
  oPainter.setBrush(oFace);
  oPainter.drawEllipse(oAt, Pixels(kDot), Pixels(kDot));
}

/// A line that falls on whole pixels.
void DrawRule(QPainter& oPainter, const QPointF& oFrom, const QPointF& oTo, const QPen& oPen) {
  const auto fnCrisp = [](const QPointF& o) {
    return QPointF(std::floor(o.x()) + 0.5, std::floor(o.y()) + 0.5);
  };
  oPainter.setPen(oPen);
  oPainter.drawLine(fnCrisp(oFrom), fnCrisp(oTo));
}

}  // namespace

CurveCard::CurveCard(ProfitAt fnProfitAt, QWidget* pParent)
    : TitledCard("Profit by price", pParent), m_fnProfitAt(std::move(fnProfitAt)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  QSizePolicy oPolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  oPolicy.setHeightForWidth(true);
  setSizePolicy(oPolicy);
}

void CurveCard::Show(const Answers& oAnswers) {
  m_aoPoints = oAnswers.aoCurve;
  m_fToday = oAnswers.fPrice;
  m_fProfit = oAnswers.fProfit;
  m_nBreakEven = oAnswers.nBreakEven;
  Describe(oAnswers);
  Read(m_nRead);
  update();
}

void CurveCard::Describe(const Answers& oAnswers) {
  const QString sToday = QString("%1 at %2").arg(Money(m_fProfit), Money(oAnswers.fPrice));
  setAccessibleName(m_nBreakEven
                        ? QString("Profit is 0 at %1, %2").arg(Money(*m_nBreakEven), sToday)
                        : "Profit is " + sToday);
}

int CurveCard::ContentHeight(int /*nWidth*/) const {
  return kHeight;
}

/// Right of the widest amount beside it.
QRectF CurveCard::Plot() const {
  const QRectF oContent = Content();
  const QFontMetricsF oMetrics(AxisFont());
  const CurveScale oScale(m_aoPoints, oContent);
  const double fStep = oScale.ProfitStep();
  double fGutter = 0;
  for (const double fAmount : {oScale.LowestProfit(), oScale.HighestProfit()}) {
    fGutter = std::max(fGutter, oMetrics.horizontalAdvance(AxisText(fAmount, fStep)));
  }
  return oContent.adjusted(std::ceil(fGutter) + Pixels(kGutterGap), Pixels(kDot), -Pixels(kDot),
                           -Pixels(kBelowPlot));
}

void CurveCard::PaintContent(QPainter& oPainter) {
  if (m_aoPoints.empty()) {
    return;
  }
  const CurveScale oScale = Scale();
  PaintGrid(oPainter, oScale);
  PaintPrices(oPainter, oScale);
  PaintLine(oPainter, oScale);
  PaintJumps(oPainter, oScale);
  PaintToday(oPainter, oScale);
  PaintBreakEven(oPainter, oScale);
  PaintReadOut(oPainter, oScale);
  if (hasFocus()) {
    constexpr double kRadius = 5.0;
    const double fOutside = Pixels(kDot);
    DrawRing(oPainter, QRectF(Content()).adjusted(-fOutside, -fOutside, fOutside, fOutside),
             kRadius);
  }
}

void CurveCard::PaintGrid(QPainter& oPainter, const CurveScale& oScale) const {
  const double fStep = oScale.ProfitStep();
  const int nSteps =
      static_cast<int>(std::lround((oScale.HighestProfit() - oScale.LowestProfit()) / fStep));
  for (int i = 0; i <= nSteps; ++i) {
    const double fProfit = oScale.LowestProfit() + i * fStep;
    const bool bZero = std::abs(fProfit) < fStep / 2;
    const QPointF oLeft = oScale.At(0, fProfit);
    DrawRule(oPainter, oLeft, oScale.At(oScale.LastPrice(), fProfit),
             QPen(InkColour(bZero ? Ink::FieldEdge : Ink::Hairline), 1.0));
    const double fLine = Pixels(kLabelLine);
    const double fEnd = oLeft.x() - Pixels(kGutterGap);
    DrawFitted(oPainter,
               {Content().left() * 1.0, oLeft.y() - fLine / 2, fEnd - Content().left(), fLine},
               AxisText(bZero ? 0 : fProfit, fStep), AxisFont(), InkColour(Ink::FaintText),
               Qt::AlignRight);
  }
}

/// The amounts below the plot, as many as fit.
void CurveCard::PaintPrices(QPainter& oPainter, const CurveScale& oScale) const {
  constexpr double kRoom = 1.7;  // of the widest amount's width
  constexpr int kMostSteps = 8;
  const double fLast = oScale.LastPrice() / 100;
  const QFontMetricsF oMetrics(AxisFont());
  const double fWidth = oMetrics.horizontalAdvance(AxisText(fLast, fLast / kMostSteps)) * kRoom;
  const double fPlot = oScale.At(oScale.LastPrice(), 0).x() - oScale.At(0, 0).x();
  const int nMost = std::clamp(static_cast<int>(fPlot / fWidth), 1, kMostSteps);
  const double fStep = RoundStep(fLast, nMost);
  const double fTop = oScale.At(0, oScale.LowestProfit()).y() + Pixels(kDot);
  for (int nLabel = 1; nLabel * fStep <= fLast; ++nLabel) {
    const double fPrice = nLabel * fStep;
    const double fX = oScale.At(fPrice * 100, 0).x();
    const QRectF oPlace(fX - fWidth / 2, fTop, fWidth, Pixels(kLabelLine));
    if (oPlace.right() - fWidth / 4 < width()) {
      DrawFitted(oPainter, oPlace, AxisText(fPrice, fStep), AxisFont(), InkColour(Ink::FaintText),
                 Qt::AlignHCenter);
    }
  }
}

void CurveCard::PaintLine(QPainter& oPainter, const CurveScale& oScale) const {
  constexpr double kLine = 2.0;
  QPolygonF oLine;
  for (const CurvePoint& oPoint : m_aoPoints) {
    oLine << oScale.At(oPoint.nPrice, oPoint.fProfit);
  }
  oPainter.setPen(QPen(InkColour(Ink::Accent), kLine, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  oPainter.drawPolyline(oLine);
}

/// A jump of a few cents would be lost in the line's width: a stroke across marks each.
void CurveCard::PaintJumps(QPainter& oPainter, const CurveScale& oScale) const {
  constexpr double kHalf = 4.0;
  constexpr double kLeastApart = 3.0;
  double fBefore = -kLeastApart;
  oPainter.setPen(QPen(InkColour(Ink::Warning), 1.5));
  for (std::size_t i = 1; i < m_aoPoints.size(); ++i) {
    const CurvePoint& oPoint = m_aoPoints[i];
    const QPointF oAt = oScale.At(oPoint.nPrice, oPoint.fProfit);
    if (!oPoint.bJump || oAt.x() - fBefore < kLeastApart) {
      continue;
    }
    fBefore = oAt.x();
    const double fOther = oScale.At(oPoint.nPrice, m_aoPoints[i - 1].fProfit).y();
    oPainter.drawLine(QPointF(oAt.x(), std::min(oAt.y(), fOther) - kHalf),
                      QPointF(oAt.x(), std::max(oAt.y(), fOther) + kHalf));
  }
}

void CurveCard::PaintBreakEven(QPainter& oPainter, const CurveScale& oScale) const {
  if (!m_nBreakEven || *m_nBreakEven > oScale.LastPrice()) {
    return;
  }
  const QPointF oAt = oScale.At(*m_nBreakEven, 0);
  const QString sLabel = "break-even";
  const double fWidth = QFontMetricsF(AxisFont()).horizontalAdvance(sLabel);
  const double fLeft = std::clamp(oAt.x() - fWidth / 4, oScale.At(0, 0).x(),
                                  std::max(oScale.At(0, 0).x(), Content().right() - fWidth));
  DrawDot(oPainter, oAt, InkColour(Ink::Text), InkColour(Ink::Panel));
  DrawWords(oPainter, {fLeft, oAt.y() + Pixels(kLabelGap), fWidth + 1, 1.0 * Pixels(kLabelLine)},
            sLabel, InkColour(Ink::Text));
}

/// Its price is below the line at the right, or above it at the left if there is no room.
void CurveCard::PaintToday(QPainter& oPainter, const CurveScale& oScale) const {
  const double fPrice = m_fToday * 100;
  if (fPrice < 0 || fPrice > oScale.LastPrice()) {
    return;
  }
  const QPointF oAt = oScale.At(fPrice, m_fProfit);
  const QColor oColour = ColourOfProfit(m_fProfit);
  DrawRule(oPainter, oScale.At(fPrice, oScale.LowestProfit()),
           oScale.At(fPrice, oScale.HighestProfit()), QPen(oColour, 1.0, Qt::DotLine));
  DrawDot(oPainter, oAt, oColour, oColour);
  oPainter.setFont(AxisFont());
  const QString sLabel = Money(m_fToday);
  const double fWidth = QFontMetricsF(AxisFont()).horizontalAdvance(sLabel) + 1;
  const double fGap = Pixels(kLabelGap);
  const double fLine = Pixels(kLabelLine);
  const bool bAbove = std::abs(oAt.y() - oScale.At(0, 0).y()) < 3 * fLine ||
                      oAt.x() + fGap + fWidth > width() - fGap;
  const bool bLeft = oAt.x() - fGap - fWidth > oScale.At(0, 0).x() && bAbove;
  const QRectF oPlace(bLeft ? oAt.x() - fGap - fWidth : oAt.x() + fGap,
                      bAbove ? oAt.y() - fGap - fLine : oAt.y() + fGap / 2, fWidth, fLine);
  DrawWords(oPainter, oPlace, sLabel, oColour);
}

void CurveCard::PaintReadOut(QPainter& oPainter, const CurveScale& oScale) const {
  if (!m_nRead) {
    return;
  }
  const QColor oText = InkColour(Ink::Text);
  DrawRule(oPainter, oScale.At(*m_nRead, oScale.LowestProfit()),
           oScale.At(*m_nRead, oScale.HighestProfit()), QPen(InkColour(Ink::FaintText), 1.0));
  DrawDot(oPainter, oScale.At(*m_nRead, m_fRead), InkColour(Ink::Accent), oText);
  DrawFitted(oPainter, QRectF(TitleRow()).adjusted(TitleRow().width() / 4.0, 0, 0, 0), ReadOut(),
             ThemeFont(kTextPoints), oText, Qt::AlignRight);
}

QString CurveCard::ReadOut() const {
  if (!m_nRead) {
    return {};
  }
  QString sText = QString("%1: profit %2").arg(Money(*m_nRead), Money(m_fRead));
  const auto pJump =
      std::find_if(m_aoPoints.begin(), m_aoPoints.end(),
                   [this](const CurvePoint& o) { return o.bJump && o.nPrice == *m_nRead; });
  if (pJump != m_aoPoints.end()) {
    const CurvePoint& oBelow = *(pJump - 1);
    sText +=
        QString(", %1 by a step of the fees").arg(SignedAmount(pJump->fProfit - oBelow.fProfit));
  }
  return sText;
}

/// Round prices, one to a pixel or nearly so.
Cents CurveCard::StepOfPrices() const {
  const int nPixels = std::max(1, static_cast<int>(Plot().width()));
  return static_cast<Cents>(std::max(1.0, RoundStep(Scale().LastPrice(), nPixels)));
}

/// The price itself, or a jump within reach.
Cents CurveCard::JumpNear(Cents nPrice) const {
  constexpr double kReach = 4.0;  // steps
  const double fReach = kReach * StepOfPrices();
  for (const CurvePoint& oPoint : m_aoPoints) {
    if (oPoint.bJump && std::abs(double{1} * oPoint.nPrice - nPrice) <= fReach) {
      return oPoint.nPrice;
    }
  }
  return nPrice;
}

void CurveCard::Read(std::optional<Cents> nPrice) {
  m_nRead.reset();
  if (nPrice) {
    IgnoreFailure([&] {
      m_fRead = m_fnProfitAt(*nPrice);
      m_nRead = nPrice;
    });
  }
  setAccessibleDescription(ReadOut());
  update();
}

void CurveCard::mouseMoveEvent(QMouseEvent* pEvent) {
  const bool bInside =
      Plot().adjusted(-Pixels(kDot), 0, Pixels(kDot), 0).contains(pEvent->position());
  if (!bInside || m_aoPoints.empty()) {
    Read({});
    return;
  }
  const Cents nStep = StepOfPrices();
  const double fPrice = Scale().PriceAt(pEvent->position().x());
  Read(JumpNear(static_cast<Cents>(std::lround(fPrice / nStep)) * nStep));
}

void CurveCard::leaveEvent(QEvent* pEvent) {
  Read({});
  TitledCard::leaveEvent(pEvent);
}

void CurveCard::focusOutEvent(QFocusEvent* pEvent) {
  Read({});
  TitledCard::focusOutEvent(pEvent);
}

void CurveCard::keyPressEvent(QKeyEvent* pEvent) {
  constexpr int kFar = 10;
  const auto nLast = static_cast<Cents>(Scale().LastPrice());
  const Cents nStep = StepOfPrices() * ((pEvent->modifiers() & Qt::ShiftModifier) != 0 ? kFar : 1);
  const auto fnGo = [&](std::int64_t nPrice) {
    Read(static_cast<Cents>(std::clamp<std::int64_t>(nPrice, 0, nLast)));
  };
  const std::int64_t nFrom = m_nRead.value_or(
      static_cast<Cents>(std::lround(std::clamp<double>(m_fToday * 100, 0, nLast))));
  switch (pEvent->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
      return fnGo(nFrom - nStep);
    case Qt::Key_Right:
    case Qt::Key_Up:
      return fnGo(nFrom + nStep);
    case Qt::Key_Home:
      return fnGo(0);
    case Qt::Key_End:
      return fnGo(nLast);
    default:
      TitledCard::keyPressEvent(pEvent);
  }
}

}  // namespace quillet
