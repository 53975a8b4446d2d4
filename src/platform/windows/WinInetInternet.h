// The Internet through WinINet. Its calls block, some beyond all limits, so each runs on a thread
// of its own while this one pumps the host's events.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "platform/HttpAnswer.h"
#include "platform/Internet.h"
#include "platform/windows/WinInetCalls.h"

namespace quillet {

class WinInetInternet : public Internet {
 public:
  explicit WinInetInternet(InternetLimits oLimits) : Internet(oLimits), m_oLimits(oLimits) {}
  WinInetInternet(const WinInetInternet&) = delete;
  WinInetInternet& operator=(const WinInetInternet&) = delete;
  ~WinInetInternet() override;

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
  [[nodiscard]] bool IsExtendedError() const override;
  [[nodiscard]] std::string LastResponse() const override { return m_oLast.sResponse; }
  [[nodiscard]] std::string LastErrorText() const override;
  void Close(InternetHandle hHandle) override;

 private:
  /// Owns all that it needs, since it may outlive its caller.
  using Call = std::function<NetOutcome(void* pHandle)>;
  /// An opened thing. The platform has no handle for an HTTP session without a server.
  struct Item {
    void* pHandle = nullptr;
    InternetHandle hOwner = 0;
    HttpAnswer oAnswer;
  };

  /// Runs a call on a handle and keeps the reason for a failure. A call that overruns its limit is
  /// ended by closing its handle, and abandoned if that doesn't help.
  [[nodiscard]] NetOutcome Await(InternetHandle hHandle, std::chrono::milliseconds oLimit,
                                 Call fnCall);
  /// The final outcome of a request, once its redirects have been followed.
  [[nodiscard]] NetOutcome Follow(InternetHandle hRequest, NetOutcome oOutcome);
  [[nodiscard]] InternetHandle Keep(void* pHandle, InternetHandle hOwner);
  void SetLimits(void* pHandle) const;

  InternetLimits m_oLimits;
  InternetHandle m_hLast = 0;  ///< the latest one given out
  std::map<InternetHandle, Item> m_aoItems;
  NetOutcome m_oLast;
};

}  // namespace quillet
