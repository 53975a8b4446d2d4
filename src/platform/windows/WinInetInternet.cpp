#include "platform/windows/WinInetInternet.h"

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

NetOutcome WinInetInternet::Await(InternetHandle hHandle, std::chrono::milliseconds oLimit,
                                  Call fnCall) {
  const auto iItem = m_aoItems.find(hHandle);
  if (iItem == m_aoItems.end() || iItem->second.pHandle == nullptr) {
    return m_oLast = {ERROR_INVALID_HANDLE};
  }
  if (Pass().IsOver()) {
    return m_oLast = {ERROR_INTERNET_TIMEOUT};
  }
  void*& pHandle = iItem->second.pHandle;
  std::packaged_task<NetOutcome()> oTask(
      [fnCall = std::move(fnCall), pHandle] { return fnCall(pHandle); });
  std::future<NetOutcome> oFuture = oTask.get_future();
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
  NetOutcome oOutcome = oFuture.get();
  if (pHandle == nullptr) {
    oOutcome = {ERROR_INTERNET_TIMEOUT};  // whatever the call says of its handle
  }
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
  const NetOutcome oOutcome = Await(
      hInternet, m_oLimits.oConnect,
      [sHost = Wide(sHost), nPort, sUser = Wide(sUser), sPassword = Wide(sPassword),
       eService](void* pInternet) {
        return Opened(::InternetConnectW(pInternet, sHost.c_str(), nPort, sUser.c_str(),
                                         sPassword.c_str(), static_cast<DWORD>(eService), 0, 0));
      });
  return oOutcome.nError == 0 ? Keep(oOutcome.pOpened, hInternet) : 0;
}

bool WinInetInternet::SetDirectory(InternetHandle hFtp, const std::string& sDirectory) {
  const NetOutcome oOutcome =
      Await(hFtp, m_oLimits.oStall, [sDirectory = Wide(sDirectory)](void* pFtp) {
        return OutcomeOf(::FtpSetCurrentDirectoryW(pFtp, sDirectory.c_str()) != FALSE);
      });
  return oOutcome.nError == 0;
}

bool WinInetInternet::GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                              const std::string& sLocalFile, TransferType eType) {
  const NetOutcome oOutcome =
      Await(hFtp, m_oLimits.oPass,
            [sRemoteFile = Wide(sRemoteFile), eType, oLimits = m_oLimits](void* pFtp) {
              return FtpFetch(pFtp, sRemoteFile, eType, oLimits);
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
  const NetOutcome oOutcome =
      Await(hFtp, m_oLimits.oStall,
            [sRemoteFile = Wide(sRemoteFile)](void* pFtp) { return FtpFind(pFtp, sRemoteFile); });
  nSize = oOutcome.nSize;
  return oOutcome.nError == 0;
}

InternetHandle WinInetInternet::OpenRequest(InternetHandle hHttp, const std::string& sRequest) {
  const NetOutcome oOutcome =
      Await(hHttp, m_oLimits.oStall, [sRequest = Wide(sRequest)](void* pHttp) {
        return Opened(::HttpOpenRequestW(pHttp, L"GET", sRequest.c_str(), L"HTTP/1.0", nullptr,
                                         nullptr, kRequestFlags, 0));
      });
  return oOutcome.nError == 0 ? Keep(oOutcome.pOpened, hHttp) : 0;
}

/// The platform could follow redirects itself, but would follow more of them.
NetOutcome WinInetInternet::Follow(InternetHandle hRequest, NetOutcome oOutcome) {
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
                       NetOutcome oAnswer = ReadAnswer(pRequest, oLimits);
                       ::InternetCloseHandle(pRequest);
                       return oAnswer;
                     });
  }
  return oOutcome;
}

bool WinInetInternet::SendRequest(InternetHandle hRequest) {
  NetOutcome oOutcome = Await(hRequest, m_oLimits.oPass, [oLimits = m_oLimits](void* pRequest) {
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
