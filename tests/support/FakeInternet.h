// A fake Internet with scripted answers.
#pragma once

#include <map>
#include <string>

#include "platform/Internet.h"
#include "support/Log.h"

namespace quillet {

class FakeInternet : public Internet {
 public:
  FakeInternet() : Internet({.nLargest = 0}) {}
  bool IsConnected() override { return bConnected; }
  InternetHandle Open(const std::string& sAgent, InternetAccess eAccess,
                      const std::string& sProxy) override {
    sAsked +=
        "open " + sAgent + " " + std::to_string(static_cast<int>(eAccess)) + " " + sProxy + "|";
    Pass().Begin();
    return bOpens ? ++m_hLast : 0;
  }
  InternetHandle Connect(InternetHandle /*hInternet*/, const std::string& sHost,
                         std::uint16_t nPort, const std::string& sUser,
                         const std::string& sPassword, InternetService eService) override {
    sAsked += "connect " + std::to_string(static_cast<int>(eService)) + " " + sHost + ":" +
              std::to_string(nPort) + " " + sUser + " " + sPassword + "|";
    return bConnects ? ++m_hLast : 0;
  }
  bool SetDirectory(InternetHandle /*hFtp*/, const std::string& /*sDirectory*/) override {
    return bHasDirectory;
  }
  bool GetFile(InternetHandle /*hFtp*/, const std::string& sRemoteFile,
               const std::string& sLocalFile, TransferType /*eType*/) override {
    WriteTestFile(sLocalFile, asFiles[sRemoteFile]);  // even if it is to fail
    return bGets;
  }
  bool FindFile(InternetHandle /*hFtp*/, const std::string& sRemoteFile,
                std::uint64_t& nSize) override {
    nSize = asFiles[sRemoteFile].size();
    return nSize != 0;
  }
  InternetHandle OpenRequest(InternetHandle /*hHttp*/, const std::string& sRequest) override {
    sLastRequest = sRequest;
    return ++m_hLast;
  }
  bool SendRequest(InternetHandle /*hRequest*/) override {
    m_sUnread = asAnswers[sLastRequest.substr(0, sLastRequest.find('?'))];
    return true;
  }
  std::size_t DataAvailable(InternetHandle /*hRequest*/) override {
    return std::min(m_sUnread.size(), nPiece);
  }
  std::size_t Read(InternetHandle /*hRequest*/, char* pBuffer, std::size_t nSize) override {
    const std::size_t nRead = m_sUnread.copy(pBuffer, std::min(nSize, nPiece));
    m_sUnread.erase(0, nRead);
    nPiece = nNextPiece;
    return nRead;
  }
  bool IsExtendedError() const override { return bExtended; }
  std::string LastResponse() const override { return " 530 Login incorrect. "; }
  std::string LastErrorText() const override { return "No route."; }
  void Close(InternetHandle /*hHandle*/) override { ++nClosed; }

  [[nodiscard]] int StillOpen() const { return static_cast<int>(m_hLast) - nClosed; }

  bool bConnected = true;
  bool bOpens = true;
  bool bConnects = true;
  bool bHasDirectory = true;
  bool bGets = true;
  bool bExtended = false;
  std::string sAsked;                            ///< opened connections, each followed by "|"
  std::map<std::string, std::string> asFiles;    ///< by name; an empty one counts as missing
  std::map<std::string, std::string> asAnswers;  ///< by page
  std::string sLastRequest;
  std::size_t nPiece = 100;      ///< bytes in the first piece
  std::size_t nNextPiece = 100;  ///< bytes in each later piece
  int nClosed = 0;

 private:
  InternetHandle m_hLast = 0;
  std::string m_sUnread;
};

}  // namespace quillet
