// Which region's rules this program follows.
#pragma once

#include <cstdint>

namespace quillet {

/// 0 for the United Kingdom, 1 for the United States. Defined in region_uk.cpp and region_us.cpp;
/// each program links one of them, and nothing else knows the region before the program runs.
[[nodiscard]] std::int32_t RegionCode();

}  // namespace quillet
