#include "platform/windows/WinInetCalls.h"

#include <array>
#include <utility>
#include <vector>

#include <windows.h>
#include <wininet.h>

#include "platform/windows/wide.h"

namespace quillet {
namespace {

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

/// Reads to the end. A transfer that breaks off looks like one that ends, so fewer bytes than
/// announced are a failure.
NetOutcome ReadAll(void* pHandle, std::uint64_t nAnnounced, const InternetLimits& oLimits) {
  NetOutcome oOutcome;
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

}  // namespace

NetOutcome OutcomeOf(bool bDone) {
  if (bDone) {
    return {};
  }
  const DWORD nLast = ::GetLastError();
  const DWORD nError = nLast != 0 ? nLast : ERROR_INTERNET_INTERNAL_ERROR;  // 0 is success
  return {.nError = nError,
          .sResponse = nError == ERROR_INTERNET_EXTENDED_ERROR ? ServerResponse() : std::string()};
}

NetOutcome Opened(void* pHandle) {
  NetOutcome oOutcome = OutcomeOf(pHandle != nullptr);
  oOutcome.pOpened = pHandle;
  return oOutcome;
}

NetOutcome FtpFind(void* pFtp, const std::wstring& sRemoteFile) {
  WIN32_FIND_DATAW oFound{};
  NetOutcome oOutcome =
      Opened(::FtpFindFirstFileW(pFtp, sRemoteFile.c_str(), &oFound, INTERNET_FLAG_RELOAD, 0));
  if (oOutcome.nError == 0) {
    oOutcome.nSize = std::uint64_t{oFound.nFileSizeHigh} << 32U | oFound.nFileSizeLow;
    // While it is open, the session accepts no other call.
    ::InternetCloseHandle(std::exchange(oOutcome.pOpened, nullptr));
  }
  return oOutcome;
}

NetOutcome FtpFetch(void* pFtp, const std::wstring& sRemoteFile, TransferType eType,
                    const InternetLimits& oLimits) {
  const NetOutcome oFound = FtpFind(pFtp, sRemoteFile);
  if (oFound.nError != 0) {
    return oFound;
  }
  const NetOutcome oFile =
      Opened(::FtpOpenFileW(pFtp, sRemoteFile.c_str(), GENERIC_READ,
                            static_cast<DWORD>(eType) | INTERNET_FLAG_RELOAD, 0));
  if (oFile.nError != 0) {
    return oFile;
  }
  NetOutcome oOutcome = ReadAll(oFile.pOpened, oFound.nSize, oLimits);
  // Only here may the server report that the file was cut off.
  const NetOutcome oClosed = OutcomeOf(::InternetCloseHandle(oFile.pOpened) != FALSE);
  return oOutcome.nError == 0 && oClosed.nError != 0 ? oClosed : oOutcome;
}

NetOutcome ReadAnswer(void* pRequest, const InternetLimits& oLimits) {
  NetOutcome oOutcome = ReadAll(pRequest, HeadNumber(pRequest, HTTP_QUERY_CONTENT_LENGTH), oLimits);
  oOutcome.sLocation = Location(pRequest);
  return oOutcome;
}

}  // namespace quillet
