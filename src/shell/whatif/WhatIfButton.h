// The button that opens the what-if window.
#pragma once

#include "controls/ImageButton.h"

namespace quillet {

inline constexpr const char* kWhatIfKey = "Ctrl+3";

/// Named "imgWhatIf". It never takes the focus from a box by a click.
[[nodiscard]] ImageButton* MakeWhatIfButton(QWidget* pParent);

}  // namespace quillet
