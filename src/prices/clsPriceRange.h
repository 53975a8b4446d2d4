// One tier of a tiered price.
#pragma once

#include <cstdint>

#include "base/Single.h"

namespace quillet {

struct clsPriceRange {
  /// The end of a tier without an upper limit.
  static constexpr double kNoUpperLimit = -1.0;

  std::int16_t m_nCount = 0;  ///< how many tiers the priced item has
  std::int16_t m_nIndex = 0;  ///< which tier this is, from 1; 0 after a look-up that found none
  Single m_fStart;            ///< first value of the tier
  Single m_fEnd;              ///< last value of the tier, or kNoUpperLimit
  Single m_fValue;            ///< the tier's amount or percentage
};

}  // namespace quillet
