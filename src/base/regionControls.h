// Which controls exist in which region.
#pragma once

#include <string_view>

namespace quillet {

/// True if a control of that name, or a row of that word, belongs into this region's program.
[[nodiscard]] bool RegionAllowsControl(std::string_view sName);

}  // namespace quillet
