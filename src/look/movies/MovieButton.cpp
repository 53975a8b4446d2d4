#include "look/movies/MovieButton.h"

#include <QPainter>
#include <cmath>

#include "look/font.h"
#include "look/marks.h"
#include "look/movies/drawing.h"

namespace quillet {
namespace {

// In the units of the movie's design.
constexpr double kIcon = 15.0;
constexpr double kGap = 4.0;
constexpr double kRadius = 6.0;
constexpr double kStroke = 2.0;

}  // namespace

MovieButton::MovieButton(Icon eIcon, const QString& sWords, QWidget* pParent)
    : PlainButton(pParent), m_eIcon(eIcon) {
  setText(sWords);
}

void MovieButton::SetIcon(Icon eIcon) {
  m_eIcon = eIcon;
  update();
}

void MovieButton::SetScale(double fScale) {
  m_fScale = fScale;
  setFont(MovieFont(kTextPoints, QFont::DemiBold, fScale));
}

int MovieButton::WidthOfWords() const {
  const double fWords = QFontMetricsF(font()).horizontalAdvance(text());
  const double fGap = text().isEmpty() ? 0.0 : kGap * m_fScale;
  return static_cast<int>(std::ceil(fWords + fGap + kIcon * m_fScale));
}

std::optional<Ink> MovieButton::Face() const {
  if (isDown()) {
    return Ink::Hairline;
  }
  return isChecked() || underMouse() ? std::optional(Ink::Hover) : std::nullopt;
}

void MovieButton::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  const QRectF oFace = QRectF(rect()).adjusted(1, 1, -1, -1);
  const double fRadius = kRadius * m_fScale;
  if (const std::optional<Ink> eFace = Face()) {
    DrawRounded(oPainter, oFace, fRadius, Qt::NoPen, InkColour(*eFace));
  }
  if (hasFocus()) {
    DrawRing(oPainter, oFace, fRadius);
  }
  const QColor oInk = InkColour(isChecked()                ? Ink::Accent
                                : underMouse() || isDown() ? Ink::Text
                                                           : Ink::ColumnText);
  const double fIcon = kIcon * m_fScale;
  const QRectF oIcon((width() - WidthOfWords()) / 2.0, (height() - fIcon) / 2.0, fIcon, fIcon);
  DrawIcon(oPainter, m_eIcon, oIcon, oInk, kStroke);
  DrawWords(oPainter, QRectF(rect()).adjusted(oIcon.right() + kGap * m_fScale, 0, 0, 0), text(),
            oInk);
}

}  // namespace quillet
