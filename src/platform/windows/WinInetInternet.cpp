#include "platform/windows/WinInetInternet.h"

#include <future>
#include <system_error>
#include <vector>

#include <windows.h>
#include <wininet.h>

#undef ReplaceFile  // the system's name for something else

#include "platform/Files.h"
#include "platform/Host.h"
#include "platform/windows/wide.h"

namespace quillet {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPumpEvery{10};

/// What an FTP server said last, to a call on this thread.
std::string ServerResponse() {
  DWORD nError = 0;
  DWORD nLength = 0;
  ::InternetGetLastResponseInfoW(&nError, nullptr, &nLength);
  std::wstring sWide(nLength + 1U, L'\0');
  nLength = static_cast<DWORD>(sWide.size());
  if (::InternetGetLastResponseInfoW(&nError, sWide.data(), &nLength) == FALSE) {
    return {};
  }
  sWide.resize(nLength);
  sWide.erase(sWide.find_last_not_of(L"\r\n") + 1);
  return Narrow(sWide);
}

/// The length that an HTTP server has announced; -1 if it hasn't.
std::int64_t AnnouncedLength(HINTERNET hRequest) {
  DWORD nLength = 0;
  DWORD nSize = sizeof(nLength);
  const BOOL bFound = ::HttpQueryInfoW(hRequest, HTTP_QUERY_CONTENT_LENGTH | HTTP_QUERY_FLAG_NUMBER,
                                       &nLength, &nSize, nullptr);
  return bFound != FALSE ? static_cast<std::int64_t>(nLength) : -1;
}

}  // namespace

WinInetInternet::~WinInetInternet() {
  while (!m_aoItems.empty()) {
    Close(m_aoItems.begin()->first);
  }
}

WinInetInternet::Outcome WinInetInternet::OutcomeOf(bool bDone) {
  if (bDone) {
    return {};
  }
  const DWORD nError = ::GetLastError();
  return {nError, nError == ERROR_INTERNET_EXTENDED_ERROR ? ServerResponse() : std::string()};
}

bool WinInetInternet::Await(InternetHandle hHandle, std::chrono::milliseconds oLimit,
                            const std::function<Outcome(void*)>& fnCall) {
  const auto iItem = m_aoItems.find(hHandle);
  if (iItem == m_aoItems.end() || iItem->second.pHandle == nullptr) {
    m_oLast = {ERROR_INVALID_HANDLE, {}};
    return false;
  }
  const auto oEnd = Clock::now() + oLimit;
  std::future<Outcome> oOutcome = std::async(std::launch::async, fnCall, iItem->second.pHandle);
  while (oOutcome.wait_for(kPumpEvery) != std::future_status::ready) {
    TheHost().PumpEvents();
    if (Clock::now() > oEnd && iItem->second.pHandle != nullptr) {
      ::InternetCloseHandle(iItem->second.pHandle);
      iItem->second.pHandle = nullptr;
    }
  }
  const Outcome oResult = oOutcome.get();
  if (oResult.nError != 0) {
    m_oLast = oResult;
  }
  return oResult.nError == 0;
}

InternetHandle WinInetInternet::Keep(void* pHandle, InternetHandle hOwner) {
  m_aoItems[++m_hLast] = {pHandle, hOwner, {}};
  return m_hLast;
}

void WinInetInternet::SetLimits(void* pHandle) const {
  const auto fnSet = [&](DWORD nOption, std::int64_t nValue) {
    auto nNumber = static_cast<DWORD>(nValue);
    ::InternetSetOptionW(pHandle, nOption, &nNumber, sizeof(nNumber));
  };
  fnSet(INTERNET_OPTION_CONNECT_RETRIES, 1);
  fnSet(INTERNET_OPTION_CONNECT_TIMEOUT, m_oLimits.oConnect.count());
  fnSet(INTERNET_OPTION_SEND_TIMEOUT, m_oLimits.oStall.count());
  fnSet(INTERNET_OPTION_RECEIVE_TIMEOUT, m_oLimits.oStall.count());
  fnSet(INTERNET_OPTION_DATA_SEND_TIMEOUT, m_oLimits.oStall.count());
  fnSet(INTERNET_OPTION_DATA_RECEIVE_TIMEOUT, m_oLimits.oStall.count());
}

