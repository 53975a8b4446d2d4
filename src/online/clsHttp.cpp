#include "online/clsHttp.h"

#include <limits>
#include <system_error>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Files.h"

namespace quillet {
namespace {

constexpr std::uint16_t kFtpPort = 21;
constexpr std::uint16_t kHttpPort = 80;

struct Server {
  std::string sHost;
  std::uint16_t nPort;
};

/// Splits "host:port". Text after the ":" that isn't a port stays part of the name, so that no such
/// host is found.
Server SplitServer(const std::string& sServer, std::uint16_t nDefaultPort) {
  const std::size_t nColon = sServer.rfind(':');
  if (nColon != std::string::npos) {
    const auto nPort = ToLong(sServer.substr(nColon + 1));
    if (nPort && *nPort > 0 && *nPort <= std::numeric_limits<std::uint16_t>::max()) {
      return {sServer.substr(0, nColon), static_cast<std::uint16_t>(*nPort)};
    }
  }
  return {sServer, nDefaultPort};
}

}  // namespace

clsHttp::~clsHttp() {
  if (IsOpen()) {
    CloseConnection();
  }
}

bool clsHttp::OpenConnection() {
  WriteLog("Open internet connection 1");
  if (!m_oInternet.IsConnected()) {
    return false;
  }
  WriteLog("Open internet connection 2");
  if (!IsOpen()) {
    WriteLog("Open internet connection 3");
    std::string sProxy;
    const InternetAccess eAccess = GetProxyName(sProxy);
    WriteLog("Open internet connection 4");
    m_hInternetSession = m_oInternet.Open(EditionName(), eAccess, sProxy);
    WriteLog("Open internet connection 5");
    if (!IsOpen()) {
      WriteLog("Open internet connection 6 - fail");
      RecordLastError();
      WriteLog("Open internet connection 7");
      WriteLog("Open internet connection 8");
      throw Failure(FailureNumber::Internet, "Error opening internet seesion");
    }
  }
  WriteLog("Open internet connection 9 - okay");
  return true;
}

bool clsHttp::StartFtpSession(const std::string& sServer, const std::string& sUser,
                              const std::string& sPassword, const std::string& sDirectory) {
  WriteLog("Start FTP 1");
  Close(m_hFtpSession);
  m_hFtpSession = Connect(sServer, kFtpPort, sUser, sPassword, InternetService::Ftp);
  WriteLog("Start FTP 2");
  if (m_hFtpSession == 0) {
    WriteLog("Start FTP 3");
    RecordLastError();
    WriteLog("Start FTP 4");
    throw Failure(FailureNumber::Internet, "Error connecting to server");
  }
  WriteLog("Start FTP 5");
  if (!sDirectory.empty()) {
    WriteLog("Start FTP 6");
    if (!m_oInternet.SetDirectory(m_hFtpSession, sDirectory)) {
      WriteLog("Start FTP 7 - fail");
      RecordLastError();
      WriteLog("Start FTP 8");
      throw Failure(FailureNumber::Internet, "Error setting directory");
    }
  }
  WriteLog("Start FTP 9 - okay");
  return true;
}

bool clsHttp::StartHttpSession(const std::string& sServer, const std::string& sUser,
                               const std::string& sPassword) {
  WriteLog("Start HTTP 1");
  Close(m_hHttpSession);
  m_hHttpSession = Connect(sServer, kHttpPort, sUser, sPassword, InternetService::Http);
  WriteLog("Start HTTP 2");
  if (m_hHttpSession == 0) {
    WriteLog("Start HTTP 3 - fail");
    RecordLastError();
    WriteLog("Start HTTP 4");
    throw Failure(FailureNumber::Http, "Error connecting to server");
  }
  WriteLog("Start HTTP 5");
  WriteLog("Start HTTP 6 - okay");
  return true;
}

InternetHandle clsHttp::Connect(const std::string& sServer, std::uint16_t nPort,
                                const std::string& sUser, const std::string& sPassword,
                                InternetService eService) {
  const Server oServer = SplitServer(sServer, nPort);
  return m_oInternet.Connect(m_hInternetSession, oServer.sHost, oServer.nPort, sUser, sPassword,
                             eService);
}

InternetAccess clsHttp::GetProxyName(std::string& sProxy) const {
  sProxy = Registry().Get(settings::kProxyName);
  return sProxy.empty() ? InternetAccess::Preconfigured : InternetAccess::Proxy;
}

void clsHttp::CloseConnection() {
  CloseFtpSession();
  CloseHttpSession();
  CloseInternetSession();
}

void clsHttp::CloseFtpSession() {
  Close(m_hFtpSession);
}

void clsHttp::CloseHttpSession() {
  WriteLog("Closing Http Session 1");
  if (m_hHttpSession != 0) {
    WriteLog("Closing Http Session 2");
    Close(m_hHttpSession);
    WriteLog("Closing Http Session 3");
  }
  WriteLog("Closing Http Session 4 - okay (no fail point)");
}

void clsHttp::CloseInternetSession() {
  WriteLog("Closing Internet Session 1");
  if (IsOpen()) {
    WriteLog("Closing Internet Session 2");
    Close(m_hInternetSession);
    WriteLog("Closing Internet Session 3");
  }
  WriteLog("Closing Internet Session 4 - okay (no fail point)");
}

void clsHttp::Close(InternetHandle& hHandle) {
  if (hHandle != 0) {
    m_oInternet.Close(hHandle);
    hHandle = 0;
  }
}

bool clsHttp::GetFile(const std::string& sLocalFile, const std::string& sRemoteFile, bool bBinary,
                      const FileCheck& fnCheck) {
  WriteLog("Proc FTP 1");
  const TransferType eType = bBinary ? TransferType::Binary : TransferType::Ascii;
  WriteLog("Proc FTP 2");
  if (!IsOpen()) {
    WriteLog("Proc FTP 3");
    return false;
  }
  WriteLog("Proc FTP 4");
  const std::string sTemporary = sLocalFile + "_$Temp$_";
  DeleteLocalFile(sTemporary);
  const bool bFetched = m_oInternet.GetFile(m_hFtpSession, sRemoteFile, sTemporary, eType);
  WriteLog("Proc FTP 5");
  const bool bRefused = bFetched && fnCheck && IsRefused(sTemporary, fnCheck);
  if (!bFetched || bRefused) {
    WriteLog("Proc FTP 6 - fail");
    if (!bRefused) {
      RecordLastError();
    }
    WriteLog("Proc FTP 7");
    DeleteLocalFile(sTemporary);
    throw Failure(FailureNumber::Internet, "Error getting file '" + sRemoteFile + "'");
  }
  StoreFetchedFile(sTemporary, sLocalFile);
  WriteLog("Proc FTP 8 - okay");
  return true;
}

bool clsHttp::IsRefused(const std::string& sFile, const FileCheck& fnCheck) {
  try {
    fnCheck(sFile);
    return false;
  } catch (const Failure& oFailure) {
    SetLastError(oFailure.what());
    WriteLog("The fetched file is refused: " + LastError());
    return true;
  }
}

void clsHttp::StoreFetchedFile(const std::string& sTemporary, const std::string& sLocalFile) {
  std::string sContent;
  std::error_code oError =
      ReadWholeFile(sTemporary, std::numeric_limits<std::size_t>::max(), sContent);
  if (!oError) {
    oError = ReplaceFile(sLocalFile, sContent);
  }
  DeleteLocalFile(sTemporary);
  if (oError) {
    SetLastError(oError.message());
    throw Failure(FailureNumber::FileAccess, sLocalFile + ": " + oError.message());
  }
}

bool clsHttp::FilesMatch(const std::string& sLocalFile, const std::string& sRemoteFile) {
  WriteLog("Matching files 1");
  if (m_hFtpSession == 0) {
    WriteLog("Matching files 2 - fail");
    return false;
  }
  WriteLog("Matching files 3");
  std::uint64_t nRemote = 0;
  (void)m_oInternet.FindFile(m_hFtpSession, sRemoteFile, nRemote);
  WriteLog("Matching files 4");
  const std::uint64_t nLocal = FileSize(sLocalFile);
  WriteLog("Matching files 5");
  if (nRemote == 0) {
    WriteLog("Matching files 8 - fail");
    SetLastError("The remote file is size 0");
    WriteLog("Matching files 9");
    throw Failure(FailureNumber::FilesMatch, LastError(), "FilesMatch");
  }
  WriteLog("Matching files 6");
  WriteLog("Matching files 7 - okay");
  return nRemote == nLocal;
}

void clsHttp::DeleteLocalFile(const std::string& sFile) {
  WriteLog("Deleting file 1");
  if (const std::error_code oError = RemoveFile(sFile)) {
    WriteLog("Deleting file 2 (" + oError.message() + ")");
  }
  WriteLog("Deleting file 3 - Success");
}

const std::string& clsHttp::RecordLastError() {
  WriteLog("Getting error info 1");
  if (m_oInternet.IsExtendedError()) {
    WriteLog("Getting error info 2");
    const std::string sResponse = m_oInternet.LastResponse();
    WriteLog("Getting error info 3");
    const std::string sText = "Server response: " + std::string(Trim(sResponse));
    WriteLog("Getting error info 4");
    SetLastError(sText);
    WriteLog("Getting error info 5");
  } else {
    WriteLog("Getting error info 6");
    SetLastError(m_oInternet.LastErrorText());
  }
  WriteLog("Getting error info 5 - okay (no fail point)");
  return LastError();
}

std::string clsHttp::GetHeaderInfo(const std::string& sRequest) {
  WriteLog("Getting header info 1");
  InternetHandle hRequest = m_oInternet.OpenRequest(m_hHttpSession, sRequest);
  WriteLog("Getting header info 2");
  (void)m_oInternet.SendRequest(hRequest);  // a dead server gives an empty text
  WriteLog("Getting header info 3");
  std::string sText = ReadAnswer(hRequest);
  Close(hRequest);
  WriteLog("Getting header info 9 - okay (no fail point)");
  return DecodeText(std::move(sText));
}

std::string clsHttp::ReadAnswer(InternetHandle hRequest) {
  std::size_t nAvailable = m_oInternet.DataAvailable(hRequest);
  WriteLog("Getting header info 4");
  std::string sText;
  std::size_t nRead = 0;
  do {
    std::string sBuffer(nAvailable, '\0');
    WriteLog("Getting header info 5");
    nRead = m_oInternet.Read(hRequest, sBuffer.data(), nAvailable);
    WriteLog("Getting header info 6");
    sText += TrimAtNul(std::move(sBuffer));
    WriteLog("Getting header info 7");
    if (nRead > 0) {
      nAvailable = nRead;  // never ask for a piece larger than the last one
    }
    WriteLog("Getting header info 8");
  } while (nRead > 0);
  return sText;
}

}  // namespace quillet
