#include "controls/ImageButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <algorithm>
#include <array>

#include "look/icons.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr int kPictureSize = 120;  // twips
constexpr int kPageIconSize = 240;
constexpr int kPictureGap = 120;
constexpr int kPageIndent = 120;
constexpr int kEdge = 45;  // around the face, for the line that shows the focus

/// In units of the picture's square.
QPainterPath PathOf(ButtonPicture ePicture, const QRectF& oSquare) {
  constexpr std::array kBack = {QPointF(0.68, 0.1), QPointF(0.28, 0.5), QPointF(0.68, 0.9)};
  constexpr std::array kNext = {QPointF(0.32, 0.1), QPointF(0.72, 0.5), QPointF(0.32, 0.9)};
  constexpr std::array kFinish = {QPointF(0.02, 0.52), QPointF(0.36, 0.86), QPointF(0.98, 0.16)};
  const auto& aoPoints = ePicture == ButtonPicture::Back   ? kBack
                         : ePicture == ButtonPicture::Next ? kNext
                                                           : kFinish;
  QPainterPath oPath;
  for (const QPointF& oPoint : aoPoints) {
    const QPointF oAt = oSquare.topLeft() + oPoint * oSquare.width();
    if (oPath.elementCount() == 0) {
      oPath.moveTo(oAt);
    } else {
      oPath.lineTo(oAt);
    }
  }
  return oPath;
}

bool IsIcon(ButtonPicture ePicture) {
  return ePicture == ButtonPicture::About || ePicture == ButtonPicture::Settings;
}

int TwipsOf(ButtonPicture ePicture) {
  return ePicture == ButtonPicture::None ? 0 : IsIcon(ePicture) ? kPageIconSize : kPictureSize;
}

int GapOf(ButtonPicture ePicture) {
  return ePicture == ButtonPicture::None ? 0 : kPictureGap;
}

}  // namespace

ImageButton::ImageButton(QWidget* pParent)
    : QAbstractButton(pParent), Control(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_Hover);
}

void ImageButton::SetPicture(ButtonPicture ePicture) {
  m_ePicture = ePicture;
  update();
}

void ImageButton::SetPrimary(bool bPrimary) {
  m_bPrimary = bPrimary;
  update();
}

void ImageButton::SetPage(bool bPage) {
  m_bPage = bPage;
  setCheckable(bPage);
  update();
}

void ImageButton::SetFlush(bool bFlush) {
  m_bFlush = bFlush;
  Place(Left(), Top(), Width(), Height());
}

void ImageButton::Placed() {
  if (m_bFlush) {
    setGeometry(geometry().adjusted(-Pixels(kEdge), 0, 0, 0));
  }
}

void ImageButton::SetGap(int nGap) {
  m_nGap = nGap;
  update();
}

QSize ImageButton::sizeHint() const {
  const int nPicture = Pixels(TwipsOf(m_ePicture) + GapOf(m_ePicture));
  const QSize oWords = fontMetrics().size(Qt::TextShowMnemonic, text());
  return {oWords.width() + nPicture + Pixels(2 * kEdge + m_nGap),
          oWords.height() + Pixels(2 * kEdge)};
}

QRectF ImageButton::Face() const {
  const int nEdge = Pixels(kEdge);
  return QRectF(rect()).adjusted(nEdge, nEdge, -nEdge - Pixels(m_nGap), -nEdge);
}

QColor ImageButton::FaceColour() const {
  constexpr int kLighter = 112;
  constexpr int kDarker = 115;
  const bool bHover = underMouse();
  if (m_bPage) {
    return PageColour();
  }
  if (m_bPrimary) {
    const QColor oAccent = InkColour(Ink::Accent);
    return isDown() ? oAccent.darker(kDarker) : bHover ? oAccent.lighter(kLighter) : oAccent;
  }
  return isDown() ? InkColour(Ink::Field) : InkColour(bHover ? Ink::Hover : Ink::Panel);
}

