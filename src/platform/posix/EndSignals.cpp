#include "platform/EndSignals.h"

#include <QSocketNotifier>
#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace quillet {
namespace {

std::array<int, 2> g_anPipe = {-1, -1};  // from the handler, which may do very little, to the loop

extern "C" void TellTheLoop(int /*nSignal*/) {
  const char cMark = 0;
  [[maybe_unused]] const ssize_t nWritten = ::write(g_anPipe[1], &cMark, 1);
}

}  // namespace

void OnEndSignal(QObject& oContext, const std::function<void()>& fnEnd) {
  if (::pipe2(g_anPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    return;
  }
  auto* const pNotifier = new QSocketNotifier(g_anPipe[0], QSocketNotifier::Read, &oContext);
  QObject::connect(pNotifier, &QSocketNotifier::activated, &oContext, [fnEnd] { fnEnd(); });
  for (const int nSignal : {SIGTERM, SIGHUP, SIGINT}) {
    struct sigaction oAction {};
    if (::sigaction(nSignal, nullptr, &oAction) == 0 && oAction.sa_handler != SIG_IGN) {
      oAction.sa_handler = TellTheLoop;
      oAction.sa_flags = SA_RESTART;
      ::sigaction(nSignal, &oAction, nullptr);
    }
  }
}

}  // namespace quillet
