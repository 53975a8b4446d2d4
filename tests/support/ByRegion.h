// Expected values that differ between the two regions.
#pragma once

#include <utility>

#include "base/region.h"

namespace quillet {

template <typename Value>
Value ByRegion(Value oUnitedKingdom, Value oUnitedStates) {
  return RegionCode() == 1 ? std::move(oUnitedStates) : std::move(oUnitedKingdom);
}

}  // namespace quillet
