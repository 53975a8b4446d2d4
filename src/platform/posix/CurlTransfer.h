// One transfer through libcurl, and the connections that transfers with one server share.
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>

#include <curl/curl.h>

#include "platform/Internet.h"

namespace quillet {

struct TransferRequest {
  std::string sUrl;  ///< ftp: or http:
  std::string sUser;
  std::string sPassword;
  std::string sAgent;
  std::string sProxy;       ///< empty for the environment's
  bool bBody = true;        ///< else only what is known without it: size, or that the file exists
  bool bAsciiType = false;  ///< FTP's type for text
};

struct TransferResult {
  bool bDone = false;
  std::string sBody;
  std::int64_t nSize = -1;  ///< of the remote file; -1 if the server doesn't say
  std::string sResponse;    ///< the FTP server's last words, without line break
  bool bRefused = false;    ///< those words are the reason for the failure
  std::string sError;       ///< description of the failure
};

class CurlConnections {
 public:
  CurlConnections();
  CurlConnections(const CurlConnections&) = delete;
  CurlConnections& operator=(const CurlConnections&) = delete;
  ~CurlConnections();

  /// Blocks within the limits and the pass; the host's events are pumped meanwhile.
  [[nodiscard]] TransferResult Run(const TransferRequest& oRequest, const InternetLimits& oLimits,
                                   const PassTime& oPass);

 private:
  static curl_socket_t OpenSocket(void* pThis, curlsocktype ePurpose, curl_sockaddr* pAddress);
  static int CloseSocket(void* pThis, curl_socket_t nSocket);

  [[nodiscard]] CURLcode Perform(CURL* pTransfer, const PassTime& oPass);

  std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> m_oMulti;
  std::set<curl_socket_t> m_anSockets;
};

}  // namespace quillet
