#include "shell/DesktopApplication.h"

#include <QPointer>

#include "shell/frmMain.h"

namespace quillet {
namespace {

/// There is nothing to wait for where no movie plays.
class NoSplash : public SplashWindow {
 public:
  [[nodiscard]] bool LoadComplete() const override { return true; }
  [[nodiscard]] bool MovieComplete() const override { return true; }
  void Hide() override {}
};

/// Holds the window, which is deleted only when the event loop has it in hand.
class MainWindowHandle : public MainWindow {
 public:
  MainWindowHandle() : m_pWindow(new frmMain) {}
  MainWindowHandle(const MainWindowHandle&) = delete;
  MainWindowHandle& operator=(const MainWindowHandle&) = delete;
  ~MainWindowHandle() override {
    if (m_pWindow != nullptr) {
      m_pWindow->deleteLater();
    }
  }

  void Show() override {
    frmMain* const pWindow = m_pWindow;
    pWindow->Show();  // this handle may be gone when it returns
  }
  void Unload() override { m_pWindow->close(); }

 private:
  QPointer<frmMain> m_pWindow;
};

}  // namespace

std::unique_ptr<SplashWindow> DesktopApplication::ShowSplash() {
  return std::make_unique<NoSplash>();
}

std::unique_ptr<MainWindow> DesktopApplication::CreateMainWindow() {
  return std::make_unique<MainWindowHandle>();
}

}  // namespace quillet
