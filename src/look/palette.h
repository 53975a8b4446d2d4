// The colours of everything on screen.
#pragma once

#include <QColor>
#include <cstdint>

namespace quillet {

/// The one palette. Light on dark; every text has a contrast of 4.5 to 1 or more on its ground.
enum class Ink {
  Ground,     ///< behind everything
  Panel,      ///< a card
  Hairline,   ///< rules, and the edge of a card
  Field,      ///< inside an input
  FieldEdge,  ///< around an input or a box
  Text,
  GreyText,   ///< of what can't be chosen
  FaintText,  ///< names of sections
  Accent,     ///< focus and choice
  OnAccent,   ///< a mark drawn on the accent
  HeaderBar,
  OnHeaderBar,
  Hover,       ///< under a button that the pointer is on
  Column,      ///< behind the buttons of the main window
  ColumnText,  ///< captions and icons of those buttons
  Warning,
  Error,
};

[[nodiscard]] QColor InkColour(Ink eInk);

/// Colours by number, as the settings hold them: red in the low byte, or one of these numbers that
/// stand for a colour of the theme. The interface is inverted: what is called window text is the
/// ground, what is called window is the text.
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
