// The colours, the font and the size of everything on screen.
#pragma once

#include <QColor>
#include <QFont>
#include <cstdint>

class QWidget;

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

/// The program's own font, whose digits are all of one width. `fPoints` is its size at zoom 1.
[[nodiscard]] QFont ThemeFont(double fPoints, QFont::Weight eWeight = QFont::Medium);

inline constexpr double kTextPoints = 8.0;         ///< captions and inputs
inline constexpr double kGrandTotalPoints = 18.0;  ///< the profit

/// Loads the font and gives the application its palette and icon. Once, before the first window.
void InstallTheme();

/// How large everything is drawn, 1 being the design's size.
[[nodiscard]] double Zoom();
void SetZoom(double fZoom);

/// Where a place in twips (1/1440 inch) lies in the toolkit's pixels at the current zoom.
[[nodiscard]] int Pixels(double fTwips);
/// The other way, for what the toolkit measures.
[[nodiscard]] int Twips(double fPixels);

}  // namespace quillet
