// The sizes at which the interface can be drawn.
#pragma once

#include <optional>

namespace quillet {

/// The step above or below a zoom, both in percent; the last one at either end.
[[nodiscard]] int NextZoomStep(int nPercent, bool bLarger);

/// The largest step at which a size, in pixels at zoom 100, fits the room; the smallest step if
/// none does.
[[nodiscard]] int LargestFittingZoom(double fWidth, double fHeight, double fRoomWidth,
                                     double fRoomHeight);

/// The stored step, in percent; nothing if there is none.
[[nodiscard]] std::optional<int> StoredZoom();

}  // namespace quillet
