#include "platform/windows/WinInetInternet.h"

#include <future>
#include <system_error>
#include <thread>
#include <utility>
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
constexpr std::chrono::milliseconds kToLetGo{500};  // of a handle that was closed

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

/// The length that an HTTP server has announced; 0 if it hasn't.
std::uint64_t AnnouncedLength(HINTERNET hRequest) {
  DWORD nLength = 0;
  DWORD nSize = sizeof(nLength);
  const BOOL bFound = ::HttpQueryInfoW(hRequest, HTTP_QUERY_CONTENT_LENGTH | HTTP_QUERY_FLAG_NUMBER,
                                       &nLength, &nSize, nullptr);
  return bFound != FALSE ? nLength : 0;
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
  const DWORD nLast = ::GetLastError();
  const DWORD nError = nLast != 0 ? nLast : ERROR_INTERNET_INTERNAL_ERROR;  // 0 is success
  return {.nError = nError,
          .sResponse = nError == ERROR_INTERNET_EXTENDED_ERROR ? ServerResponse() : std::string()};
}

WinInetInternet::Outcome WinInetInternet::Opened(void* pHandle) {
  Outcome oOutcome = OutcomeOf(pHandle != nullptr);
  oOutcome.pOpened = pHandle;
  return oOutcome;
}

WinInetInternet::Outcome WinInetInternet::Await(InternetHandle hHandle,
                                                std::chrono::milliseconds oLimit, Call fnCall) {
  const auto iItem = m_aoItems.find(hHandle);
  if (iItem == m_aoItems.end() || iItem->second.pHandle == nullptr) {
    return m_oLast = {ERROR_INVALID_HANDLE};
  }
  void*& pHandle = iItem->second.pHandle;
  std::packaged_task<Outcome()> oTask(
      [fnCall = std::move(fnCall), pHandle] { return fnCall(pHandle); });
  std::future<Outcome> oFuture = oTask.get_future();
  std::thread(std::move(oTask)).detach();
  auto oEnd = Clock::now() + oLimit;
  while (oFuture.wait_for(kPumpEvery) != std::future_status::ready) {
    TheHost().PumpEvents();
    if (Clock::now() > oEnd) {
      if (pHandle == nullptr) {
        return m_oLast = {ERROR_INTERNET_TIMEOUT};
      }
      ::InternetCloseHandle(std::exchange(pHandle, nullptr));
      oEnd += kToLetGo;
    }
  }
  Outcome oOutcome = oFuture.get();
  if (oOutcome.nError != 0) {
    m_oLast = oOutcome;
  }
  return oOutcome;
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
  const Outcome oOutcome = Await(
      hInternet, m_oLimits.oConnect,
      [sHost = Wide(sHost), nPort, sUser = Wide(sUser), sPassword = Wide(sPassword),
       eService](void* pInternet) {
        return Opened(::InternetConnectW(pInternet, sHost.c_str(), nPort, sUser.c_str(),
                                         sPassword.c_str(), static_cast<DWORD>(eService), 0, 0));
      });
  return oOutcome.nError == 0 ? Keep(oOutcome.pOpened, hInternet) : 0;
}

bool WinInetInternet::SetDirectory(InternetHandle hFtp, const std::string& sDirectory) {
  const Outcome oOutcome =
      Await(hFtp, m_oLimits.oStall, [sDirectory = Wide(sDirectory)](void* pFtp) {
        return OutcomeOf(::FtpSetCurrentDirectoryW(pFtp, sDirectory.c_str()) != FALSE);
      });
  return oOutcome.nError == 0;
}

WinInetInternet::Outcome WinInetInternet::ReadAll(void* pHandle, std::uint64_t nAnnounced,
                                                  const InternetLimits& oLimits) {
  Outcome oOutcome;
  std::string& sContent = oOutcome.sContent;
  std::vector<char> acPiece(65536);
  DWORD nRead = 0;
  do {
    if (::InternetReadFile(pHandle, acPiece.data(), static_cast<DWORD>(acPiece.size()), &nRead) ==
        FALSE) {
      return OutcomeOf(false);
    }
    if (nRead > oLimits.nLargest - sContent.size()) {
      return {.nError = ERROR_FILE_TOO_LARGE};
    }
    sContent.append(acPiece.data(), nRead);
  } while (nRead != 0);
  if (sContent.size() < nAnnounced) {
    oOutcome.nError = ERROR_INTERNET_CONNECTION_ABORTED;
  }
  return oOutcome;
}