bool WinInetInternet::IsConnected() {
  DWORD nFlags = 0;
  return ::InternetGetConnectedState(&nFlags, 0) != FALSE;
}

InternetHandle WinInetInternet::Open(const std::string& sAgent, InternetAccess eAccess,
                                     const std::string& sProxy) {
  const bool bProxy = eAccess == InternetAccess::Proxy;
  void* const pHandle = ::InternetOpenW(Wide(sAgent).c_str(), static_cast<DWORD>(eAccess),
                                        bProxy ? Wide(sProxy).c_str() : nullptr, nullptr, 0);
  if (pHandle == nullptr) {
    m_oLast = OutcomeOf(false);
    return 0;
  }
  SetLimits(pHandle);
  return Keep(pHandle, 0);
}

InternetHandle WinInetInternet::Connect(InternetHandle hInternet, const std::string& sHost,
                                        std::uint16_t nPort, const std::string& sUser,
                                        const std::string& sPassword, InternetService eService) {
  if (eService == InternetService::Http && sHost.empty()) {
    return Keep(nullptr, hInternet);
  }
  void* pSession = nullptr;
  const bool bDone = Await(hInternet, m_oLimits.oConnect, [&](void* pInternet) {
    pSession = ::InternetConnectW(pInternet, Wide(sHost).c_str(), nPort, Wide(sUser).c_str(),
                                  Wide(sPassword).c_str(), static_cast<DWORD>(eService), 0, 0);
    return OutcomeOf(pSession != nullptr);
  });
  return bDone ? Keep(pSession, hInternet) : 0;
}

bool WinInetInternet::SetDirectory(InternetHandle hFtp, const std::string& sDirectory) {
  return Await(hFtp, m_oLimits.oStall, [&](void* pFtp) {
    return OutcomeOf(::FtpSetCurrentDirectoryW(pFtp, Wide(sDirectory).c_str()) != FALSE);
  });
}

WinInetInternet::Outcome WinInetInternet::ReadAll(void* pHandle, const InternetLimits& oLimits,
                                                  std::string& sContent) {
  const auto oEnd = Clock::now() + oLimits.oWhole;
  std::vector<char> acPiece(65536);
  DWORD nRead = 0;
  do {
    if (::InternetReadFile(pHandle, acPiece.data(), static_cast<DWORD>(acPiece.size()), &nRead) ==
        FALSE) {
      return OutcomeOf(false);
    }
    if (nRead > oLimits.nLargest - sContent.size()) {
      return {ERROR_FILE_TOO_LARGE, {}};
    }
    if (Clock::now() > oEnd) {
      return {ERROR_INTERNET_TIMEOUT, {}};
    }
    sContent.append(acPiece.data(), nRead);
  } while (nRead != 0);
  return {};
}

bool WinInetInternet::GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                              const std::string& sLocalFile, TransferType eType) {
  std::string sContent;
  const bool bFetched = Await(hFtp, m_oLimits.oWhole, [&](void* pFtp) {
    const HINTERNET hFile = ::FtpOpenFileW(pFtp, Wide(sRemoteFile).c_str(), GENERIC_READ,
                                           static_cast<DWORD>(eType) | INTERNET_FLAG_RELOAD, 0);
    if (hFile == nullptr) {
      return OutcomeOf(false);
    }
    Outcome oOutcome = ReadAll(hFile, m_oLimits, sContent);
    // Here the server tells whether that was all.
    const bool bClosed = ::InternetCloseHandle(hFile) != FALSE;
    return oOutcome.nError != 0 ? oOutcome : OutcomeOf(bClosed);
  });
  if (!bFetched) {
    return false;
  }
  const std::error_code oError = ReplaceFile(sLocalFile, sContent);
  if (oError) {
    m_oLast = {static_cast<DWORD>(oError.value()), {}};
  }
  return !oError;
}

