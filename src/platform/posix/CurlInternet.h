// The Internet through libcurl. The user's own proxy settings come from the environment: http_proxy
// and so on.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/HttpAnswer.h"
#include "platform/Internet.h"
#include "platform/posix/CurlTransfer.h"

namespace quillet {

class CurlInternet : public Internet {
 public:
  explicit CurlInternet(InternetLimits oLimits) : Internet(oLimits), m_oLimits(oLimits) {}

  /// True if a network interface is up. The loopback interface counts only if there is no other,
  /// as in a container.
  [[nodiscard]] bool IsConnected() override;
  [[nodiscard]] InternetHandle Open(const std::string& sAgent, InternetAccess eAccess,
                                    const std::string& sProxy) override;
  [[nodiscard]] InternetHandle Connect(InternetHandle hInternet, const std::string& sHost,
                                       std::uint16_t nPort, const std::string& sUser,
                                       const std::string& sPassword,
                                       InternetService eService) override;
  [[nodiscard]] bool SetDirectory(InternetHandle hFtp, const std::string& sDirectory) override;
  [[nodiscard]] bool GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                             const std::string& sLocalFile, TransferType eType) override;
  [[nodiscard]] bool FindFile(InternetHandle hFtp, const std::string& sRemoteFile,
                              std::uint64_t& nSize) override;
  [[nodiscard]] InternetHandle OpenRequest(InternetHandle hHttp,
                                           const std::string& sRequest) override;
  [[nodiscard]] bool SendRequest(InternetHandle hRequest) override;
  [[nodiscard]] std::size_t DataAvailable(InternetHandle hRequest) override;
  [[nodiscard]] std::size_t Read(InternetHandle hRequest, char* pBuffer,
                                 std::size_t nSize) override;
  [[nodiscard]] bool IsExtendedError() const override { return m_bExtendedError; }
  [[nodiscard]] std::string LastResponse() const override { return m_sLastResponse; }
  [[nodiscard]] std::string LastErrorText() const override { return m_sLastError; }
  void Close(InternetHandle hHandle) override;

 private:
  struct Session {
    TransferRequest oBase;  ///< its URL ends in "/"
    CurlConnections oConnections;
  };
  struct Request {
    InternetHandle hHttp = 0;
    std::string sPath;
    HttpAnswer oAnswer;
  };

  /// Runs the session's basic transfer as changed by `fnChange`, and keeps the reason for a
  /// failure, such as a session that isn't open.
  template <typename Change>
  [[nodiscard]] TransferResult Run(InternetHandle hSession, Change&& fnChange);
  void Fail(const std::string& sError);

  InternetLimits m_oLimits;
  InternetHandle m_hLast = 0;  ///< the latest one given out
  InternetHandle m_hInternet = 0;
  std::string m_sAgent;
  std::string m_sProxy;
  std::map<InternetHandle, Session> m_aoSessions;
  std::map<InternetHandle, Request> m_aoRequests;
  bool m_bExtendedError = false;
  std::string m_sLastResponse;
  std::string m_sLastError;
};

}  // namespace quillet
