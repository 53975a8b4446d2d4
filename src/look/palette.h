// The colours of everything on screen.
#pragma once

#include <QColor>
#include <cstdint>

namespace quillet {

/// The only palette. Light on dark; every text contrasts at least 4.5 to 1 with its background.
enum class Ink {
  Ground,     ///< behind everything
  Panel,      ///< a card
  Hairline,   ///< rules, and the edge of a card
  Field,      ///< inside an input
  FieldEdge,  ///< around an input or a box
  Text,
  GreyText,   ///< disabled
  FaintText,  ///< names of sections
  Accent,     ///< focus and selection
  OnAccent,   ///< a mark drawn on the accent
  HeaderBar,
  OnHeaderBar,
  Hover,       ///< behind a button under the pointer
  Column,      ///< behind the buttons of the main window
  ColumnText,  ///< captions and icons of those buttons
  Warning,
  Error,
  // Parts of a whole, side by side.
  Slate,
  Peach,
  Sand,
  Orange,
  Rust,
  Sky,
  Green,
  Violet,
  Teal,
  Pink,
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
