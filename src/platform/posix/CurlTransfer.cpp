#include "platform/posix/CurlTransfer.h"

#include <algorithm>

#include <sys/socket.h>
#include <unistd.h>

#include "platform/Host.h"

namespace quillet {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPumpEvery = 10;  // milliseconds

/// The state that the callbacks of one transfer share.
struct Progress {
  TransferResult& oResult;
  const InternetLimits& oLimits;
  curl_off_t nReceived = 0;
  Clock::time_point oLastByte = Clock::now();
};

/// Appends a piece of the body; a body beyond the limit ends the transfer.
std::size_t TakeBody(char* pData, std::size_t nOne, std::size_t nCount, void* pProgress) {
  auto& oProgress = *static_cast<Progress*>(pProgress);
  const std::size_t nSize = nOne * nCount;
  if (nSize > oProgress.oLimits.nLargest - oProgress.oResult.sBody.size()) {
    return nSize + 1;  // any count but nSize is an error
  }
  oProgress.oResult.sBody.append(pData, nSize);
  return nSize;
}

/// Keeps the last line of an FTP server's answer; it begins with the answer's three digits.
std::size_t TakeHeader(char* pData, std::size_t nOne, std::size_t nCount, void* pProgress) {
  std::string sLine(pData, nOne * nCount);
  const bool bAnswer = sLine.size() > 3 && std::all_of(sLine.begin(), sLine.begin() + 3,
                                                       [](char c) { return c >= '0' && c <= '9'; });
  if (bAnswer) {
    sLine.erase(sLine.find_last_not_of("\r\n") + 1);
    static_cast<Progress*>(pProgress)->oResult.sResponse = std::move(sLine);
  }
  return nOne * nCount;
}

/// Called many times a second, even while the library waits for an answer on its own.
int EndIfStalled(void* pProgress, curl_off_t /*nAll*/, curl_off_t nReceived, curl_off_t /*nUp*/,
                 curl_off_t /*nUpNow*/) {
  auto& oProgress = *static_cast<Progress*>(pProgress);
  if (nReceived != oProgress.nReceived) {
    oProgress.nReceived = nReceived;
    oProgress.oLastByte = Clock::now();
  }
  return Clock::now() - oProgress.oLastByte > oProgress.oLimits.oStall ? 1 : 0;
}

/// curl_easy_setopt is a variadic C function; it fails only if memory runs out.
template <typename Value>
void Set(CURL* pTransfer, CURLoption eOption, Value oValue) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg)
  (void)curl_easy_setopt(pTransfer, eOption, oValue);
}

void SetLimits(CURL* pTransfer, const InternetLimits& oLimits) {
  Set(pTransfer, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(oLimits.oConnect.count()));
  Set(pTransfer, CURLOPT_NOSIGNAL, 1L);
  Set(pTransfer, CURLOPT_QUICK_EXIT, 1L);  // never wait for a name server that doesn't answer
}

/// Headers that keep caches between here and the server from answering.
const curl_slist* NoCache() {
  static const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> oHeaders(
      curl_slist_append(nullptr, "Pragma: no-cache"), &curl_slist_free_all);
  return oHeaders.get();
}

void SetRequest(CURL* pTransfer, const TransferRequest& oRequest) {
  Set(pTransfer, CURLOPT_URL, oRequest.sUrl.c_str());
  Set(pTransfer, CURLOPT_PROTOCOLS_STR, "ftp,http");
  Set(pTransfer, CURLOPT_FOLLOWLOCATION, 1L);
  Set(pTransfer, CURLOPT_MAXREDIRS, static_cast<long>(kMostRedirects));
  Set(pTransfer, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  Set(pTransfer, CURLOPT_USERAGENT, oRequest.sAgent.c_str());
  Set(pTransfer, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_0));
  Set(pTransfer, CURLOPT_HTTPHEADER, NoCache());
  Set(pTransfer, CURLOPT_NOBODY, oRequest.bBody ? 0L : 1L);
  Set(pTransfer, CURLOPT_TRANSFERTEXT, oRequest.bAsciiType ? 1L : 0L);
  if (!oRequest.sUser.empty()) {
    Set(pTransfer, CURLOPT_USERNAME, oRequest.sUser.c_str());
    Set(pTransfer, CURLOPT_PASSWORD, oRequest.sPassword.c_str());
  }
  if (!oRequest.sProxy.empty()) {
    Set(pTransfer, CURLOPT_PROXY, oRequest.sProxy.c_str());
  }
}

