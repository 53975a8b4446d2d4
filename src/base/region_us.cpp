#include "base/region.h"

namespace quillet {

std::int32_t RegionCode() {
  return 1;
}

}  // namespace quillet
