// How large everything on screen is.
#pragma once

namespace quillet {

inline constexpr double kTwipsPerPixel = 15.0;  ///< at zoom 1: 1440 to 96 an inch

/// How large everything is drawn, 1 being the design's size.
[[nodiscard]] double Zoom();
void SetZoom(double fZoom);

/// Where a place in twips (1/1440 inch) lies in the toolkit's pixels at the current zoom.
[[nodiscard]] int Pixels(double fTwips);
/// The other way, for what the toolkit measures.
[[nodiscard]] int Twips(double fPixels);

}  // namespace quillet
