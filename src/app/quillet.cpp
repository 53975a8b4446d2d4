// The desktop program: chooses the host, starts, and hands over to the event loop.
#include <QApplication>
#include <QIcon>
#include <cstdlib>
#include <string>

#include "app/startArguments.h"
#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/version.h"
#include "look/Theme.h"
#include "platform/EndSignals.h"
#include "platform/Internet.h"
#include "platform/Sound.h"
#include "platform/StandardStreams.h"
#include "platform/qt/QtHost.h"
#include "platform/qt/QtSettingsHive.h"
#include "prices/clsPrices.h"
#include "shell/DesktopApplication.h"

int main(int nArguments, char** asArguments) {
  using namespace quillet;
  ReportFailedWrites();
  const std::string sAuction = AuctionFileToOpen(nArguments, asArguments);
  QApplication oQt(nArguments, asArguments);
  QApplication::setApplicationName("Quillet");
  QApplication::setApplicationDisplayName(QString());
  QApplication::setApplicationVersion(kVersion);
  QApplication::setQuitOnLastWindowClosed(false);  // the splash comes and goes before the window

  InstallTheme();
  QtHost oHost;
  SetHost(oHost);
  QtSettingsHive oSettings;
  SetRegistryHive(oSettings);
  const std::unique_ptr<Internet> oInternet =
      PlatformInternet({.nLargest = clsPrices::kLargestFile});
  const std::unique_ptr<Sound> oSound = PlatformSound();
  SetSound(oSound.get());
  DesktopApplication oApplication(*oInternet);
  SetApplication(oApplication);
  OnEndSignal(oQt, [&] { oApplication.EndAtOnce(); });
  QObject::connect(
      &oQt, &QGuiApplication::commitDataRequest, &oQt,
      [&](QSessionManager& oSession) { oApplication.EndSession(oSession); }, Qt::DirectConnection);
  Main();
  if (!sAuction.empty()) {
    oApplication.OpenAuction(sAuction);
  }

  QApplication::setQuitOnLastWindowClosed(true);
  // If the start had to close the window, there is nothing left to run.
  const int nStatus = g_frmMain != nullptr ? QApplication::exec() : 0;
  g_frmMain.reset();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return g_bMustClose ? EXIT_FAILURE : nStatus;
}
