#include "platform/handles.h"

#include <algorithm>

#include <windows.h>

#include "platform/StandardStreams.h"

namespace quillet {
namespace {

/// The system counts them downwards.
HANDLE HandleOf(StandardStream eStream) {
  return ::GetStdHandle(STD_INPUT_HANDLE - static_cast<DWORD>(eStream));
}

DWORD PieceOf(std::size_t nSize) {
  constexpr std::size_t kLargest = 1U << 30U;
  return static_cast<DWORD>(std::min(nSize, kLargest));
}

}  // namespace

std::error_code LastSystemError() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

std::error_code ReadSome(HANDLE hFile, char* pBuffer, std::size_t nSize, std::size_t& nRead) {
  DWORD nTaken = 0;
  if (::ReadFile(hFile, pBuffer, PieceOf(nSize), &nTaken, nullptr) == FALSE) {
    // A pipe whose writer is gone has ended.
    const std::error_code oError = LastSystemError();
    if (oError.value() != ERROR_BROKEN_PIPE) {
      return oError;
    }
  }
  nRead = nTaken;
  return {};
}

std::error_code WriteAll(HANDLE hFile, std::string_view sContent) {
  while (!sContent.empty()) {
    DWORD nWritten = 0;
    if (::WriteFile(hFile, sContent.data(), PieceOf(sContent.size()), &nWritten, nullptr) ==
        FALSE) {
      return LastSystemError();
    }
    sContent.remove_prefix(nWritten);
  }
  return {};
}

std::error_code ReadStandardInput(char* pBuffer, std::size_t nSize, std::size_t& nRead) {
  return ReadSome(HandleOf(StandardStream::Input), pBuffer, nSize, nRead);
}

std::error_code WriteStandardOutput(std::string_view sContent) {
  return WriteAll(HandleOf(StandardStream::Output), sContent);
}

bool IsTerminal(StandardStream eStream) {
  DWORD nMode = 0;
  return ::GetConsoleMode(HandleOf(eStream), &nMode) != FALSE;
}

void ReportFailedWrites() {}  // no signal to silence here

}  // namespace quillet
