// What the update needs from the Internet: an FTP and an HTTP client behind a few blocking calls.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/PassTime.h"

namespace quillet {

/// Something that an Internet has opened; 0 for nothing.
using InternetHandle = std::uintptr_t;

// The platform's numbers.
enum class InternetAccess : int { Preconfigured = 0, Proxy = 3 };
enum class InternetService : int { Ftp = 1, Http = 3 };
enum class TransferType : int { Ascii = 1, Binary = 2 };

/// When a call gives up. Every limit but oPass applies to a single call.
struct InternetLimits {
  std::chrono::milliseconds oConnect{10'000};  ///< to reach the server and log in
  std::chrono::milliseconds oStall{20'000};    ///< without a byte of the file or answer
  std::chrono::milliseconds oPass{30'000};     ///< from Open on; a call beyond it fails at once
  std::size_t nLargest;                        ///< bytes of a file or answer
};

/// How often an HTTP answer may redirect the request, to http: and https: only.
inline constexpr int kMostRedirects = 5;

/// Calls block until they are done or a limit is reached, and pump the host's events meanwhile. No
/// call throws; after one that gives false or 0, IsExtendedError, LastResponse and LastErrorText
/// say why. All text is UTF-8.
class Internet {
 public:
  explicit Internet(const InternetLimits& oLimits) : m_oPass(oLimits.oPass) {}
  Internet(const Internet&) = delete;
  Internet& operator=(const Internet&) = delete;
  virtual ~Internet() = default;

  /// The time allowed for all calls since the latest Open.
  [[nodiscard]] PassTime& Pass() { return m_oPass; }

  /// True if this machine has any connection, even just to a local network. Contacts nobody.
  [[nodiscard]] virtual bool IsConnected() = 0;

  /// Opens an Internet session, one at a time, and begins the pass; contacts nobody. `sProxy` is
  /// "host" or "host:port", and is used with InternetAccess::Proxy only; otherwise the user's own
  /// proxy settings apply.
  [[nodiscard]] virtual InternetHandle Open(const std::string& sAgent, InternetAccess eAccess,
                                            const std::string& sProxy) = 0;

  /// Opens a session with a server. By FTP it logs in, and gives 0 if the server can't be reached
  /// or refuses; by HTTP it contacts nobody yet and so gives a session with any name, even none.
  [[nodiscard]] virtual InternetHandle Connect(InternetHandle hInternet, const std::string& sHost,
                                               std::uint16_t nPort, const std::string& sUser,
                                               const std::string& sPassword,
                                               InternetService eService) = 0;

  /// Changes to a folder of the FTP server; a relative path starts at the current folder.
  [[nodiscard]] virtual bool SetDirectory(InternetHandle hFtp, const std::string& sDirectory) = 0;

  /// Stores a remote file under a local path, whole or not at all: a file that is already there is
  /// replaced on success and left alone on failure.
  [[nodiscard]] virtual bool GetFile(InternetHandle hFtp, const std::string& sRemoteFile,
                                     const std::string& sLocalFile, TransferType eType) = 0;

  /// The size of a remote file in bytes; false and 0 if there is none or it can't be asked for.
  [[nodiscard]] virtual bool FindFile(InternetHandle hFtp, const std::string& sRemoteFile,
                                      std::uint64_t& nSize) = 0;

  /// Prepares an HTTP/1.0 GET that bypasses every cache. `sRequest` is the path and query without
  /// the leading "/".
  [[nodiscard]] virtual InternetHandle OpenRequest(InternetHandle hHttp,
                                                   const std::string& sRequest) = 0;

  /// Sends it and receives the body of the answer, whatever its status. False, with nothing to
  /// read, if there is no answer, or if it breaks off, is too large or redirects too often.
  [[nodiscard]] virtual bool SendRequest(InternetHandle hRequest) = 0;

  /// How many bytes the next Read can give at once; 0 at the end.
  [[nodiscard]] virtual std::size_t DataAvailable(InternetHandle hRequest) = 0;

  /// Copies at most `nSize` more bytes of the body, and returns how many; 0 at the end.
  [[nodiscard]] virtual std::size_t Read(InternetHandle hRequest, char* pBuffer,
                                         std::size_t nSize) = 0;

  /// True if the latest failure was the server's own answer, which LastResponse gives.
  [[nodiscard]] virtual bool IsExtendedError() const = 0;
  [[nodiscard]] virtual std::string LastResponse() const = 0;
  /// The platform's description of the latest failure.
  [[nodiscard]] virtual std::string LastErrorText() const = 0;

  /// Closes a handle and everything opened from it. 0 is allowed.
  virtual void Close(InternetHandle hHandle) = 0;

 private:
  PassTime m_oPass;
};

/// The platform's own client.
[[nodiscard]] std::unique_ptr<Internet> PlatformInternet(InternetLimits oLimits);

}  // namespace quillet
