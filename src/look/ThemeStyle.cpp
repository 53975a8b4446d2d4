#include "look/ThemeStyle.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <optional>

#include "look/icons.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr double kTwipsOfButtonWidth = 1200.0;
constexpr double kTwipsOfButtonHeight = 420.0;
constexpr double kTwipsOfMessageIcon = 540.0;
constexpr double kTwipsOfMargin = 240.0;
constexpr double kTwipsOfSpacing = 120.0;
constexpr double kTwipsOfScrollBar = 165.0;
constexpr double kTwipsOfLeastThumb = 360.0;
constexpr double kIconStroke = 1.8;

struct MessageIcon {
  Icon eIcon;
  Ink eInk;
};

std::optional<MessageIcon> MessageIconOf(QStyle::StandardPixmap eIcon) {
  switch (eIcon) {
    case QStyle::SP_MessageBoxInformation:
      return MessageIcon{Icon::About, Ink::Accent};
    case QStyle::SP_MessageBoxQuestion:
      return MessageIcon{Icon::Question, Ink::Accent};
    case QStyle::SP_MessageBoxWarning:
      return MessageIcon{Icon::Warning, Ink::Warning};
    case QStyle::SP_MessageBoxCritical:
      return MessageIcon{Icon::Critical, Ink::Error};
    default:
      return std::nullopt;
  }
}

QIcon PaintedIcon(const MessageIcon& oIcon, int nSize, double fDotsPerPixel) {
  const int nDots = static_cast<int>(std::lround(nSize * fDotsPerPixel));
  QPixmap oPixmap(nDots, nDots);
  oPixmap.setDevicePixelRatio(fDotsPerPixel);
  oPixmap.fill(Qt::transparent);
  QPainter oPainter(&oPixmap);
  DrawIcon(oPainter, oIcon.eIcon, QRectF(0, 0, nSize, nSize), InkColour(oIcon.eInk), kIconStroke);
  return {oPixmap};
}

bool IsDefault(const QStyleOption* pOption) {
  const auto* const pButton = qstyleoption_cast<const QStyleOptionButton*>(pOption);
  return pButton != nullptr && (pButton->features & QStyleOptionButton::DefaultButton) != 0 &&
         (pOption->state & QStyle::State_Enabled) != 0;
}

QColor ButtonColour(const QStyleOption& oOption) {
  const bool bDown = (oOption.state & QStyle::State_Sunken) != 0;
  const bool bHover = (oOption.state & QStyle::State_MouseOver) != 0;
  if (IsDefault(&oOption)) {
    const QColor oAccent = InkColour(Ink::Accent);
    return bDown ? oAccent.darker(115) : bHover ? oAccent.lighter(108) : oAccent;
  }
  return InkColour(bDown ? Ink::Hairline : bHover ? Ink::Hover : Ink::Panel);
}

