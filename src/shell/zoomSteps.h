// The sizes at which the interface can be drawn.
#pragma once

namespace quillet {

/// The step above or below a zoom, both in percent; the last one at either end.
[[nodiscard]] int NextZoomStep(int nPercent, bool bLarger);

/// The largest step at which a size in pixels of zoom 100 fits into the room; the
/// smallest step if none does.
[[nodiscard]] int LargestFittingZoom(double fWidth, double fHeight, double fRoomWidth,
                                     double fRoomHeight);

/// True for a percentage that is one of the steps.
[[nodiscard]] bool IsZoomStep(int nPercent);

}  // namespace quillet