bool WinInetInternet::FindFile(InternetHandle hFtp, const std::string& sRemoteFile,
                               std::uint64_t& nSize) {
  WIN32_FIND_DATAW oFound{};
  const bool bFound = Await(hFtp, m_oLimits.oStall, [&](void* pFtp) {
    const HINTERNET hFind =
        ::FtpFindFirstFileW(pFtp, Wide(sRemoteFile).c_str(), &oFound, INTERNET_FLAG_RELOAD, 0);
    const Outcome oOutcome = OutcomeOf(hFind != nullptr);
    ::InternetCloseHandle(hFind);  // while it is open, the session takes no other call
    return oOutcome;
  });
  nSize = bFound ? std::uint64_t{oFound.nFileSizeHigh} << 32U | oFound.nFileSizeLow : 0;
  return bFound;
}

InternetHandle WinInetInternet::OpenRequest(InternetHandle hHttp, const std::string& sRequest) {
  void* pRequest = nullptr;
  const bool bDone = Await(hHttp, m_oLimits.oStall, [&](void* pHttp) {
    pRequest = ::HttpOpenRequestW(pHttp, L"GET", Wide(sRequest).c_str(), L"HTTP/1.0", nullptr,
                                  nullptr, INTERNET_FLAG_RELOAD, 0);
    return OutcomeOf(pRequest != nullptr);
  });
  return bDone ? Keep(pRequest, hHttp) : 0;
}

WinInetInternet::Outcome WinInetInternet::ReadAnswer(void* pRequest, const InternetLimits& oLimits,
                                                     std::string& sContent) {
  if (::HttpSendRequestW(pRequest, nullptr, 0, nullptr, 0) == FALSE) {
    return OutcomeOf(false);
  }
  const std::int64_t nAnnounced = AnnouncedLength(pRequest);
  Outcome oOutcome = ReadAll(pRequest, oLimits, sContent);
  // An answer that breaks off reads like one that ends.
  if (oOutcome.nError == 0 && nAnnounced > static_cast<std::int64_t>(sContent.size())) {
    oOutcome.nError = ERROR_INTERNET_CONNECTION_ABORTED;
  }
  return oOutcome;
}

bool WinInetInternet::SendRequest(InternetHandle hRequest) {
  std::string sContent;
  const bool bDone = Await(hRequest, m_oLimits.oWhole, [&](void* pRequest) {
    return ReadAnswer(pRequest, m_oLimits, sContent);
  });
  if (bDone) {
    m_aoItems[hRequest].oAnswer = HttpAnswer(std::move(sContent));
  }
  return bDone;
}

std::size_t WinInetInternet::DataAvailable(InternetHandle hRequest) {
  const auto iRequest = m_aoItems.find(hRequest);
  return iRequest == m_aoItems.end() ? 0 : iRequest->second.oAnswer.Available();
}

std::size_t WinInetInternet::Read(InternetHandle hRequest, char* pBuffer, std::size_t nSize) {
  const auto iRequest = m_aoItems.find(hRequest);
  return iRequest == m_aoItems.end() ? 0 : iRequest->second.oAnswer.Take(pBuffer, nSize);
}

bool WinInetInternet::IsExtendedError() const {
  return m_oLast.nError == ERROR_INTERNET_EXTENDED_ERROR;
}

std::string WinInetInternet::LastErrorText() const {
  std::wstring sText(512, L'\0');
  const DWORD nLength = ::FormatMessageW(
      FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      ::GetModuleHandleW(L"wininet.dll"), m_oLast.nError, 0, sText.data(),
      static_cast<DWORD>(sText.size()), nullptr);
  sText.resize(nLength);
  sText.erase(sText.find_last_not_of(L"\r\n ") + 1);
  return sText.empty() ? "Error " + std::to_string(m_oLast.nError) : Narrow(sText);
}

void WinInetInternet::Close(InternetHandle hHandle) {
  const auto iItem = m_aoItems.find(hHandle);
  if (iItem == m_aoItems.end()) {
    return;
  }
  std::vector<InternetHandle> ahInner;
  for (const auto& [hInner, oInner] : m_aoItems) {
    if (oInner.hOwner == hHandle) {
      ahInner.push_back(hInner);
    }
  }
  for (const InternetHandle hInner : ahInner) {
    Close(hInner);
  }
  if (iItem->second.pHandle != nullptr) {
    ::InternetCloseHandle(iItem->second.pHandle);
  }
  m_aoItems.erase(iItem);
}

std::unique_ptr<Internet> PlatformInternet() {
  return std::make_unique<WinInetInternet>();
}

}  // namespace quillet
