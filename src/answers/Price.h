// Prices in whole cents, and the search among them.
#pragma once

#include <cstdint>

#include "base/Single.h"

namespace quillet {

/// Hundredths of the currency.
using Cents = std::int32_t;

inline constexpr Cents kHighestPrice = 999'999'999;

/// The price as an auction keeps it. From 131,072.00 on several cents share a 32-bit float.
[[nodiscard]] constexpr Single PriceOf(Cents nPrice) {
  return nPrice / 100.0;
}

/// The first price of a range for which a test holds, given that it then holds for all later ones;
/// `nEnd` if it holds for none.
template <typename Test>
[[nodiscard]] Cents FirstWhere(Cents nFrom, Cents nEnd, const Test& fnHolds) {
  while (nFrom < nEnd) {
    const Cents nMiddle = nFrom + (nEnd - nFrom) / 2;
    if (fnHolds(nMiddle)) {
      nEnd = nMiddle;
    } else {
      nFrom = nMiddle + 1;
    }
  }
  return nEnd;
}

}  // namespace quillet
