// The few Internet operations of the update, each step written to the diagnostic log.
#pragma once

#include <functional>
#include <string>

#include "platform/Internet.h"

namespace quillet {

/// Server names are "host" or "host:port". An operation that fails throws a Failure where it says
/// so; LastError keeps the description.
class clsHttp {
 public:
  /// Speaks through `oInternet`, which isn't owned.
  explicit clsHttp(Internet& oInternet) : m_oInternet(oInternet) {}
  clsHttp(const clsHttp&) = delete;
  clsHttp& operator=(const clsHttp&) = delete;
  /// Closes what is still open.
  ~clsHttp();

  /// False if the machine has no connection. Throws a Failure if no Internet session can be opened.
  [[nodiscard]] bool OpenConnection();

  /// Logs in to an FTP server and changes to a folder, if one is named. True, or throws a Failure.
  bool StartFtpSession(const std::string& sServer, const std::string& sUser,
                       const std::string& sPassword, const std::string& sDirectory);

  /// True, or throws a Failure. True says nothing about the server, which isn't contacted yet.
  bool StartHttpSession(const std::string& sServer, const std::string& sUser,
                        const std::string& sPassword);

  /// Closes the sessions and the connection.
  void CloseConnection();
  void CloseFtpSession();
  void CloseHttpSession();
  void CloseInternetSession();

  /// Throws a Failure that says what is wrong with the fetched file at `sPath`.
  using FileCheck = std::function<void(const std::string& sPath)>;

  /// Fetches a file by FTP. It replaces the local one only once it is complete and `fnCheck`
  /// accepts it. False without a connection; throws a Failure if the file can't be fetched, used or
  /// stored.
  bool GetFile(const std::string& sLocalFile, const std::string& sRemoteFile, bool bBinary,
               const FileCheck& fnCheck = {});

  /// True if both files have the same size; their content isn't compared. False without an FTP
  /// session; throws a Failure if the remote file is empty or missing.
  [[nodiscard]] bool FilesMatch(const std::string& sLocalFile, const std::string& sRemoteFile);

  [[nodiscard]] const std::string& LastError() const { return m_sLastError; }

  /// The body of the answer to a GET on the HTTP session; empty if the server is dead. `sRequest`
  /// is the path and query without the leading "/".
  [[nodiscard]] std::string GetHeaderInfo(const std::string& sRequest);

 private:
  InternetAccess GetProxyName(std::string& sProxy) const;
  [[nodiscard]] bool IsOpen() const { return m_hInternetSession != 0; }
  [[nodiscard]] InternetHandle Connect(const std::string& sServer, std::uint16_t nPort,
                                       const std::string& sUser, const std::string& sPassword,
                                       InternetService eService);
  [[nodiscard]] std::string ReadAnswer(InternetHandle hRequest);
  [[nodiscard]] bool IsRefused(const std::string& sFile, const FileCheck& fnCheck);
  void StoreFetchedFile(const std::string& sTemporary, const std::string& sLocalFile);
  void DeleteLocalFile(const std::string& sFile);
  void SetLastError(const std::string& sText) { m_sLastError = sText; }
  const std::string& RecordLastError();
  void Close(InternetHandle& hHandle);

  Internet& m_oInternet;
  InternetHandle m_hFtpSession = 0;
  InternetHandle m_hHttpSession = 0;
  InternetHandle m_hInternetSession = 0;
  std::string m_sLastError;
};

}  // namespace quillet
