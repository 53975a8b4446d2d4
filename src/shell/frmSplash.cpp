#include "shell/frmSplash.h"

#include <QScreen>
#include <algorithm>

#include "base/basError.h"
#include "base/region.h"
#include "look/ShockwaveFlash.h"
#include "look/scale.h"
#include "platform/Files.h"
#include "platform/Host.h"
#include "shell/zoomSteps.h"

namespace quillet {
namespace {

// Twips.
constexpr int kMovieWidth = 8295;
constexpr int kMovieHeight = 4575;

const char* RegionText() {
  switch (RegionCode()) {
    case 0:
      return "UK";
    case 1:
      return "US";
    default:
      return "EU";
  }
}

}  // namespace

frmSplash::frmSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      m_pShockwaveFlash1(new ShockwaveFlash(this)) {
  setObjectName("frmSplash");
  setWindowTitle("Quillet");
  m_pShockwaveFlash1->setObjectName("ShockwaveFlash1");
  connect(m_pShockwaveFlash1, &ShockwaveFlash::FSCommand, this,
          [this](const QString& sCommand) { ShockwaveFlash1_FSCommand(sCommand); });
  Form_Load();
}

void frmSplash::Form_Load() {
  const std::string sRegion = RegionText();
  m_bLoadComplete = false;
  m_bMovieComplete = false;
  FitToScreen();
  WriteLog("Loading splash movie");
  m_pShockwaveFlash1->SetMovie(QString::fromStdString(
      NativePath(TheHost().ProgramFolder() + "\\Graphics\\Splash.swf?Version=" + sRegion)));
  WriteLog("Playing splash movie");
  m_pShockwaveFlash1->Play();
  m_pShockwaveFlash1->setFocus();
}

/// As large as the main window's text will be, unless the screen is too small for that.
void frmSplash::FitToScreen() {
  const QRect oScreen = screen()->availableGeometry();
  SetZoom(1.0);
  const int nLargest = LargestFittingZoom(Pixels(kMovieWidth), Pixels(kMovieHeight),
                                          oScreen.width(), oScreen.height());
  SetZoom(std::min(StoredZoom().value_or(100), nLargest) / 100.0);
  setFixedSize(Pixels(kMovieWidth), Pixels(kMovieHeight));
  m_pShockwaveFlash1->setGeometry(rect());
  move(oScreen.center() - rect().center());
}

void frmSplash::ShockwaveFlash1_FSCommand(const QString& sCommand) {
  if (sCommand == "start") {
    m_bLoadComplete = true;
  } else if (sCommand == "stop") {
    m_bMovieComplete = true;
  }
}

}  // namespace quillet
