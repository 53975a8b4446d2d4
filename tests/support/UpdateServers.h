// A real web server and a real FTP server on loopback, run from the shipped configuration.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/TestHost.h"

namespace quillet {

/// A port of this machine that nothing listens on.
[[nodiscard]] std::uint16_t FreePort();

/// A program that runs until the object goes, and no longer than a minute.
class ServerProcess {
 public:
  ServerProcess(const std::vector<std::string>& asCommand,
                const std::map<std::string, std::string>& asEnvironment);
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;
  ~ServerProcess() { Kill(); }

  /// Ends it with all the processes that it has started, at once.
  void Kill();
  [[nodiscard]] int Id() const { return m_nId; }

 private:
  int m_nId;
};

/// nginx and vsftpd. A std::runtime_error if they don't come up within five seconds.
class UpdateServers {
 public:
  UpdateServers();
  UpdateServers(const UpdateServers&) = delete;
  UpdateServers& operator=(const UpdateServers&) = delete;
  ~UpdateServers();

  void PutFile(const std::string& sName, const std::string& sContent) const;

  /// Their files lie here below "web" and "ftp".
  [[nodiscard]] const std::string& Folder() const { return m_oFolder.sPath; }
  [[nodiscard]] std::string WebServer() const;
  [[nodiscard]] std::string FtpServer() const;

 private:
  void WriteConfiguration() const;

  TemporaryFolder m_oFolder;
  std::uint16_t m_nWebPort = FreePort();
  std::uint16_t m_nFtpPort = FreePort();
  std::unique_ptr<ServerProcess> m_oWeb;
  std::unique_ptr<ServerProcess> m_oFtp;
};

}  // namespace quillet
