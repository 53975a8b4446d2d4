#include "platform/Descriptors.h"

#include <cerrno>
#include <csignal>

#include <unistd.h>

namespace quillet {

std::error_code LastError() {
  return {errno, std::generic_category()};
}

std::error_code ReadSome(int nHandle, char* pBuffer, std::size_t nSize, std::size_t& nRead) {
  while (true) {
    const ssize_t nResult = ::read(nHandle, pBuffer, nSize);
    if (nResult >= 0) {
      nRead = static_cast<std::size_t>(nResult);
      return {};
    }
    if (errno != EINTR) {
      return LastError();
    }
  }
}

std::error_code WriteAll(int nHandle, std::string_view sContent) {
  while (!sContent.empty()) {
    const ssize_t nWritten = ::write(nHandle, sContent.data(), sContent.size());
    if (nWritten < 0 && errno == EINTR) {
      continue;
    }
    if (nWritten < 0) {
      return LastError();
    }
    sContent.remove_prefix(static_cast<std::size_t>(nWritten));
  }
  return {};
}

bool IsTerminal(int nHandle) {
  return ::isatty(nHandle) != 0;
}

void ReportFailedWrites() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace quillet
