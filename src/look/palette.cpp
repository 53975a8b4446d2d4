#include "look/palette.h"

namespace quillet {

QColor InkColour(Ink eInk) {
  return QColor::fromRgb(static_cast<QRgb>(eInk));
}

QColor ColourOf(std::uint32_t nColour) {
  switch (nColour) {
    case kColourWindow:
      return InkColour(Ink::Text);
    case kColourFrame:
    case kColourWindowText:
      return InkColour(Ink::Ground);
    case kColourFace:
    case kColourHighlight:
      return InkColour(Ink::Hairline);
    case kColourGreyText:
      return InkColour(Ink::GreyText);
    default:
      return {static_cast<int>(nColour & 0xFFU), static_cast<int>((nColour >> 8U) & 0xFFU),
              static_cast<int>((nColour >> 16U) & 0xFFU)};
  }
}

}  // namespace quillet
