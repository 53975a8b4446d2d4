// Which controls exist in which region.
#pragma once

#include <string_view>

namespace quillet {

/// True if a control with that name, or a row with that word, belongs in this region's program.
[[nodiscard]] bool RegionAllowsControl(std::string_view sName);

}  // namespace quillet
