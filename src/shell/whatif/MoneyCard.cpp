#include "shell/whatif/MoneyCard.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "look/font.h"
#include "look/marks.h"
#include "look/scale.h"
#include "shell/whatif/figures.h"

namespace quillet {
namespace {

// Twips.
constexpr int kBar = 390;
constexpr int kBelowBar = 150;
constexpr int kRow = 338;
constexpr int kLeastColumn = 3600;
constexpr int kColumnGap = 390;
constexpr int kSquare = 135;
constexpr int kSquareGap = 120;
constexpr int kShare = 735;
constexpr int kAmount = 1300;
constexpr int kLeastRows = 3;  // so that the cards below seldom move

constexpr double kRadius = 4.0;

int ColumnsIn(int nWidth) {
  return nWidth >= 2 * kLeastColumn + kColumnGap ? 2 : 1;
}

}  // namespace

MoneyCard::MoneyCard(QWidget* pParent) : TitledCard("Where the money goes", pParent) {
  setFocusPolicy(Qt::TabFocus);
}

void MoneyCard::Show(const Breakdown& oBreakdown) {
  const std::size_t nBefore = m_aoParts.size();
  const double fLength = BarLength(oBreakdown);
  m_aoParts = ShownParts(oBreakdown);
  const bool bLoss = m_aoParts.back().bProfit && m_aoParts.back().fAmount < 0;
  m_fIncome = bLoss ? std::clamp(oBreakdown.fWhole / fLength, 0.0, 1.0) : 1;
  Describe();
  if (m_aoParts.size() != nBefore) {
    updateGeometry();
  }
  update();
}

void MoneyCard::Describe() {
  QStringList asTold;
  for (const ShownPart& oPart : m_aoParts) {
    asTold += QString("%1 %2, %3").arg(oPart.sName, Money(oPart.fAmount), ShareText(oPart));
  }
  setAccessibleName("Where the money goes: " + asTold.join("; "));
}

int MoneyCard::Rows(int nColumns) const {
  const int nParts = static_cast<int>(m_aoParts.size());
  return std::max((nParts + nColumns - 1) / nColumns, kLeastRows);
}

int MoneyCard::ContentHeight(int nWidth) const {
  return kBar + kBelowBar + Rows(ColumnsIn(nWidth)) * kRow;
}

void MoneyCard::PaintContent(QPainter& oPainter) {
  const QRectF oContent = Content();
  PaintBar(oPainter, {oContent.topLeft(), QSizeF(oContent.width(), Pixels(kBar))});
  const int nColumns = ColumnsIn(ContentTwips().width());
  const double fGap = Pixels(kColumnGap);
  const double fColumn = (oContent.width() - (nColumns - 1) * fGap) / nColumns;
  const auto nRows = static_cast<std::size_t>(Rows(nColumns));
  for (std::size_t i = 0; i < m_aoParts.size(); ++i) {
    const std::size_t nColumn = i / nRows;
    const double fLeft = oContent.left() + static_cast<double>(nColumn) * (fColumn + fGap);
    const double fTop =
        oContent.top() + Pixels(kBar + kBelowBar + static_cast<int>(i % nRows) * kRow);
    PaintEntry(oPainter, {fLeft, fTop, fColumn, 1.0 * Pixels(kRow)}, m_aoParts[i]);
  }
}

void MoneyCard::PaintBar(QPainter& oPainter, const QRectF& oBar) const {
  QPainterPath oShape;
  oShape.addRoundedRect(oBar, kRadius, kRadius);
  oPainter.save();
  oPainter.setClipPath(oShape);
  oPainter.fillRect(oBar, InkColour(Ink::Field));
  double fSum = 0;
  for (const ShownPart& oPart : m_aoParts) {
    const double fFrom = std::round(oBar.left() + fSum * oBar.width());
    fSum += std::max(0.0, oPart.fShare);
    const double fTo = std::round(oBar.left() + fSum * oBar.width());
    if (fTo > fFrom) {
      oPainter.fillRect(QRectF(fFrom, oBar.top(), fTo - fFrom, oBar.height()), oPart.oColour);
      oPainter.fillRect(QRectF(fTo - 1, oBar.top(), 1, oBar.height()), InkColour(Ink::Panel));
    }
  }
  oPainter.restore();
  PaintEndOfIncome(oPainter, oBar);
  if (hasFocus()) {
    constexpr double kOutside = 3.0;
    DrawRing(oPainter, oBar.adjusted(-kOutside, -kOutside, kOutside, kOutside), kRadius + kOutside);
  }
}

/// What the income doesn't cover is dimmed, behind a mark.
void MoneyCard::PaintEndOfIncome(QPainter& oPainter, const QRectF& oBar) const {
  if (m_fIncome >= 1) {
    return;
  }
  constexpr double kBeyond = 4.0;
  constexpr double kMark = 2.0;
  constexpr int kDimmed = 150;
  const double fEnd = std::round(oBar.left() + m_fIncome * oBar.width());
  QColor oDim = InkColour(Ink::Panel);
  oDim.setAlpha(kDimmed);
  oPainter.fillRect(QRectF(fEnd, oBar.top(), oBar.right() - fEnd, oBar.height()), oDim);
  oPainter.fillRect(
      QRectF(fEnd - kMark / 2, oBar.top() - kBeyond, kMark, oBar.height() + 2 * kBeyond),
      InkColour(Ink::Text));
}

void MoneyCard::PaintEntry(QPainter& oPainter, const QRectF& oPlace, const ShownPart& oPart) const {
  constexpr double kCorner = 2.0;
  const double fSquare = Pixels(kSquare);
  const QFont oFont = ThemeFont(kTextPoints);
  DrawRounded(oPainter, {oPlace.left(), oPlace.center().y() - fSquare / 2, fSquare, fSquare},
              kCorner, Qt::NoPen, oPart.oColour);
  const double fAmountEnd = oPlace.right() - Pixels(kShare);
  const double fAmount = fAmountEnd - Pixels(kAmount);
  const double fName = oPlace.left() + Pixels(kSquare + kSquareGap);
  const auto fnPlace = [&](double fFrom, double fTo) {
    return QRectF(fFrom, oPlace.top(), fTo - fFrom, oPlace.height());
  };
  DrawFitted(oPainter, fnPlace(fName, fAmount), oPart.sName, oFont, InkColour(Ink::Text));
  DrawFitted(oPainter, fnPlace(fAmount, fAmountEnd), Money(oPart.fAmount), oFont,
             oPart.bProfit ? ColourOfProfit(oPart.fAmount) : InkColour(Ink::Text), Qt::AlignRight);
  DrawFitted(oPainter, fnPlace(fAmountEnd, oPlace.right()), ShareText(oPart), oFont,
             InkColour(Ink::FaintText), Qt::AlignRight);
}

}  // namespace quillet
