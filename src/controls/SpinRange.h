// The values of a spin button, which wraps round at its ends.
#pragma once

#include <cstdint>

namespace quillet {

struct SpinRange {
  std::int32_t nMin = 0;
  std::int32_t nMax = 100;
  std::int32_t nIncrement = 1;
};

}  // namespace quillet
