// The font of everything on screen.
#pragma once

#include <QFont>
#include <QString>

namespace quillet {

/// The program's own font, whose digits all have the same width. `fPoints` is its size at zoom 1.
[[nodiscard]] QFont ThemeFont(double fPoints, QFont::Weight eWeight = QFont::Medium);

inline constexpr double kTextPoints = 8.0;         ///< captions and inputs
inline constexpr double kGrandTotalPoints = 18.0;  ///< the profit

}  // namespace quillet
