#include "platform/Host.h"

#include <cassert>

namespace quillet {
namespace {
Host* g_oHost = nullptr;
}

Host& TheHost() {
  assert(g_oHost != nullptr);
  return *g_oHost;
}

void SetHost(Host& oHost) {
  g_oHost = &oHost;
}

}  // namespace quillet
