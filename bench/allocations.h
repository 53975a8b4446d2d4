// Counts the program's heap allocations.
#pragma once

#include <cstdint>

namespace quillet {

/// How many times operator new has run so far.
[[nodiscard]] std::int64_t Allocations();

}  // namespace quillet
