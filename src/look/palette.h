// The colours of everything on screen.
#pragma once

#include <QColor>
#include <cstdint>

namespace quillet {

/// The only palette. Light on dark; every text contrasts at least 4.5 to 1 with its background.
enum class Ink : QRgb {
  Ground = 0xFF14171A,     ///< behind everything
  Panel = 0xFF1B1F24,      ///< a card
  Hairline = 0xFF2C333B,   ///< rules, and the edge of a card
  Field = 0xFF111417,      ///< inside an input
  FieldEdge = 0xFF4A535D,  ///< around an input or a box
  Text = 0xFFE8EAED,
  GreyText = 0xFF8A929C,   ///< disabled
  FaintText = 0xFF9AA3AD,  ///< names of sections
  Accent = 0xFF5AA2FF,     ///< focus and selection
  OnAccent = 0xFF0B1A2E,   ///< a mark drawn on the accent
  HeaderBar = 0xFF2F6FB5,
  OnHeaderBar = 0xFFFFFFFF,
  Hover = 0xFF22282F,       ///< behind a button under the pointer
  Column = 0xFF101214,      ///< behind the buttons of the main window
  ColumnText = 0xFFB4BBC3,  ///< captions and icons of those buttons
  Warning = 0xFFFFB84D,
  Error = 0xFFFF6B6B,
  // Parts of a whole, side by side.
  Slate = 0xFF5C6977,
  Peach = 0xFFFFB06B,
  Sand = 0xFFE8C54A,
  Orange = 0xFFFF8C1A,
  Rust = 0xFFDB6228,
  Sky = 0xFF6EA8DC,
  Green = 0xFF7FD67F,
  Violet = 0xFFB08CE0,
  Teal = 0xFF4FB8B0,
  Pink = 0xFFE07FA8,
};

[[nodiscard]] QColor InkColour(Ink eInk);

/// Colours by number, as the settings hold them: red in the low byte, or one of these numbers for a
/// colour of the theme. The interface is inverted: "window text" is the background, "window" is the
/// text.
enum SystemColour : std::uint32_t {
  kColourWindow = 0x80000005,      ///< text
  kColourFrame = 0x80000007,       ///< ground
  kColourWindowText = 0x80000008,  ///< ground; in an input, its text
  kColourFace = 0x8000000F,        ///< rules
  kColourGreyText = 0x80000011,
  kColourHighlight = 0x80000014,  ///< rules
};
[[nodiscard]] QColor ColourOf(std::uint32_t nColour);

}  // namespace quillet