void SetCallbacks(CURL* pTransfer, Progress& oProgress) {
  Set(pTransfer, CURLOPT_WRITEFUNCTION, &TakeBody);
  Set(pTransfer, CURLOPT_WRITEDATA, &oProgress);
  Set(pTransfer, CURLOPT_HEADERFUNCTION, &TakeHeader);
  Set(pTransfer, CURLOPT_HEADERDATA, &oProgress);
  Set(pTransfer, CURLOPT_NOPROGRESS, 0L);
  Set(pTransfer, CURLOPT_XFERINFOFUNCTION, &EndIfStalled);
  Set(pTransfer, CURLOPT_XFERINFODATA, &oProgress);
}

bool IsRefusal(const std::string& sResponse) {
  return sResponse.starts_with('4') || sResponse.starts_with('5');
}

}  // namespace

CurlConnections::CurlConnections() : m_oMulti(nullptr, &curl_multi_cleanup) {
  curl_global_init(CURL_GLOBAL_DEFAULT);
  m_oMulti.reset(curl_multi_init());
}

CurlConnections::~CurlConnections() {
  // The library says goodbye to an FTP server, and would wait for the answer, long and without
  // pumping events.
  for (const curl_socket_t nSocket : m_anSockets) {
    ::shutdown(nSocket, SHUT_RDWR);
  }
  m_oMulti.reset();
  curl_global_cleanup();
}

curl_socket_t CurlConnections::OpenSocket(void* pThis, curlsocktype /*ePurpose*/,
                                          curl_sockaddr* pAddress) {
  const int nSocket =
      ::socket(pAddress->family, pAddress->socktype | SOCK_CLOEXEC, pAddress->protocol);
  if (nSocket < 0) {
    return CURL_SOCKET_BAD;
  }
  static_cast<CurlConnections*>(pThis)->m_anSockets.insert(nSocket);
  return nSocket;
}

int CurlConnections::CloseSocket(void* pThis, curl_socket_t nSocket) {
  static_cast<CurlConnections*>(pThis)->m_anSockets.erase(nSocket);
  return ::close(nSocket);
}

CURLcode CurlConnections::Perform(CURL* pTransfer, const PassTime& oPass) {
  if (oPass.IsOver()) {
    return CURLE_OPERATION_TIMEDOUT;
  }
  if (curl_multi_add_handle(m_oMulti.get(), pTransfer) != CURLM_OK) {
    return CURLE_FAILED_INIT;
  }
  int nRunning = 1;
  CURLMcode eCode = curl_multi_perform(m_oMulti.get(), &nRunning);
  while (eCode == CURLM_OK && nRunning != 0 && !oPass.IsOver()) {
    curl_multi_poll(m_oMulti.get(), nullptr, 0, kPumpEvery, nullptr);
    TheHost().PumpEvents();
    eCode = curl_multi_perform(m_oMulti.get(), &nRunning);
  }
  int nLeft = 0;
  const CURLMsg* const pMessage = curl_multi_info_read(m_oMulti.get(), &nLeft);
  const CURLcode eUnfinished = oPass.IsOver() ? CURLE_OPERATION_TIMEDOUT : CURLE_FAILED_INIT;
  const CURLcode eResult = pMessage != nullptr ? pMessage->data.result : eUnfinished;
  curl_multi_remove_handle(m_oMulti.get(), pTransfer);
  return eResult;
}

TransferResult CurlConnections::Run(const TransferRequest& oRequest, const InternetLimits& oLimits,
                                    const PassTime& oPass) {
  TransferResult oResult;
  const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> oTransfer(curl_easy_init(),
                                                                      &curl_easy_cleanup);
  if (!oTransfer || !m_oMulti) {
    oResult.sError = curl_easy_strerror(CURLE_OUT_OF_MEMORY);
    return oResult;
  }
  Progress oProgress{oResult, oLimits};
  SetLimits(oTransfer.get(), oLimits);
  SetRequest(oTransfer.get(), oRequest);
  if (oRequest.bBody) {
    Set(oTransfer.get(), CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(oLimits.nLargest));
  }
  SetCallbacks(oTransfer.get(), oProgress);
  Set(oTransfer.get(), CURLOPT_OPENSOCKETFUNCTION, &OpenSocket);
  Set(oTransfer.get(), CURLOPT_OPENSOCKETDATA, this);
  Set(oTransfer.get(), CURLOPT_CLOSESOCKETFUNCTION, &CloseSocket);
  Set(oTransfer.get(), CURLOPT_CLOSESOCKETDATA, this);

  const CURLcode eResult = Perform(oTransfer.get(), oPass);
  oResult.bDone = eResult == CURLE_OK;
  if (!oResult.bDone) {
    oResult.sBody.clear();
    oResult.sError = curl_easy_strerror(eResult);
    oResult.bRefused = IsRefusal(oResult.sResponse);
  }
  curl_off_t nSize = -1;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg)
  curl_easy_getinfo(oTransfer.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &nSize);
  oResult.nSize = nSize;
  return oResult;
}

}  // namespace quillet