QColor ImageButton::PageColour() const {
  return isDown()       ? InkColour(Ink::Hairline)
         : isChecked()  ? InkColour(Ink::Hover)
         : underMouse() ? InkColour(Ink::Panel)
                        : QColor(Qt::transparent);
}

QColor ImageButton::WordsColour() const {
  if (!isEnabled()) {
    return InkColour(Ink::GreyText);
  }
  if (m_bPage && !isChecked() && !underMouse()) {
    return InkColour(Ink::ColumnText);
  }
  return InkColour(m_bPrimary ? Ink::OnAccent : Ink::Text);
}

void ImageButton::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr double kRadius = 5.0;
  constexpr double kRing = 2.5;  // how far the focus line lies outside
  const QRectF oFace = Face();
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(m_bPrimary || m_bPage ? QPen(Qt::NoPen) : QPen(InkColour(Ink::FieldEdge), 1.0));
  oPainter.setBrush(FaceColour());
  oPainter.drawRoundedRect(oFace.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  if (hasFocus()) {
    oPainter.setPen(QPen(InkColour(Ink::Accent), 1.5));
    oPainter.setBrush(Qt::NoBrush);
    oPainter.drawRoundedRect(oFace.adjusted(-kRing + 0.5, -kRing + 0.5, kRing - 0.5, kRing - 0.5),
                             kRadius + kRing, kRadius + kRing);
  }
  DrawWords(oPainter, oFace);
}

/// The words and the picture, as one in the middle of the face, or at its left.
void ImageButton::DrawWords(QPainter& oPainter, const QRectF& oFace) const {
  const int nMnemonic = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0
                            ? Qt::TextShowMnemonic
                            : Qt::TextHideMnemonic;
  QFont oFont = font();
  oFont.setWeight(m_bPrimary || isChecked() ? QFont::DemiBold : QFont::Medium);
  oPainter.setFont(oFont);
  const int nWords = oPainter.fontMetrics().size(Qt::TextShowMnemonic, text()).width();
  const double fSize = Pixels(TwipsOf(m_ePicture));
  const double fBeside = fSize + Pixels(GapOf(m_ePicture));
  const bool bBehind = m_ePicture == ButtonPicture::Next;
  const double fLeft =
      m_bPage ? oFace.left() + Pixels(kPageIndent) : oFace.center().x() - (nWords + fBeside) / 2;
  const QRectF oWords(fLeft + (bBehind ? 0 : fBeside), oFace.top(), nWords, oFace.height());
  oPainter.setPen(WordsColour());
  oPainter.drawText(oWords, int{Qt::AlignVCenter} | int{Qt::AlignLeft} | nMnemonic, text());
  DrawPicture(oPainter, {bBehind ? fLeft + nWords + fBeside - fSize : fLeft,
                         oFace.center().y() - fSize / 2, fSize, fSize});
}

void ImageButton::DrawPicture(QPainter& oPainter, const QRectF& oSquare) const {
  constexpr double kIconStroke = 1.9;
  if (IsIcon(m_ePicture)) {
    DrawIcon(oPainter, m_ePicture == ButtonPicture::About ? Icon::About : Icon::Configure, oSquare,
             isChecked() ? InkColour(Ink::Accent) : WordsColour(), kIconStroke);
  } else if (m_ePicture != ButtonPicture::None) {
    oPainter.setBrush(Qt::NoBrush);
    oPainter.setPen(QPen(WordsColour(), std::max(1.6, oSquare.width() * 0.2), Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    oPainter.drawPath(PathOf(m_ePicture, oSquare));
  }
}

void ImageButton::keyPressEvent(QKeyEvent* pEvent) {
  if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter) {
    if (!pEvent->isAutoRepeat()) {
      click();
    }
    return;
  }
  QAbstractButton::keyPressEvent(pEvent);
}

bool ImageButton::hitButton(const QPoint& oAt) const {
  return Face().contains(oAt);
}

}  // namespace quillet
