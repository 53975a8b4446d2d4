// What the start sequence starts, on the desktop.
#pragma once

#include <QPointer>
#include <string>

#include "base/Application.h"
#include "online/downloads.h"

class QSessionManager;

namespace quillet {

class frmMain;

class DesktopApplication : public Application {
 public:
  /// Updates itself through `oInternet`, which isn't owned.
  explicit DesktopApplication(Internet& oInternet) : m_oDownloads(oInternet) {}

  [[nodiscard]] std::unique_ptr<SplashWindow> ShowSplash() override;
  [[nodiscard]] bool OpenConnection() override { return m_oDownloads.OpenConnection(); }
  void FetchActions() override { m_oDownloads.FetchActions(); }
  void FetchUpdateFile() override { m_oDownloads.FetchUpdateFile(); }
  void FetchAboutText() override { m_oDownloads.FetchAboutText(); }
  void CloseConnection() override { m_oDownloads.CloseConnection(); }
  [[nodiscard]] std::unique_ptr<MainWindow> CreateMainWindow() override;

  /// Opens an auction file in the main window; does nothing if there is no window.
  void OpenAuction(const std::string& sPath);

  /// The desktop session is ending: asks the usual question if that is allowed; Cancel keeps the
  /// session.
  void EndSession(QSessionManager& oSession);

  /// The system ends the program: stores the settings, without asking or waiting.
  [[noreturn]] void EndAtOnce();

 private:
  QPointer<frmMain> m_pMain;
  Downloads m_oDownloads;
};

}  // namespace quillet
