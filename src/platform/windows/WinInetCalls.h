// The calls of WinINet that may block, each with its outcome as a value, so that it can run on a
// thread of its own.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Internet.h"

namespace quillet {

/// How a call ended: the platform's error number (0 for none), the server's words, and what the
/// call gave.
struct NetOutcome {
  unsigned long nError = 0;
  std::string sResponse;
  void* pOpened = nullptr;
  std::string sContent;
  std::wstring sLocation;  ///< where an HTTP answer redirects to
  std::uint64_t nSize = 0;
};

/// Of the call that has just ended on this thread, as the system reports it.
[[nodiscard]] NetOutcome OutcomeOf(bool bDone);

/// Of a call that opens something: a handle that the caller must close, or null.
[[nodiscard]] NetOutcome Opened(void* pHandle);

/// The content that an HTTP request gets, and where it redirects to.
[[nodiscard]] NetOutcome ReadAnswer(void* pRequest, const InternetLimits& oLimits);

/// The size of a file on an FTP server.
[[nodiscard]] NetOutcome FtpFind(void* pFtp, const std::wstring& sRemoteFile);

/// The content of one.
[[nodiscard]] NetOutcome FtpFetch(void* pFtp, const std::wstring& sRemoteFile, TransferType eType,
                                  const InternetLimits& oLimits);

}  // namespace quillet
