// How large everything on screen is.
#pragma once

namespace quillet {

inline constexpr double kTwipsPerPixel = 15.0;  ///< at zoom 1: 1440 to 96 an inch

/// The scale of everything on screen; 1 is the design's size.
[[nodiscard]] double Zoom();
void SetZoom(double fZoom);

/// Converts twips (1/1440 inch) to the toolkit's pixels at the current zoom.
[[nodiscard]] int Pixels(double fTwips);
/// The reverse, for what the toolkit measures.
[[nodiscard]] int Twips(double fPixels);

}  // namespace quillet
