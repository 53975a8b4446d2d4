#include "shell/whatif/TitledCard.h"

#include <QPainter>
#include <utility>

#include "look/marks.h"
#include "look/scale.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

// Twips.
constexpr int kSides = 225;
constexpr int kAbove = 180;
constexpr int kBelow = 195;
constexpr int kTitle = 375;  // and the gap below it
constexpr int kTitleLine = 225;
constexpr int kNarrowest = 5970;

}  // namespace

TitledCard::TitledCard(QString sTitle, QWidget* pParent)
    : QWidget(pParent), m_sTitle(std::move(sTitle)) {
  QSizePolicy oPolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  oPolicy.setHeightForWidth(true);
  setSizePolicy(oPolicy);
}

int TitledCard::TopTwips() const {
  return kAbove + (m_sTitle.isEmpty() ? 0 : kTitle);
}

int TitledCard::heightForWidth(int nWidth) const {
  return Pixels(TopTwips() + ContentHeight(Twips(nWidth) - 2 * kSides) + kBelow);
}

QSize TitledCard::sizeHint() const {
  return {Pixels(kNarrowest), heightForWidth(Pixels(kNarrowest))};
}

QSize TitledCard::minimumSizeHint() const {
  return {Pixels(kNarrowest), 0};
}

QRect TitledCard::Content() const {
  return rect().adjusted(Pixels(kSides), Pixels(TopTwips()), -Pixels(kSides), -Pixels(kBelow));
}

QRect TitledCard::TitleRow() const {
  return {Pixels(kSides), Pixels(kAbove), width() - 2 * Pixels(kSides), Pixels(kTitleLine)};
}

QRect TitledCard::ContentTwips() const {
  return {kSides, TopTwips(), Twips(width()) - 2 * kSides, Twips(height()) - TopTwips() - kBelow};
}

void TitledCard::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawCard(oPainter, rect());
  if (!m_sTitle.isEmpty()) {
    DrawTitle(oPainter, TitleRow(), m_sTitle);
  }
  PaintContent(oPainter);
}

void DrawFitted(QPainter& oPainter, const QRectF& oPlace, const QString& sWords, QFont oFont,
                const QColor& oColour, int nAcross) {
  const double fWanted = QFontMetricsF(oFont).horizontalAdvance(sWords);
  if (fWanted > oPlace.width()) {
    oFont.setPointSizeF(oFont.pointSizeF() * oPlace.width() / fWanted);
  }
  oPainter.setFont(oFont);
  oPainter.setPen(oColour);
  oPainter.drawText(oPlace, nAcross | int{Qt::AlignVCenter} | int{Qt::TextSingleLine}, sWords);
}

QColor ColourOfProfit(Single fProfit) {
  return ColourOf(fProfit < 0 ? SubtotalColour() : TotalColour());
}

}  // namespace quillet
