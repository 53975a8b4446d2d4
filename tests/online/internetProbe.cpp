// Asks the platform's Internet client for one thing and tells what came of it:
//   internet_probe http HOST:PORT PATH
//   internet_probe ftp HOST:PORT PASSWORD FOLDER FILE LOCAL
// Prints "got" and the number of bytes, and for FTP the size that was announced; or "lost" and the
// client's own words, or the server's.
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "platform/Internet.h"
#include "platform/TerminalHost.h"

namespace quillet {
namespace {

using namespace std::chrono_literals;

constexpr InternetLimits kShortLimits{1s, 1s, 3s, 100'000};

class Probe {
 public:
  explicit Probe(const std::string& sServer)
      : m_sHost(sServer.substr(0, sServer.find(':'))),
        m_nPort(static_cast<std::uint16_t>(std::stoi(sServer.substr(sServer.find(':') + 1)))) {}

  std::string Http(const std::string& sPath) {
    const InternetHandle hRequest =
        m_pInternet->OpenRequest(Connect("", InternetService::Http), sPath);
    if (!m_pInternet->SendRequest(hRequest)) {
      return Lost();
    }
    std::size_t nBytes = 0;
    std::vector<char> acPiece(1000);
    while (m_pInternet->DataAvailable(hRequest) != 0) {
      nBytes += m_pInternet->Read(hRequest, acPiece.data(), acPiece.size());
    }
    return "got " + std::to_string(nBytes);
  }

  std::string Ftp(const std::string& sPassword, const std::string& sFolder,
                  const std::string& sFile, const std::string& sLocal) {
    std::uint64_t nSize = 0;
    const InternetHandle hFtp = Connect(sPassword, InternetService::Ftp);
    if (hFtp == 0 || (!sFolder.empty() && !m_pInternet->SetDirectory(hFtp, sFolder)) ||
        !m_pInternet->FindFile(hFtp, sFile, nSize) ||
        !m_pInternet->GetFile(hFtp, sFile, sLocal, TransferType::Binary)) {
      return Lost();
    }
    return "got " + std::to_string(std::filesystem::file_size(sLocal)) + " of " +
           std::to_string(nSize);
  }

 private:
  InternetHandle Connect(const std::string& sPassword, InternetService eService) {
    return m_pInternet->Connect(m_pInternet->Open("probe", InternetAccess::Preconfigured, ""),
                                m_sHost, m_nPort, sPassword.empty() ? "" : "quillet", sPassword,
                                eService);
  }

  std::string Lost() const {
    return "lost: " + (m_pInternet->IsExtendedError() ? m_pInternet->LastResponse()
                                                      : m_pInternet->LastErrorText());
  }

  std::unique_ptr<Internet> m_pInternet = PlatformInternet(kShortLimits);
  std::string m_sHost;
  std::uint16_t m_nPort;
};

std::string Outcome(const std::vector<std::string>& asWords) {
  if (asWords.size() == 3 && asWords[0] == "http") {
    return Probe(asWords[1]).Http(asWords[2]);
  }
  if (asWords.size() == 6 && asWords[0] == "ftp") {
    return Probe(asWords[1]).Ftp(asWords[2], asWords[3], asWords[4], asWords[5]);
  }
  return "usage: internet_probe http SERVER PATH | ftp SERVER PASSWORD FOLDER FILE LOCAL";
}

}  // namespace
}  // namespace quillet

int main(int nArguments, char** asArguments) {
  quillet::TerminalHost oHost;
  quillet::SetHost(oHost);
  const std::vector<std::string> asWords(asArguments + 1, asArguments + nArguments);
  std::cout << quillet::Outcome(asWords) << std::endl;
}