void DrawButton(QPainter& oPainter, const QStyleOption& oOption) {
  const bool bFocus = (oOption.state & QStyle::State_HasFocus) != 0;
  const double fRadius = Pixels(75);
  const QRectF oEdge = QRectF(oOption.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(InkColour(IsDefault(&oOption) ? Ink::Accent : Ink::FieldEdge));
  oPainter.setBrush(ButtonColour(oOption));
  oPainter.drawRoundedRect(oEdge, fRadius, fRadius);
  if (bFocus) {
    oPainter.setPen(InkColour(IsDefault(&oOption) ? Ink::OnAccent : Ink::Accent));
    oPainter.setBrush(Qt::NoBrush);
    oPainter.drawRoundedRect(oEdge.adjusted(2, 2, -2, -2), fRadius - 2, fRadius - 2);
  }
  oPainter.restore();
}

/// The places of a scroll bar's parts: its thumb, and the ways on both sides of it.
QRect PartOfScrollBar(const QStyleOptionSlider& oBar, QStyle::SubControl ePart) {
  const bool bAcross = oBar.orientation == Qt::Horizontal;
  const int nWay = bAcross ? oBar.rect.width() : oBar.rect.height();
  const double fSteps = oBar.maximum - oBar.minimum + std::max(1, oBar.pageStep);
  const int nShare = static_cast<int>(nWay * oBar.pageStep / fSteps);
  const int nThumb = std::min(nWay, std::max(nShare, Pixels(kTwipsOfLeastThumb)));
  const int nAt = QStyle::sliderPositionFromValue(oBar.minimum, oBar.maximum, oBar.sliderPosition,
                                                  nWay - nThumb, oBar.upsideDown);
  const auto fnPart = [&](int nFrom, int nLength) {
    return bAcross ? QRect(nFrom, 0, nLength, oBar.rect.height())
                   : QRect(0, nFrom, oBar.rect.width(), nLength);
  };
  switch (ePart) {
    case QStyle::SC_ScrollBarSlider:
      return fnPart(nAt, nThumb);
    case QStyle::SC_ScrollBarSubPage:
      return fnPart(0, nAt);
    case QStyle::SC_ScrollBarAddPage:
      return fnPart(nAt + nThumb, nWay - nAt - nThumb);
    case QStyle::SC_ScrollBarGroove:
      return oBar.rect;
    default:
      return {};
  }
}

void DrawScrollBar(QPainter& oPainter, const QStyleOptionSlider& oBar) {
  oPainter.fillRect(oBar.rect, oBar.palette.window());
  if (oBar.maximum <= oBar.minimum) {
    return;
  }
  const bool bHot = (oBar.state & (QStyle::State_Sunken | QStyle::State_MouseOver)) != 0;
  const QRectF oThumb = PartOfScrollBar(oBar, QStyle::SC_ScrollBarSlider);
  const double fInset = std::min(oThumb.width(), oThumb.height()) * 0.25;
  const QRectF oInk = oThumb.adjusted(fInset, fInset, -fInset, -fInset);
  const double fRadius = std::min(oInk.width(), oInk.height()) / 2;
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(Qt::NoPen);
  oPainter.setBrush(InkColour(bHot ? Ink::FaintText : Ink::FieldEdge));
  oPainter.drawRoundedRect(oInk, fRadius, fRadius);
  oPainter.restore();
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle("Fusion") {}

void ThemeStyle::drawPrimitive(PrimitiveElement eElement, const QStyleOption* pOption,
                               QPainter* pPainter, const QWidget* pWidget) const {
  if (eElement == PE_PanelButtonCommand) {
    DrawButton(*pPainter, *pOption);
  } else {
    QProxyStyle::drawPrimitive(eElement, pOption, pPainter, pWidget);
  }
}

void ThemeStyle::drawControl(ControlElement eElement, const QStyleOption* pOption,
                             QPainter* pPainter, const QWidget* pWidget) const {
  if (eElement == CE_PushButtonLabel && IsDefault(pOption)) {
    QStyleOptionButton oOption = *qstyleoption_cast<const QStyleOptionButton*>(pOption);
    oOption.palette.setColor(QPalette::ButtonText, InkColour(Ink::OnAccent));
    QProxyStyle::drawControl(eElement, &oOption, pPainter, pWidget);
  } else {
    QProxyStyle::drawControl(eElement, pOption, pPainter, pWidget);
  }
}

void ThemeStyle::drawComplexControl(ComplexControl eControl, const QStyleOptionComplex* pOption,
                                    QPainter* pPainter, const QWidget* pWidget) const {
  if (const auto* const pBar = qstyleoption_cast<const QStyleOptionSlider*>(pOption);
      pBar != nullptr && eControl == CC_ScrollBar) {
    DrawScrollBar(*pPainter, *pBar);
  } else {
    QProxyStyle::drawComplexControl(eControl, pOption, pPainter, pWidget);
  }
}

QRect ThemeStyle::subControlRect(ComplexControl eControl, const QStyleOptionComplex* pOption,
                                 SubControl ePart, const QWidget* pWidget) const {
  const auto* const pBar = qstyleoption_cast<const QStyleOptionSlider*>(pOption);
  return pBar != nullptr && eControl == CC_ScrollBar
             ? PartOfScrollBar(*pBar, ePart)
             : QProxyStyle::subControlRect(eControl, pOption, ePart, pWidget);
}

QSize ThemeStyle::sizeFromContents(ContentsType eType, const QStyleOption* pOption,
                                   const QSize& oSize, const QWidget* pWidget) const {
  const QSize oFitting = QProxyStyle::sizeFromContents(eType, pOption, oSize, pWidget);
  return eType == CT_PushButton
             ? oFitting.expandedTo({Pixels(kTwipsOfButtonWidth), Pixels(kTwipsOfButtonHeight)})
             : oFitting;
}

int ThemeStyle::pixelMetric(PixelMetric eMetric, const QStyleOption* pOption,
                            const QWidget* pWidget) const {
  switch (eMetric) {
    case PM_MessageBoxIconSize:
      return Pixels(kTwipsOfMessageIcon);
    case PM_ScrollBarExtent:
      return Pixels(kTwipsOfScrollBar);
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return Pixels(kTwipsOfMargin);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return Pixels(kTwipsOfSpacing);
    default:
      return QProxyStyle::pixelMetric(eMetric, pOption, pWidget);
  }
}

/// The words on the buttons of a prompt say it all.
int ThemeStyle::styleHint(StyleHint eHint, const QStyleOption* pOption, const QWidget* pWidget,
                          QStyleHintReturn* pReturn) const {
  return eHint == SH_DialogButtonBox_ButtonsHaveIcons
             ? 0
             : QProxyStyle::styleHint(eHint, pOption, pWidget, pReturn);
}

QIcon ThemeStyle::standardIcon(StandardPixmap eIcon, const QStyleOption* pOption,
                               const QWidget* pWidget) const {
  const std::optional<MessageIcon> oIcon = MessageIconOf(eIcon);
  if (!oIcon) {
    return QProxyStyle::standardIcon(eIcon, pOption, pWidget);
  }
  const double fDotsPerPixel = pWidget != nullptr ? pWidget->devicePixelRatioF() : 1.0;
  return PaintedIcon(*oIcon, Pixels(kTwipsOfMessageIcon), fDotsPerPixel);
}

}  // namespace quillet
