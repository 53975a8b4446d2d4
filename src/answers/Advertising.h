// What may be spent on advertising.
#pragma once

#include <cstdint>
#include <optional>

#include "engine/clsCalculate.h"

namespace quillet {

/// The highest rate of advertising at which the auction still breaks even, in tenths of a percent
/// and 1,000 at most. Nothing if it makes a loss without any, or pays none of today's sale fees.
[[nodiscard]] std::optional<std::int32_t> HighestAdvertising(const clsCalculate& oAuction);

}  // namespace quillet
