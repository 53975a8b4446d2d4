#include "platform/posix/CurlInternet.h"

#include <algorithm>
#include <utility>

#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

#include "platform/Files.h"

namespace quillet {
namespace {

/// A path for a URL: each part between the "/" is escaped, and so is a leading "/".
std::string EscapePath(const std::string& sPath) {
  std::string sEscaped = sPath.starts_with('/') ? "%2F" : "";
  std::size_t nStart = sPath.starts_with('/') ? 1 : 0;
  while (nStart <= sPath.size()) {
    const std::size_t nEnd = std::min(sPath.find('/', nStart), sPath.size());
    if (nEnd > nStart) {
      const std::unique_ptr<char, decltype(&curl_free)> oPart(
          curl_easy_escape(nullptr, &sPath[nStart], static_cast<int>(nEnd - nStart)), &curl_free);
      sEscaped += oPart.get();
    }
    sEscaped += nEnd < sPath.size() ? "/" : "";
    nStart = nEnd + 1;
  }
  return sEscaped;
}

bool HasAddress(const ifaddrs& oInterface) {
  return oInterface.ifa_addr != nullptr &&
         (oInterface.ifa_addr->sa_family == AF_INET || oInterface.ifa_addr->sa_family == AF_INET6);
}

}  // namespace

bool CurlInternet::IsConnected() {
  ifaddrs* pFirst = nullptr;
  if (::getifaddrs(&pFirst) != 0) {
    return true;  // unknown: the attempt will show
  }
  const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> oInterfaces(pFirst, &::freeifaddrs);
  bool bOutside = false;
  bool bInside = false;
  bool bOnlyInside = true;
  for (const ifaddrs* p = pFirst; p != nullptr; p = p->ifa_next) {
    const bool bLoopback = (p->ifa_flags & IFF_LOOPBACK) != 0;
    const bool bWorks =
        HasAddress(*p) && (p->ifa_flags & IFF_UP) != 0 && (p->ifa_flags & IFF_RUNNING) != 0;
    bOutside = bOutside || (bWorks && !bLoopback);
    bInside = bInside || (bWorks && bLoopback);
    // Tunnel ends and the like have IFF_NOARP; they aren't a way out of the machine.
    bOnlyInside = bOnlyInside && (bLoopback || (p->ifa_flags & IFF_NOARP) != 0);
  }
  return bOutside || (bInside && bOnlyInside);
}

InternetHandle CurlInternet::Open(const std::string& sAgent, InternetAccess eAccess,
                                  const std::string& sProxy) {
  Pass().Begin();
  m_sAgent = sAgent;
  m_sProxy = eAccess == InternetAccess::Proxy ? sProxy : "";
  m_hInternet = ++m_hLast;
  return m_hInternet;
}

InternetHandle CurlInternet::Connect(InternetHandle /*hInternet*/, const std::string& sHost,
                                     std::uint16_t nPort, const std::string& sUser,
                                     const std::string& sPassword, InternetService eService) {
  const InternetHandle hSession = ++m_hLast;
  Session& oSession = m_aoSessions[hSession];
  oSession.oBase = {(eService == InternetService::Ftp ? "ftp://" : "http://") + sHost + ":" +
                        std::to_string(nPort) + "/",
                    sUser, sPassword, m_sAgent, m_sProxy};
  if (eService == InternetService::Ftp && !SetDirectory(hSession, "")) {
    m_aoSessions.erase(hSession);
    return 0;
  }
  return hSession;
}

template <typename Change>
TransferResult CurlInternet::Run(InternetHandle hSession, Change&& fnChange) {
  const auto iSession = m_aoSessions.find(hSession);
  if (iSession == m_aoSessions.end()) {
    Fail("The session isn't open.");
    return {};
  }
  TransferRequest oRequest = iSession->second.oBase;
  std::forward<Change>(fnChange)(oRequest);
  TransferResult oResult = iSession->second.oConnections.Run(oRequest, m_oLimits, Pass());
  if (!oResult.bDone) {
    Fail(oResult.sError);
    m_bExtendedError = oResult.bRefused;
    m_sLastResponse = oResult.sResponse;
  }
  return oResult;
}

void CurlInternet::Fail(const std::string& sError) {
  m_bExtendedError = false;
  m_sLastResponse.clear();
  m_sLastError = sError;
}

bool CurlInternet::SetDirectory(InternetHandle hFtp, const std::string& sDirectory) {
  std::string sUrl;
  const TransferResult oResult = Run(hFtp, [&](TransferRequest& oRequest) {
    oRequest.sUrl += EscapePath(sDirectory);
    oRequest.sUrl += oRequest.sUrl.ends_with('/') ? "" : "/";
    oRequest.bBody = false;
    sUrl = oRequest.sUrl;
  });
  if (oResult.bDone) {
    m_aoSessions.at(hFtp).oBase.sUrl = sUrl;
  }
  return oResult.bDone;
}

bool CurlInternet::GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                           const std::string& sLocalFile, TransferType eType) {
  const TransferResult oResult = Run(hFtp, [&](TransferRequest& oRequest) {
    oRequest.sUrl += EscapePath(sRemoteFile);
    oRequest.bAsciiType = eType == TransferType::Ascii;
  });
  if (!oResult.bDone) {
    return false;
  }
  const std::error_code oError = ReplaceFile(sLocalFile, oResult.sBody);
  if (oError) {
    Fail(oError.message());
  }
  return !oError;
}

