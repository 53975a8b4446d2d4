#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {
std::int64_t g_nAllocations = 0;
}

// Every form of new that isn't replaced here calls this one.
void* operator new(std::size_t nSize) {
  ++g_nAllocations;
  void* const pMemory = std::malloc(nSize == 0 ? 1 : nSize);
  if (pMemory == nullptr) {
    throw std::bad_alloc();
  }
  return pMemory;
}

void operator delete(void* pMemory) noexcept {
  std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t /*nSize*/) noexcept {
  std::free(pMemory);
}

namespace quillet {

std::int64_t Allocations() {
  return g_nAllocations;
}

}  // namespace quillet
