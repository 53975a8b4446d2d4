#include "shell/whatif/FiguresCard.h"

#include <QPainter>

#include "look/font.h"
#include "look/scale.h"
#include "shell/whatif/figures.h"

namespace quillet {
namespace {

constexpr double kValuePoints = 13.0;

// Twips.
constexpr int kCaption = 225;
constexpr int kRow = 555;
constexpr int kRowGap = 150;
constexpr int kValueGap = 90;  // to the neighbour

}  // namespace

FiguresCard::FiguresCard(QWidget* pParent) : TitledCard({}, pParent) {
  Show({});
}

void FiguresCard::Show(const Answers& oAnswers) {
  const std::size_t nBefore = m_aoFigures.size();
  const QColor oPlain = InkColour(Ink::Text);
  m_aoFigures = {
      {"Break-even", 1150, oAnswers.nBreakEven ? Money(*oAnswers.nBreakEven) : "no price", oPlain},
      {"You keep", 1150, Money(oAnswers.fProfit), ColourOfProfit(oAnswers.fProfit)},
      {"of what the buyer pays", 1950, Money(oAnswers.oBreakdown.fWhole), oPlain},
      {"Return on cost", 1350, Percent(oAnswers.fReturn), oPlain},
      {"Margin on price", 1450, Percent(oAnswers.fMargin), oPlain},
  };
  if (oAnswers.bPaysSaleFees) {
    m_aoFigures.push_back(
        {"Break-even ad rate", 1550, RateInTenths(oAnswers.nHighestAdvertising), oPlain});
  }
  QStringList asTold;
  for (const Figure& oFigure : m_aoFigures) {
    asTold += QString("%1 %2").arg(oFigure.sCaption, oFigure.sValue);
  }
  setAccessibleName(asTold.join(", "));
  if (m_aoFigures.size() != nBefore) {
    updateGeometry();
  }
  update();
}

/// As many in a row as fit at their least widths, each row spread over the whole width.
std::vector<QRect> FiguresCard::Places(const QRect& oContent) const {
  std::vector<QRect> aoPlaces;
  int nTop = oContent.top();
  for (std::size_t nFirst = 0; nFirst < m_aoFigures.size();) {
    int nTaken = 0;
    std::size_t nEnd = nFirst;
    for (; nEnd < m_aoFigures.size() &&
           (nEnd == nFirst || nTaken + m_aoFigures[nEnd].nWidth <= oContent.width());
         ++nEnd) {
      nTaken += m_aoFigures[nEnd].nWidth;
    }
    double fLeft = oContent.left();
    for (; nFirst < nEnd; ++nFirst) {
      const double fWidth = 1.0 * m_aoFigures[nFirst].nWidth * oContent.width() / nTaken;
      aoPlaces.emplace_back(static_cast<int>(fLeft), nTop, static_cast<int>(fWidth), kRow);
      fLeft += fWidth;
    }
    nTop += kRow + kRowGap;
  }
  return aoPlaces;
}

int FiguresCard::ContentHeight(int nWidth) const {
  return Places({0, 0, nWidth, 0}).back().top() + kRow;
}

void FiguresCard::PaintContent(QPainter& oPainter) {
  const std::vector<QRect> aoPlaces = Places(ContentTwips());
  for (std::size_t i = 0; i < aoPlaces.size(); ++i) {
    const QRect& oPlace = aoPlaces[i];
    const double fLeft = Pixels(oPlace.left());
    const double fWidth = Pixels(oPlace.width() - kValueGap);
    DrawFitted(oPainter, {fLeft, 1.0 * Pixels(oPlace.top()), fWidth, 1.0 * Pixels(kCaption)},
               m_aoFigures[i].sCaption, ThemeFont(kTextPoints), InkColour(Ink::FaintText));
    DrawFitted(
        oPainter,
        {fLeft, 1.0 * Pixels(oPlace.top() + kCaption), fWidth, 1.0 * Pixels(kRow - kCaption)},
        m_aoFigures[i].sValue, ThemeFont(kValuePoints, QFont::DemiBold), m_aoFigures[i].oColour);
  }
}

}  // namespace quillet
