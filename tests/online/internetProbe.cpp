// Makes one request with the platform's Internet client and prints the outcome:
//   internet_probe http HOST:PORT PATH [PROXY:PORT]
//   internet_probe ftp HOST:PORT PASSWORD FOLDER FILE LOCAL
// Prints "got" and the number of bytes, for FTP also the announced size; or "lost" and the message
// of the client or the server.
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "platform/Internet.h"
#include "platform/TerminalHost.h"

namespace quillet {
namespace {

using namespace std::chrono_literals;

constexpr InternetLimits kShortLimits{1s, 1s, 3s, 100'000};

InternetHandle Connect(Internet& oInternet, const std::string& sServer,
                       const std::string& sPassword, InternetService eService,
                       const std::string& sProxy = "") {
  const std::size_t nColon = sServer.find(':');
  const InternetHandle hSession = oInternet.Open(
      "probe", sProxy.empty() ? InternetAccess::Preconfigured : InternetAccess::Proxy, sProxy);
  return oInternet.Connect(hSession, sServer.substr(0, nColon),
                           static_cast<std::uint16_t>(std::stoi(sServer.substr(nColon + 1))),
                           sPassword.empty() ? "" : "quillet", sPassword, eService);
}

/// What was got, or nothing; `asWords` are the arguments after "http".
std::string Http(Internet& oInternet, const std::vector<std::string>& asWords) {
  const std::string sProxy = asWords.size() > 2 ? asWords[2] : "";
  const InternetHandle hRequest = oInternet.OpenRequest(
      Connect(oInternet, asWords.at(0), "", InternetService::Http, sProxy), asWords.at(1));
  if (!oInternet.SendRequest(hRequest)) {
    return "";
  }
  std::size_t nBytes = 0;
  std::vector<char> acPiece(1000);
  while (oInternet.DataAvailable(hRequest) != 0) {
    nBytes += oInternet.Read(hRequest, acPiece.data(), acPiece.size());
  }
  return "got " + std::to_string(nBytes);
}

/// Likewise; `asWords` are the arguments after "ftp".
std::string Ftp(Internet& oInternet, const std::vector<std::string>& asWords) {
  std::uint64_t nSize = 0;
  const InternetHandle hFtp =
      Connect(oInternet, asWords.at(0), asWords.at(1), InternetService::Ftp);
  if (hFtp == 0 || (!asWords.at(2).empty() && !oInternet.SetDirectory(hFtp, asWords.at(2))) ||
      !oInternet.FindFile(hFtp, asWords.at(3), nSize) ||
      !oInternet.GetFile(hFtp, asWords.at(3), asWords.at(4), TransferType::Binary)) {
    return "";
  }
  return "got " + std::to_string(std::filesystem::file_size(asWords.at(4))) + " of " +
         std::to_string(nSize);
}

}  // namespace
}  // namespace quillet

int main(int nArguments, char** asArguments) {
  quillet::TerminalHost oHost;
  quillet::SetHost(oHost);
  const std::vector<std::string> asWords(asArguments + 2, asArguments + nArguments);
  const auto pInternet = quillet::PlatformInternet(quillet::kShortLimits);
  const std::string sGot = std::string(asArguments[1]) == "ftp"
                               ? quillet::Ftp(*pInternet, asWords)
                               : quillet::Http(*pInternet, asWords);
  const std::string sWords =
      pInternet->IsExtendedError() ? pInternet->LastResponse() : pInternet->LastErrorText();
  std::cout << (sGot.empty() ? "lost: " + sWords : sGot) << std::endl;
}
