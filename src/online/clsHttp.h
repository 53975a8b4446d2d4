// The few Internet operations of the update, each step of them told in the diagnostic log.
#pragma once

#include <functional>
#include <string>

#include "platform/Internet.h"

namespace quillet {

/// Server names are "host" or "host:port". What fails raises a Failure where the operation says so;
/// its words stay in LastError.
class clsHttp {
 public:
  /// Speaks through `oInternet`, which isn't owned.
  explicit clsHttp(Internet& oInternet) : m_oInternet(oInternet) {}
  clsHttp(const clsHttp&) = delete;
  clsHttp& operator=(const clsHttp&) = delete;
  /// Closes what is still open.
  ~clsHttp();

  /// False if the machine has no connection. A Failure if there is no Internet session to be had.
  [[nodiscard]] bool OpenConnection();

  /// Logs in at an FTP server and changes to a folder, if one is named. A Failure, or true.
  bool StartFtpSession(const std::string& sServer, const std::string& sUser,
                       const std::string& sPassword, const std::string& sDirectory);

  /// A Failure, or true; which says nothing about the server, for it isn't asked yet.
  bool StartHttpSession(const std::string& sServer, const std::string& sUser,
                        const std::string& sPassword);

  /// Closes the sessions and the connection.
  void CloseConnection();
  void CloseFtpSession();
  void CloseHttpSession();
  void CloseInternetSession();

  /// Says by a Failure what is wrong with a fetched file, whose path it gets.
  using FileCheck = std::function<void(const std::string& sPath)>;

  /// Fetches a file by FTP. It takes the local one's place only when it is here as a whole and
  /// `fnCheck` has nothing against it. False without a connection; a Failure if the file can't be
  /// fetched, used or stored.
  bool GetFile(const std::string& sLocalFile, const std::string& sRemoteFile, bool bBinary,
               const FileCheck& fnCheck = {});

  /// True if both files have the same size; their content isn't looked at. False without an FTP
  /// session; a Failure if the remote file is empty or missing.
  [[nodiscard]] bool FilesMatch(const std::string& sLocalFile, const std::string& sRemoteFile);

  [[nodiscard]] const std::string& LastError() const { return m_sLastError; }

  /// The body of the answer to a GET of the HTTP session; empty if the server is dead. `sRequest`
  /// is path and query without the "/" in front.
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