bool CurlInternet::FindFile(InternetHandle hFtp, const std::string& sRemoteFile,
                            std::uint64_t& nSize) {
  const TransferResult oResult = Run(hFtp, [&](TransferRequest& oRequest) {
    oRequest.sUrl += EscapePath(sRemoteFile);
    oRequest.bBody = false;
  });
  const bool bFound = oResult.bDone && oResult.nSize >= 0;
  nSize = bFound ? static_cast<std::uint64_t>(oResult.nSize) : 0;
  return bFound;
}

InternetHandle CurlInternet::OpenRequest(InternetHandle hHttp, const std::string& sRequest) {
  m_aoRequests[++m_hLast] = {hHttp, sRequest, {}};
  return m_hLast;
}

bool CurlInternet::SendRequest(InternetHandle hRequest) {
  const auto iRequest = m_aoRequests.find(hRequest);
  if (iRequest == m_aoRequests.end()) {
    Fail("The request isn't open.");
    return false;
  }
  TransferResult oResult = Run(iRequest->second.hHttp, [&](TransferRequest& oRequest) {
    oRequest.sUrl += iRequest->second.sPath;
  });
  iRequest->second.oAnswer = HttpAnswer(std::move(oResult.sBody));
  return oResult.bDone;
}

std::size_t CurlInternet::DataAvailable(InternetHandle hRequest) {
  const auto iRequest = m_aoRequests.find(hRequest);
  return iRequest == m_aoRequests.end() ? 0 : iRequest->second.oAnswer.Available();
}

std::size_t CurlInternet::Read(InternetHandle hRequest, char* pBuffer, std::size_t nSize) {
  const auto iRequest = m_aoRequests.find(hRequest);
  return iRequest == m_aoRequests.end() ? 0 : iRequest->second.oAnswer.Take(pBuffer, nSize);
}

void CurlInternet::Close(InternetHandle hHandle) {
  m_aoRequests.erase(hHandle);
  std::erase_if(m_aoRequests, [&](const auto& o) { return o.second.hHttp == hHandle; });
  m_aoSessions.erase(hHandle);
  if (hHandle == m_hInternet) {
    m_aoRequests.clear();
    m_aoSessions.clear();
    m_hInternet = 0;
  }
}

std::unique_ptr<Internet> PlatformInternet(InternetLimits oLimits) {
  return std::make_unique<CurlInternet>(oLimits);
}

}  // namespace quillet
