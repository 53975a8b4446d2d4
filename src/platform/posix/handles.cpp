#include "platform/handles.h"

#include <cerrno>
#include <csignal>

#include <unistd.h>

#include "platform/StandardStreams.h"

namespace quillet {

std::error_code LastSystemError() {
  return {errno, std::generic_category()};
}

std::error_code ReadSome(int hFile, char* pBuffer, std::size_t nSize, std::size_t& nRead) {
  while (true) {
    const ssize_t nResult = ::read(hFile, pBuffer, nSize);
    if (nResult >= 0) {
      nRead = static_cast<std::size_t>(nResult);
      return {};
    }
    if (errno != EINTR) {
      return LastSystemError();
    }
  }
}

std::error_code WriteAll(int hFile, std::string_view sContent) {
  while (!sContent.empty()) {
    const ssize_t nWritten = ::write(hFile, sContent.data(), sContent.size());
    if (nWritten < 0 && errno == EINTR) {
      continue;
    }
    if (nWritten < 0) {
      return LastSystemError();
    }
    sContent.remove_prefix(static_cast<std::size_t>(nWritten));
  }
  return {};
}

std::error_code ReadStandardInput(char* pBuffer, std::size_t nSize, std::size_t& nRead) {
  return ReadSome(STDIN_FILENO, pBuffer, nSize, nRead);
}

std::error_code WriteStandardOutput(std::string_view sContent) {
  return WriteAll(STDOUT_FILENO, sContent);
}

bool IsTerminal(StandardStream eStream) {
  return ::isatty(static_cast<int>(eStream)) != 0;
}

void ReportFailedWrites() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace quillet
