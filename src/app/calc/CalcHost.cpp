#include "app/calc/CalcHost.h"

#include <utility>

namespace quillet {
namespace {
thread_local std::optional<std::string> g_sMessage;
}

Answer CalcHost::ShowMessage(const std::string& sPrompt, int /*nButtons*/,
                             const std::string& /*sTitle*/) {
  g_sMessage = sPrompt;
  return Answer::Ok;
}

std::optional<std::string> CalcHost::TakeMessage() {
  return std::exchange(g_sMessage, std::nullopt);
}

}  // namespace quillet
