#include "support/UpdateServers.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include <arpa/inet.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/Log.h"

namespace quillet {
namespace {

constexpr unsigned kLongestLife = 60;  // seconds

sockaddr_in Loopback(std::uint16_t nPort) {
  sockaddr_in oAddress{};
  oAddress.sin_family = AF_INET;
  oAddress.sin_port = htons(nPort);
  oAddress.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return oAddress;
}

/// A socket bound to a port of loopback, any free one for 0.
int BoundSocket() {
  const int nSocket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in oAddress = Loopback(0);
  if (::bind(nSocket, reinterpret_cast<const sockaddr*>(&oAddress), sizeof(oAddress)) != 0) {
    throw std::runtime_error("no free port");
  }
  return nSocket;
}

std::uint16_t PortOf(int nSocket) {
  sockaddr_in oAddress{};
  socklen_t nSize = sizeof(oAddress);
  ::getsockname(nSocket, reinterpret_cast<sockaddr*>(&oAddress), &nSize);
  return ntohs(oAddress.sin_port);
}

bool Answers(std::uint16_t nPort) {
  const int nSocket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in oAddress = Loopback(nPort);
  const bool bAnswers =
      ::connect(nSocket, reinterpret_cast<const sockaddr*>(&oAddress), sizeof(oAddress)) == 0;
  ::close(nSocket);
  return bAnswers;
}

void AwaitServer(std::uint16_t nPort, const std::string& sName) {
  const auto oEnd = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  while (!Answers(nPort)) {
    if (std::chrono::steady_clock::now() > oEnd) {
      throw std::runtime_error(sName + " doesn't come up");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

/// The shipped configuration with its places changed; each of them must be there.
std::string Configuration(const std::string& sName,
                          const std::map<std::string, std::string>& asChanges) {
  std::string sText =
      ReadTestFile(std::string(QUILLET_SOURCE_DIR) + "/packaging/update-server/" + sName);
  for (const auto& [sOld, sNew] : asChanges) {
    const std::size_t nAt = sText.find(sOld);
    if (nAt == std::string::npos) {
      throw std::runtime_error(sName + " doesn't hold " + sOld);
    }
    sText.replace(nAt, sOld.size(), sNew);
  }
  return sText;
}

/// What the wrapper of the login library leaves behind when its process is killed.
void RemoveLoginFiles(int nProcess) {
  for (const auto& oEntry : std::filesystem::directory_iterator("/tmp")) {
    if (oEntry.path().filename().string().starts_with("pam.") &&
        ReadTestFile(oEntry.path() / "pid") == std::to_string(nProcess)) {
      std::error_code oIgnored;
      std::filesystem::remove_all(oEntry.path(), oIgnored);
    }
  }
}

}  // namespace

std::uint16_t FreePort() {
  const int nSocket = BoundSocket();
  const std::uint16_t nPort = PortOf(nSocket);
  ::close(nSocket);
  return nPort;
}

ServerProcess::ServerProcess(const std::vector<std::string>& asCommand,
                             const std::map<std::string, std::string>& asEnvironment)
    : m_nId(::fork()) {
  if (m_nId != 0) {
    return;
  }
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  ::alarm(kLongestLife);
  for (const auto& [sName, sValue] : asEnvironment) {
    ::setenv(sName.c_str(), sValue.c_str(), 1);
  }
  std::vector<char*> apWords;
  for (const std::string& sWord : asCommand) {
    apWords.push_back(const_cast<char*>(sWord.c_str()));
  }
  apWords.push_back(nullptr);
  ::execv(apWords[0], apWords.data());
  ::_exit(127);
}

void ServerProcess::Kill() {
  if (m_nId > 0) {
    ::kill(-m_nId, SIGKILL);
    ::waitpid(m_nId, nullptr, 0);
    m_nId = 0;
  }
}

UpdateServers::UpdateServers() {
  if (::geteuid() != 0) {
    throw std::runtime_error("vsftpd lets users in only if root has started it: run this as root");
  }
  WriteConfiguration();
  m_oWeb = std::make_unique<ServerProcess>(
      std::vector<std::string>{"/usr/sbin/nginx", "-e", m_oFolder / "error.log", "-c",
                               m_oFolder / "nginx-main.conf"},
      std::map<std::string, std::string>{});
  // The login library reads its rules from /etc only; its wrapper reads them here.
  m_oFtp = std::make_unique<ServerProcess>(
      std::vector<std::string>{"/usr/sbin/vsftpd", m_oFolder / "vsftpd.conf"},
      std::map<std::string, std::string>{{"LD_PRELOAD", "libpam_wrapper.so"},
                                         {"PAM_WRAPPER", "1"},
                                         {"PAM_WRAPPER_SERVICE_DIR", m_oFolder / "pam.d"}});
  AwaitServer(m_nWebPort, "nginx");
  AwaitServer(m_nFtpPort, "vsftpd");
}

UpdateServers::~UpdateServers() {
  m_oWeb->Kill();
  const int nFtp = m_oFtp->Id();
  m_oFtp->Kill();
  RemoveLoginFiles(nFtp);
}

void UpdateServers::WriteConfiguration() const {
  for (const char* const sFolder : {"web", "ftp", "empty", "pam.d"}) {
    std::filesystem::create_directory(m_oFolder / sFolder);
  }
  std::filesystem::permissions(m_oFolder.sPath, std::filesystem::perms(0755));
  const std::string sPort = std::to_string(m_nWebPort);
  WriteTestFile(m_oFolder / "nginx.conf",
                Configuration("nginx.conf", {{"listen 80;", "listen 127.0.0.1:" + sPort + ";"},
                                             {"/srv/quillet-update", m_oFolder.sPath}}));
  WriteTestFile(m_oFolder / "nginx-main.conf",
                "daemon off;\nmaster_process off;\npid " + m_oFolder / "nginx.pid" +
                    ";\nevents {}\nhttp {\naccess_log off;\ninclude " + m_oFolder / "nginx.conf" +
                    ";\n}\n");
  WriteTestFile(
      m_oFolder / "vsftpd.conf",
      Configuration("vsftpd.conf", {{"listen_port=21", "listen_port=" + std::to_string(m_nFtpPort)},
                                    {"/srv/quillet-update", m_oFolder.sPath},
                                    {"/var/run/vsftpd/empty", m_oFolder / "empty"}}) +
          "listen_address=127.0.0.1\ndelay_failed_login=0\n");
  WriteTestFile(m_oFolder / "pam.d/quillet-update",
                Configuration("pam", {{"/srv/quillet-update/passwords",
                                       m_oFolder / "passwords" + " nodelay"}}));
  WriteTestFile(m_oFolder / "pam.d/other", "auth required pam_deny.so\n");
  const std::string sHash =
      "openssl passwd -6 rmk3816 | sed s/^/quillet:/ >" + m_oFolder / "passwords";
  if (std::system(sHash.c_str()) != 0) {
    throw std::runtime_error("openssl can't make the password file");
  }
}

void UpdateServers::PutFile(const std::string& sName, const std::string& sContent) const {
  const std::filesystem::path oPath(m_oFolder / ("ftp/" + sName));
  std::filesystem::create_directories(oPath.parent_path());
  WriteTestFile(oPath, sContent);
}

std::string UpdateServers::WebServer() const {
  return "127.0.0.1:" + std::to_string(m_nWebPort);
}

std::string UpdateServers::FtpServer() const {
  return "127.0.0.1:" + std::to_string(m_nFtpPort);
}

}  // namespace quillet