WinInetInternet::Outcome WinInetInternet::Find(void* pFtp, const std::wstring& sRemoteFile) {
  WIN32_FIND_DATAW oFound{};
  Outcome oOutcome =
      Opened(::FtpFindFirstFileW(pFtp, sRemoteFile.c_str(), &oFound, INTERNET_FLAG_RELOAD, 0));
  if (oOutcome.nError == 0) {
    oOutcome.nSize = std::uint64_t{oFound.nFileSizeHigh} << 32U | oFound.nFileSizeLow;
    // While it is open, the session takes no other call.
    ::InternetCloseHandle(std::exchange(oOutcome.pOpened, nullptr));
  }
  return oOutcome;
}

WinInetInternet::Outcome WinInetInternet::Fetch(void* pFtp, const std::wstring& sRemoteFile,
                                                TransferType eType, const InternetLimits& oLimits) {
  const Outcome oFound = Find(pFtp, sRemoteFile);
  if (oFound.nError != 0) {
    return oFound;
  }
  const Outcome oFile = Opened(::FtpOpenFileW(pFtp, sRemoteFile.c_str(), GENERIC_READ,
                                              static_cast<DWORD>(eType) | INTERNET_FLAG_RELOAD, 0));
  if (oFile.nError != 0) {
    return oFile;
  }
  Outcome oOutcome = ReadAll(oFile.pOpened, oFound.nSize, oLimits);
  // Here the server may tell that it was not all.
  const Outcome oClosed = OutcomeOf(::InternetCloseHandle(oFile.pOpened) != FALSE);
  return oOutcome.nError == 0 && oClosed.nError != 0 ? oClosed : oOutcome;
}

bool WinInetInternet::GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                              const std::string& sLocalFile, TransferType eType) {
  const Outcome oOutcome =
      Await(hFtp, m_oLimits.oWhole,
            [sRemoteFile = Wide(sRemoteFile), eType, oLimits = m_oLimits](void* pFtp) {
              return Fetch(pFtp, sRemoteFile, eType, oLimits);
            });
  if (oOutcome.nError != 0) {
    return false;
  }
  const std::error_code oError = ReplaceFile(sLocalFile, oOutcome.sContent);
  if (oError) {
    m_oLast = {.nError = static_cast<DWORD>(oError.value())};
  }
  return !oError;
}

bool WinInetInternet::FindFile(InternetHandle hFtp, const std::string& sRemoteFile,
                               std::uint64_t& nSize) {
  const Outcome oOutcome =
      Await(hFtp, m_oLimits.oStall,
            [sRemoteFile = Wide(sRemoteFile)](void* pFtp) { return Find(pFtp, sRemoteFile); });
  nSize = oOutcome.nSize;
  return oOutcome.nError == 0;
}

InternetHandle WinInetInternet::OpenRequest(InternetHandle hHttp, const std::string& sRequest) {
  const Outcome oOutcome = Await(hHttp, m_oLimits.oStall, [sRequest = Wide(sRequest)](void* pHttp) {
    return Opened(::HttpOpenRequestW(pHttp, L"GET", sRequest.c_str(), L"HTTP/1.0", nullptr, nullptr,
                                     INTERNET_FLAG_RELOAD, 0));
  });
  return oOutcome.nError == 0 ? Keep(oOutcome.pOpened, hHttp) : 0;
}

bool WinInetInternet::SendRequest(InternetHandle hRequest) {
  Outcome oOutcome = Await(hRequest, m_oLimits.oWhole, [oLimits = m_oLimits](void* pRequest) {
    return ::HttpSendRequestW(pRequest, nullptr, 0, nullptr, 0) == FALSE
               ? OutcomeOf(false)
               : ReadAll(pRequest, AnnouncedLength(pRequest), oLimits);
  });
  if (oOutcome.nError == 0) {
    m_aoItems[hRequest].oAnswer = HttpAnswer(std::move(oOutcome.sContent));
  }
  return oOutcome.nError == 0;
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

std::unique_ptr<Internet> PlatformInternet(InternetLimits oLimits) {
  return std::make_unique<WinInetInternet>(oLimits);
}

}  // namespace quillet
