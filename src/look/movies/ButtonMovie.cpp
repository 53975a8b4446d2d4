#include "look/movies/ButtonMovie.h"

#include <QFocusEvent>
#include <QPainter>
#include <algorithm>

#include "look/font.h"
#include "look/marks.h"
#include "look/scale.h"

namespace quillet {
namespace {

// In the units of the design.
constexpr double kSize = 72.0;
constexpr QRectF kTile(0.0, 2.0, 72.0, 68.0);
constexpr QRectF kIcon(24.0, 12.0, 24.0, 24.0);
constexpr QRectF kCaption(0.0, 42.0, 72.0, 18.0);
constexpr double kTileRadius = 8.0;
constexpr double kFocusWidth = 2.0;
constexpr double kIconStroke = 1.8;

}  // namespace

ButtonMovie::ButtonMovie(Icon eIcon, const char* sCaption, QWidget* pStage)
    : PlainButton(pStage), m_eIcon(eIcon) {
  setText(sCaption);
  connect(this, &QAbstractButton::clicked, this, [this] { emit Command("click"); });
}

void ButtonMovie::SetCurrent(bool bCurrent) {
  m_bCurrent = bCurrent;
  update();
}

void ButtonMovie::focusInEvent(QFocusEvent* pEvent) {
  if (pEvent->reason() != Qt::ActiveWindowFocusReason) {
    m_bShowFocus = pEvent->reason() != Qt::MouseFocusReason;
  }
  PlainButton::focusInEvent(pEvent);
}

void ButtonMovie::keyPressEvent(QKeyEvent* pEvent) {
  m_bShowFocus = true;
  update();
  PlainButton::keyPressEvent(pEvent);
}

ButtonMovie::Look ButtonMovie::LookNow() const {
  if (!isEnabled()) {
    return {Ink::GreyText, Ink::GreyText, std::nullopt};
  }
  const Ink eCaption = m_bCurrent || isDown() || underMouse() ? Ink::Text : Ink::ColumnText;
  const std::optional<Ink> eTile = isDown()       ? std::optional(Ink::Hairline)
                                   : m_bCurrent   ? std::optional(Ink::Hover)
                                   : underMouse() ? std::optional(Ink::Panel)
                                                  : std::nullopt;
  return {m_bCurrent ? Ink::Accent : eCaption, eCaption, eTile};
}

void ButtonMovie::paintEvent(QPaintEvent* /*pEvent*/) {
  const Look oLook = LookNow();
  const double fScale = std::min(width(), height()) / kSize;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.translate((width() - kSize * fScale) / 2.0, (height() - kSize * fScale) / 2.0);
  oPainter.save();
  oPainter.scale(fScale, fScale);
  if (oLook.eTile) {
    DrawRounded(oPainter, kTile, kTileRadius, Qt::NoPen, InkColour(*oLook.eTile));
  }
  if (hasFocus() && m_bShowFocus) {
    DrawRing(oPainter, kTile.adjusted(1, 1, -1, -1), kTileRadius - 1, kFocusWidth);
  }
  DrawIcon(oPainter, m_eIcon, kIcon, InkColour(oLook.eIcon), kIconStroke);
  oPainter.restore();
  DrawCaption(oPainter, oLook.eCaption, fScale);
}

/// Drawn unscaled: letters are fitted to the pixels at their own size.
void ButtonMovie::DrawCaption(QPainter& oPainter, Ink eCaption, double fScale) const {
  QFont oFont = ThemeFont(kTextPoints, m_bCurrent ? QFont::DemiBold : QFont::Medium);
  oFont.setPointSizeF(oFont.pointSizeF() * fScale / Zoom());
  oPainter.setFont(oFont);
  oPainter.setPen(InkColour(eCaption));
  oPainter.drawText(QRectF(kCaption.topLeft() * fScale, kCaption.size() * fScale), Qt::AlignCenter,
                    text());
}

}  // namespace quillet
