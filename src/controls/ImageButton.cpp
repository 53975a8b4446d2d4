#include "controls/ImageButton.h"

#include <QPainter>
#include <QStyle>

#include "look/icons.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr int kPictureSize = 120;  // twips
constexpr int kPageIconSize = 240;
constexpr int kPictureGap = 120;
constexpr int kPageIndent = 120;
constexpr int kEdge = 45;  // around the face, for the line that shows the focus

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
    : PlainButton(pParent), Control(static_cast<QWidget&>(*this)) {}

void ImageButton::SetPicture(ButtonPicture ePicture) {
  m_ePicture = ePicture;
  update();
}

void ImageButton::SetPrimary(bool bPrimary) {
  m_bPrimary = bPrimary;
  update();
}

bool ImageButton::IsLit() const {
  return m_bPrimary && isEnabled();
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
  if (IsLit()) {
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
  constexpr double kRingRadius = 7.5;
  constexpr double kRing = 2.0;  // how far outside the focus line is
  const QRectF oFace = Face();
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawRounded(oPainter, oFace.adjusted(0.5, 0.5, -0.5, -0.5), kRadius,
              IsLit() || m_bPage ? QPen(Qt::NoPen) : QPen(InkColour(Ink::FieldEdge), 1.0),
              FaceColour());
  if (hasFocus()) {
    DrawRing(oPainter, oFace.adjusted(-kRing, -kRing, kRing, kRing), kRingRadius);
  }
  DrawLabel(oPainter, oFace);
}

/// The text and the picture together, centred on the face or at its left.
void ImageButton::DrawLabel(QPainter& oPainter, const QRectF& oFace) const {
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
  DrawWords(oPainter, oWords, text(), WordsColour(), nMnemonic);
  DrawPicture(oPainter, {bBehind ? fLeft + nWords + fBeside - fSize : fLeft,
                         oFace.center().y() - fSize / 2, fSize, fSize});
}

void ImageButton::DrawPicture(QPainter& oPainter, const QRectF& oSquare) const {
  constexpr double kIconStroke = 1.9;
  switch (m_ePicture) {
    case ButtonPicture::None:
      return;
    case ButtonPicture::Back:
      return DrawChevron(oPainter, oSquare, Towards::Left, WordsColour());
    case ButtonPicture::Next:
      return DrawChevron(oPainter, oSquare, Towards::Right, WordsColour());
    case ButtonPicture::Finish:
      return DrawTick(oPainter, oSquare, WordsColour());
    case ButtonPicture::About:
    case ButtonPicture::Settings:
      return DrawIcon(oPainter, m_ePicture == ButtonPicture::About ? Icon::About : Icon::Configure,
                      oSquare, isChecked() ? InkColour(Ink::Accent) : WordsColour(), kIconStroke);
  }
}

bool ImageButton::hitButton(const QPoint& oAt) const {
  return Face().contains(oAt);
}

}  // namespace quillet
