#include "look/ThemeStyle.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionMenuItem>
#include <QStyleOptionSlider>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <optional>

#include "look/icons.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"
#include "look/scrollBar.h"

namespace quillet {
namespace {

constexpr double kTwipsOfButtonWidth = 1200.0;
constexpr double kTwipsOfButtonHeight = 420.0;
constexpr double kTwipsOfMessageIcon = 540.0;
constexpr double kTwipsOfMargin = 240.0;
constexpr double kTwipsOfSpacing = 120.0;
constexpr double kTwipsOfScrollBar = 165.0;
constexpr double kTwipsOfMark = 165.0;
constexpr double kTwipsOfMarkAndGap = 255.0;  // up to the text
constexpr double kTwipsOfTextMargin = 90.0;
constexpr double kTwipsOfArrow = 112.5;
constexpr double kTwipsOfTick = 112.5;
constexpr double kTwipsOfArrowRight = 165.0;  // from its centre to the edge
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
  DrawRounded(oPainter, oEdge, fRadius,
              InkColour(IsDefault(&oOption) ? Ink::Accent : Ink::FieldEdge), ButtonColour(oOption));
  if (bFocus) {
    DrawRounded(oPainter, oEdge.adjusted(2, 2, -2, -2), fRadius - 2,
                InkColour(IsDefault(&oOption) ? Ink::OnAccent : Ink::Accent), Qt::NoBrush);
  }
  oPainter.restore();
}

/// The mark of a box or an option, greyed together with the text when disabled.
void DrawMark(QPainter& oPainter, const QStyleOption& oOption, const QRectF& oMark, bool bRound) {
  constexpr double kCorner = 0.22;  // of the mark's size; a rounder box would look like an option
  constexpr double kTickInset = 0.22;
  constexpr double kDotInset = 0.32;
  const bool bOn = (oOption.state & QStyle::State_On) != 0;
  const bool bGrey = oOption.palette.color(QPalette::WindowText) == InkColour(Ink::GreyText);
  const QColor oEdge = InkColour(bGrey ? Ink::GreyText : bOn ? Ink::Accent : Ink::FaintText);
  const double fSize = oMark.width();
  const double fRadius = fSize * (bRound ? 0.5 : kCorner);
  const auto fnInset = [&](double fPart) {
    return oMark.adjusted(fSize * fPart, fSize * fPart, -fSize * fPart, -fSize * fPart);
  };
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawRounded(oPainter, oMark, fRadius, bOn && bRound ? QPen(Qt::NoPen) : oEdge,
              bOn ? oEdge : InkColour(Ink::Field));
  if (bOn && bRound) {
    DrawRounded(oPainter, fnInset(kDotInset), fSize, Qt::NoPen, InkColour(Ink::OnAccent));
  } else if (bOn) {
    DrawTick(oPainter, fnInset(kTickInset), InkColour(Ink::OnAccent));
  }
  if ((oOption.state & QStyle::State_HasFocus) != 0) {
    DrawRing(oPainter, oMark.adjusted(-0.5, -2, 2, 2), fRadius + 2);
  }
  oPainter.restore();
}

/// A box or an option: its mark and its text.
void DrawMarkedButton(QPainter& oPainter, const QStyleOptionButton& oButton, bool bRound) {
  const double fSize = Pixels(kTwipsOfMark);
  const double fTop = std::floor((oButton.rect.height() - fSize) / 2.0);
  const QPointF oAt = oButton.rect.topLeft() + QPointF(0.5, fTop + 0.5);
  DrawMark(oPainter, oButton, {oAt, QSizeF(fSize, fSize)}, bRound);
  DrawWords(oPainter, oButton.rect.adjusted(Pixels(kTwipsOfMarkAndGap), 0, 0, 0), oButton.text,
            oButton.palette.color(QPalette::WindowText), Qt::TextShowMnemonic);
}

/// Marks the chosen one of several items.
void DrawTickOfItem(QPainter& oPainter, const QStyleOptionMenuItem& oItem) {
  const bool bSelected = (oItem.state & QStyle::State_Selected) != 0;
  const double fSize = Pixels(kTwipsOfTick);
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawTick(oPainter,
           {oItem.rect.left() + fSize, oItem.rect.center().y() + 0.5 - fSize / 2, fSize, fSize},
           InkColour(bSelected ? Ink::OnAccent : Ink::Accent));
  oPainter.restore();
}

/// Drawn like the numeric boxes.
void DrawInput(QPainter& oPainter, const QStyleOption& oInput) {
  const bool bFocus = (oInput.state & QStyle::State_HasFocus) != 0;
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawField(oPainter, oInput.rect, bFocus ? Ink::Accent : Ink::FieldEdge, InkColour(Ink::Field));
  oPainter.restore();
}

/// A combo box and its arrow.
void DrawCombo(QPainter& oPainter, const QStyleOptionComboBox& oCombo) {
  const bool bHover = (oCombo.state & QStyle::State_MouseOver) != 0;
  const double fArrow = Pixels(kTwipsOfArrow);
  const QRectF oBox = oCombo.rect;
  const QPointF oMiddle(oBox.right() - Pixels(kTwipsOfArrowRight), oBox.center().y());
  DrawInput(oPainter, oCombo);
  oPainter.save();
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawChevron(oPainter, {oMiddle - QPointF(fArrow, fArrow) / 2, QSizeF(fArrow, fArrow)},
              Towards::Down, InkColour(bHover ? Ink::Text : Ink::FaintText));
  oPainter.restore();
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle("Fusion") {}

void ThemeStyle::drawPrimitive(PrimitiveElement eElement, const QStyleOption* pOption,
                               QPainter* pPainter, const QWidget* pWidget) const {
  switch (eElement) {
    case PE_PanelButtonCommand:
      return DrawButton(*pPainter, *pOption);
    case PE_FrameLineEdit:
      return DrawInput(*pPainter, *pOption);
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
      return DrawMark(*pPainter, *pOption, QRectF(pOption->rect).adjusted(0.5, 0.5, -0.5, -0.5),
                      eElement == PE_IndicatorRadioButton);
    default:
      QProxyStyle::drawPrimitive(eElement, pOption, pPainter, pWidget);
  }
}

void ThemeStyle::drawControl(ControlElement eElement, const QStyleOption* pOption,
                             QPainter* pPainter, const QWidget* pWidget) const {
  if (eElement == CE_PushButtonLabel && IsDefault(pOption)) {
    QStyleOptionButton oOption = *qstyleoption_cast<const QStyleOptionButton*>(pOption);
    oOption.palette.setColor(QPalette::ButtonText, InkColour(Ink::OnAccent));
    QProxyStyle::drawControl(eElement, &oOption, pPainter, pWidget);
  } else if (eElement == CE_CheckBox || eElement == CE_RadioButton) {
    DrawMarkedButton(*pPainter, *qstyleoption_cast<const QStyleOptionButton*>(pOption),
                     eElement == CE_RadioButton);
  } else if (const auto* const pItem = qstyleoption_cast<const QStyleOptionMenuItem*>(pOption);
             pItem != nullptr && pItem->checkType == QStyleOptionMenuItem::Exclusive) {
    QStyleOptionMenuItem oItem = *pItem;
    oItem.checkType = QStyleOptionMenuItem::NotCheckable;
    QProxyStyle::drawControl(eElement, &oItem, pPainter, pWidget);
    if (pItem->checked) {
      DrawTickOfItem(*pPainter, *pItem);
    }
  } else {
    QProxyStyle::drawControl(eElement, pOption, pPainter, pWidget);
  }
}

void ThemeStyle::drawComplexControl(ComplexControl eControl, const QStyleOptionComplex* pOption,
                                    QPainter* pPainter, const QWidget* pWidget) const {
  if (const auto* const pBar = qstyleoption_cast<const QStyleOptionSlider*>(pOption);
      pBar != nullptr && eControl == CC_ScrollBar) {
    DrawScrollBar(*pPainter, *pBar);
  } else if (const auto* const pCombo = qstyleoption_cast<const QStyleOptionComboBox*>(pOption);
             pCombo != nullptr && !pCombo->editable) {
    DrawCombo(*pPainter, *pCombo);
  } else {
    QProxyStyle::drawComplexControl(eControl, pOption, pPainter, pWidget);
  }
}

QRect ThemeStyle::subControlRect(ComplexControl eControl, const QStyleOptionComplex* pOption,
                                 SubControl ePart, const QWidget* pWidget) const {
  if (eControl == CC_ComboBox && ePart == SC_ComboBoxEditField) {
    // The toolkit leaves a pixel on either side of the text.
    return pOption->rect.adjusted(Pixels(kTwipsOfTextMargin) - 1, 0,
                                  1 - Pixels(2 * kTwipsOfArrowRight), 0);
  }
  const auto* const pBar = qstyleoption_cast<const QStyleOptionSlider*>(pOption);
  return pBar != nullptr && eControl == CC_ScrollBar
             ? PartOfScrollBar(*pBar, ePart)
             : QProxyStyle::subControlRect(eControl, pOption, ePart, pWidget);
}

QSize ThemeStyle::sizeFromContents(ContentsType eType, const QStyleOption* pOption,
                                   const QSize& oSize, const QWidget* pWidget) const {
  if (const auto* const pButton = qstyleoption_cast<const QStyleOptionButton*>(pOption);
      pButton != nullptr && (eType == CT_CheckBox || eType == CT_RadioButton)) {
    // Measure the text as it is drawn: the toolkit's own measure can be a pixel more.
    return pButton->fontMetrics.size(Qt::TextShowMnemonic, pButton->text) +
           QSize(Pixels(kTwipsOfMarkAndGap), 0);
  }
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
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return Pixels(kTwipsOfMark);
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

/// The buttons of a prompt need no icons.
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
