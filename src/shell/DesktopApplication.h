// What the start sequence starts, on the desktop.
#pragma once

#include "base/Application.h"

namespace quillet {

class DesktopApplication : public Application {
 public:
  [[nodiscard]] std::unique_ptr<SplashWindow> ShowSplash() override;
  [[nodiscard]] bool OpenConnection() override;
  void FetchActions() override {}
  void FetchUpdateFile() override {}
  void FetchAboutText() override {}
  void CloseConnection() override {}
  [[nodiscard]] std::unique_ptr<MainWindow> CreateMainWindow() override;
};

}  // namespace quillet
