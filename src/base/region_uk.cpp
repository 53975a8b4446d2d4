#include "base/region.h"

namespace quillet {

std::int32_t RegionCode() {
  return 0;
}

}  // namespace quillet
