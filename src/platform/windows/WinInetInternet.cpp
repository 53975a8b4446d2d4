#include "platform/windows/WinInetInternet.h"

#include <array>
#include <future>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>
#include <wininet.h>

#undef ReplaceFile  // the system's macro

#include "platform/Files.h"
#include "platform/Host.h"
#include "platform/windows/wide.h"

namespace quillet {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPumpEvery{10};
constexpr std::chrono::milliseconds kToLetGo{500};  // for a call to end once its handle is closed
constexpr DWORD kRequestFlags = INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_AUTO_REDIRECT;

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

/// A number from the headers of an HTTP answer; 0 if it isn't there.
DWORD HeadNumber(HINTERNET hRequest, DWORD nWhich) {
  DWORD nNumber = 0;
  DWORD nSize = sizeof(nNumber);
  const BOOL bFound =
      ::HttpQueryInfoW(hRequest, nWhich | HTTP_QUERY_FLAG_NUMBER, &nNumber, &nSize, nullptr);
  return bFound != FALSE ? nNumber : 0;
}

/// The URL that an HTTP answer redirects to; empty if it doesn't.
std::wstring Location(HINTERNET hRequest) {
  std::array<wchar_t, INTERNET_MAX_URL_LENGTH> acTo{};
  std::array<wchar_t, INTERNET_MAX_URL_LENGTH> acFrom{};
  std::array<wchar_t, INTERNET_MAX_URL_LENGTH> acWhole{};
  auto nBytes = static_cast<DWORD>(sizeof(acTo));
  if (HeadNumber(hRequest, HTTP_QUERY_STATUS_CODE) / 100 != 3 ||
      ::HttpQueryInfoW(hRequest, HTTP_QUERY_LOCATION, acTo.data(), &nBytes, nullptr) == FALSE) {
    return {};
  }
  nBytes = static_cast<DWORD>(sizeof(acFrom));
  ::InternetQueryOptionW(hRequest, INTERNET_OPTION_URL, acFrom.data(), &nBytes);
  auto nLength = static_cast<DWORD>(acWhole.size());
  const BOOL bWhole =
      ::InternetCombineUrlW(acFrom.data(), acTo.data(), acWhole.data(), &nLength, 0);
  return bWhole != FALSE ? acWhole.data() : acTo.data();
}

bool IsOfTheWeb(const std::wstring& sUrl) {
  URL_COMPONENTSW oParts{};
  oParts.dwStructSize = sizeof(oParts);
  return ::InternetCrackUrlW(sUrl.c_str(), 0, 0, &oParts) != FALSE &&
         (oParts.nScheme == INTERNET_SCHEME_HTTP || oParts.nScheme == INTERNET_SCHEME_HTTPS);
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
  if (Pass().IsOver()) {
    return m_oLast = {ERROR_INTERNET_TIMEOUT};
  }
  void*& pHandle = iItem->second.pHandle;
  std::packaged_task<Outcome()> oTask(
      [fnCall = std::move(fnCall), pHandle] { return fnCall(pHandle); });
  std::future<Outcome> oFuture = oTask.get_future();
  std::thread(std::move(oTask)).detach();
  auto oEnd = Clock::now() + oLimit;
  while (oFuture.wait_for(kPumpEvery) != std::future_status::ready) {
    TheHost().PumpEvents();
    const bool bTooLong = Clock::now() > oEnd;
    if (bTooLong && pHandle == nullptr) {
      return m_oLast = {ERROR_INTERNET_TIMEOUT};
    }
    if (pHandle != nullptr && (bTooLong || Pass().IsOver())) {
      ::InternetCloseHandle(std::exchange(pHandle, nullptr));
      oEnd = Clock::now() + kToLetGo;
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
  Pass().Begin();
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
    // While it is open, the session accepts no other call.
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
  // Only here may the server report that the file was cut off.
  const Outcome oClosed = OutcomeOf(::InternetCloseHandle(oFile.pOpened) != FALSE);
  return oOutcome.nError == 0 && oClosed.nError != 0 ? oClosed : oOutcome;
}

bool WinInetInternet::GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                              const std::string& sLocalFile, TransferType eType) {
  const Outcome oOutcome =
      Await(hFtp, m_oLimits.oPass,
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
                                     kRequestFlags, 0));
  });
  return oOutcome.nError == 0 ? Keep(oOutcome.pOpened, hHttp) : 0;
}

WinInetInternet::Outcome WinInetInternet::ReadAnswer(void* pRequest,
                                                     const InternetLimits& oLimits) {
  Outcome oOutcome = ReadAll(pRequest, HeadNumber(pRequest, HTTP_QUERY_CONTENT_LENGTH), oLimits);
  oOutcome.sLocation = Location(pRequest);
  return oOutcome;
}

/// The platform could follow redirects itself, but would follow more of them.
WinInetInternet::Outcome WinInetInternet::Follow(InternetHandle hRequest, Outcome oOutcome) {
  for (int n = 0; oOutcome.nError == 0 && !oOutcome.sLocation.empty(); ++n) {
    if (n == kMostRedirects || !IsOfTheWeb(oOutcome.sLocation)) {
      return m_oLast = {.nError = ERROR_HTTP_REDIRECT_FAILED};
    }
    const InternetHandle hInternet = m_aoItems[m_aoItems[hRequest].hOwner].hOwner;
    oOutcome = Await(hInternet, m_oLimits.oPass,
                     [sUrl = oOutcome.sLocation, oLimits = m_oLimits](void* pInternet) {
                       void* const pRequest = ::InternetOpenUrlW(pInternet, sUrl.c_str(), nullptr,
                                                                 0, kRequestFlags, 0);
                       if (pRequest == nullptr) {
                         return OutcomeOf(false);
                       }
                       Outcome oAnswer = ReadAnswer(pRequest, oLimits);
                       ::InternetCloseHandle(pRequest);
                       return oAnswer;
                     });
  }
  return oOutcome;
}

bool WinInetInternet::SendRequest(InternetHandle hRequest) {
  Outcome oOutcome = Await(hRequest, m_oLimits.oPass, [oLimits = m_oLimits](void* pRequest) {
    return ::HttpSendRequestW(pRequest, nullptr, 0, nullptr, 0) == FALSE
               ? OutcomeOf(false)
               : ReadAnswer(pRequest, oLimits);
  });
  oOutcome = Follow(hRequest, std::move(oOutcome));
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
