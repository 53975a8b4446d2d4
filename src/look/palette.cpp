#include "look/palette.h"

namespace quillet {

QColor InkColour(Ink eInk) {
  switch (eInk) {
    case Ink::Ground:
      return {0x14, 0x17, 0x1A};
    case Ink::Panel:
      return {0x1B, 0x1F, 0x24};
    case Ink::Hairline:
      return {0x2C, 0x33, 0x3B};
    case Ink::Field:
      return {0x11, 0x14, 0x17};
    case Ink::FieldEdge:
      return {0x4A, 0x53, 0x5D};
    case Ink::Text:
      return {0xE8, 0xEA, 0xED};
    case Ink::GreyText:
      return {0x8A, 0x92, 0x9C};
    case Ink::FaintText:
      return {0x9A, 0xA3, 0xAD};
    case Ink::Accent:
      return {0x5A, 0xA2, 0xFF};
    case Ink::OnAccent:
      return {0x0B, 0x1A, 0x2E};
    case Ink::HeaderBar:
      return {0x2F, 0x6F, 0xB5};
    case Ink::OnHeaderBar:
      return {0xFF, 0xFF, 0xFF};
    case Ink::Hover:
      return {0x22, 0x28, 0x2F};
    case Ink::Column:
      return {0x10, 0x12, 0x14};
    case Ink::ColumnText:
      return {0xB4, 0xBB, 0xC3};
    case Ink::Warning:
      return {0xFF, 0xB8, 0x4D};
    case Ink::Error:
      return {0xFF, 0x6B, 0x6B};
    case Ink::Slate:
      return {0x5C, 0x69, 0x77};
    case Ink::Peach:
      return {0xFF, 0xB0, 0x6B};
    case Ink::Sand:
      return {0xE8, 0xC5, 0x4A};
    case Ink::Orange:
      return {0xFF, 0x8C, 0x1A};
    case Ink::Rust:
      return {0xDB, 0x62, 0x28};
    case Ink::Sky:
      return {0x6E, 0xA8, 0xDC};
    case Ink::Green:
      return {0x7F, 0xD6, 0x7F};
    case Ink::Violet:
      return {0xB0, 0x8C, 0xE0};
    case Ink::Teal:
      return {0x4F, 0xB8, 0xB0};
    case Ink::Pink:
      return {0xE0, 0x7F, 0xA8};
  }
  return {};
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
