#include "platform/Descriptors.h"

#include <algorithm>

#include <windows.h>

namespace quillet {
namespace {

/// The standard handles are counted downwards here.
HANDLE HandleOf(int nHandle) {
  return ::GetStdHandle(STD_INPUT_HANDLE - static_cast<DWORD>(nHandle));
}

DWORD PieceOf(std::size_t nSize) {
  constexpr std::size_t kLargest = 1U << 30U;
  return static_cast<DWORD>(std::min(nSize, kLargest));
}

}  // namespace

std::error_code LastError() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

std::error_code ReadSome(int nHandle, char* pBuffer, std::size_t nSize, std::size_t& nRead) {
  DWORD nTaken = 0;
  if (::ReadFile(HandleOf(nHandle), pBuffer, PieceOf(nSize), &nTaken, nullptr) == FALSE) {
    // A pipe whose writer is gone has ended.
    const std::error_code oError = LastError();
    if (oError.value() != ERROR_BROKEN_PIPE) {
      return oError;
    }
  }
  nRead = nTaken;
  return {};
}

std::error_code WriteAll(int nHandle, std::string_view sContent) {
  while (!sContent.empty()) {
    DWORD nWritten = 0;
    if (::WriteFile(HandleOf(nHandle), sContent.data(), PieceOf(sContent.size()), &nWritten,
                    nullptr) == FALSE) {
      return LastError();
    }
    sContent.remove_prefix(nWritten);
  }
  return {};
}

bool IsTerminal(int nHandle) {
  DWORD nMode = 0;
  return ::GetConsoleMode(HandleOf(nHandle), &nMode) != FALSE;
}

void ReportFailedWrites() {}  // no signal to silence here

}  // namespace quillet
