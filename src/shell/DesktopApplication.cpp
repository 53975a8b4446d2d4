#include "shell/DesktopApplication.h"

#include <QSessionManager>
#include <cstdlib>

#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

namespace quillet {
namespace {

/// Holds the window, and leaves deleting it to the event loop.
class MainWindowHandle : public MainWindow {
 public:
  explicit MainWindowHandle(frmMain* pWindow) : m_pWindow(pWindow) {}
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
  auto pSplash = std::make_unique<frmSplash>();
  QObject::connect(pSplash.get(), &frmSplash::Hurried, [this] { m_oDownloads.Hurry(); });
  pSplash->show();
  pSplash->activateWindow();  // so that a key reaches it
  return pSplash;
}

std::unique_ptr<MainWindow> DesktopApplication::CreateMainWindow() {
  m_pMain = new frmMain;
  return std::make_unique<MainWindowHandle>(m_pMain);
}

void DesktopApplication::OpenAuction(const std::string& sPath) {
  if (g_frmMain != nullptr && m_pMain != nullptr) {
    m_pMain->OpenAuction(sPath);
  }
}

void DesktopApplication::EndSession(QSessionManager& oSession) {
  if (m_pMain == nullptr) {
    return;
  }
  if (m_pMain->EndSession(oSession.allowsInteraction())) {
    oSession.release();
  } else {
    oSession.cancel();
  }
}

/// The splash, a download or a question may be active: don't unwind the stack through them.
void DesktopApplication::EndAtOnce() {
  if (m_pMain != nullptr) {
    m_pMain->EndUnasked();
  }
  Registry().Flush();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace quillet
