// The style of the program's controls and the toolkit's own dialogs: flat buttons, the program's
// icons, and thin scroll bars without arrows.
#pragma once

#include <QProxyStyle>

namespace quillet {

class ThemeStyle : public QProxyStyle {
 public:
  ThemeStyle();

  void drawPrimitive(PrimitiveElement eElement, const QStyleOption* pOption, QPainter* pPainter,
                     const QWidget* pWidget) const override;
  void drawControl(ControlElement eElement, const QStyleOption* pOption, QPainter* pPainter,
                   const QWidget* pWidget) const override;
  void drawComplexControl(ComplexControl eControl, const QStyleOptionComplex* pOption,
                          QPainter* pPainter, const QWidget* pWidget) const override;
  [[nodiscard]] QRect subControlRect(ComplexControl eControl, const QStyleOptionComplex* pOption,
                                     SubControl ePart, const QWidget* pWidget) const override;
  [[nodiscard]] QSize sizeFromContents(ContentsType eType, const QStyleOption* pOption,
                                       const QSize& oSize, const QWidget* pWidget) const override;
  [[nodiscard]] int pixelMetric(PixelMetric eMetric, const QStyleOption* pOption,
                                const QWidget* pWidget) const override;
  [[nodiscard]] int styleHint(StyleHint eHint, const QStyleOption* pOption, const QWidget* pWidget,
                              QStyleHintReturn* pReturn) const override;
  [[nodiscard]] QIcon standardIcon(StandardPixmap eIcon, const QStyleOption* pOption,
                                   const QWidget* pWidget) const override;
};

}  // namespace quillet
