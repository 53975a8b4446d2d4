#include "shell/formPosition.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <optional>
#include <string>

#include "base/basCommon.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "look/scale.h"

namespace quillet {
namespace {

std::string SectionOf(const QWidget& oForm) {
  return settings::kForms + FormKeyName(oForm.objectName().toStdString());
}

std::optional<int> Stored(const QWidget& oForm, const char* sName) {
  const std::string sText = Registry().Find(SectionOf(oForm), sName).value_or("");
  std::optional<int> nStored;
  IgnoreFailure([&] {  // a number too large for a place is ignored
    if (const std::optional<Single> fValue = ToSingle(sText)) {
      nStored = RoundToLong(*fValue);
    }
  });
  return nStored;
}

int StoredPixels(const QWidget& oForm, const char* sName, int nOtherwise) {
  const std::optional<int> nTwips = Stored(oForm, sName);
  return nTwips ? RoundToLong(*nTwips / kTwipsPerPixel) : nOtherwise;
}

/// Whether enough of the title bar, or of the area below it, is on a screen to drag the window by.
bool CanBeGrasped(const QRect& oInside) {
  constexpr int kTitleBar = 24;
  constexpr int kLeastWidth = 80;
  const QRect oTop(oInside.left(), oInside.top() - kTitleBar, oInside.width(), 2 * kTitleBar);
  const QList<QScreen*> aoScreens = QGuiApplication::screens();
  return std::any_of(aoScreens.begin(), aoScreens.end(), [&](const QScreen* pScreen) {
    const QRect oSeen = pScreen->availableGeometry() & oTop;
    return oSeen.height() >= kTitleBar && oSeen.width() >= std::min(kLeastWidth, oInside.width());
  });
}

QRect BroughtOntoScreen(QRect oInside) {
  const QRect oScreen = QGuiApplication::primaryScreen()->availableGeometry();
  oInside.setSize(oInside.size().boundedTo(oScreen.size()));
  oInside.moveCenter(oScreen.center());
  return oInside;
}

}  // namespace

// The place kept is that of the window's inside: the thickness of its frame is known only while it
// is visible, so with the frame included, a window would drift and grow from one start to the next.

void SaveFormPosition(const QWidget& oForm) {
  const QRect oNormal = oForm.normalGeometry();
  const QRect oPlace = oNormal.isValid() ? oNormal : oForm.geometry();
  const std::string sSection = SectionOf(oForm);
  const auto fnStore = [&](const char* sName, int nPixels) {
    Registry().Set(sSection, sName, SingleText(nPixels * kTwipsPerPixel));
  };
  fnStore(settings::kTop, oPlace.top());
  fnStore(settings::kLeft, oPlace.left());
  fnStore(settings::kHeight, oPlace.height());
  fnStore(settings::kWidth, oPlace.width());
  const int nState = oForm.isMinimized() ? 1 : oForm.isMaximized() ? 2 : 0;
  Registry().Set(sSection, settings::kWindowState, std::to_string(nState));
}

void RestoreFormPosition(QWidget& oForm) {
  const QRect oDesign = oForm.geometry();
  const QSize oLargest = QGuiApplication::primaryScreen()->virtualSize();
  const QSize oSize(StoredPixels(oForm, settings::kWidth, oDesign.width()),
                    StoredPixels(oForm, settings::kHeight, oDesign.height()));
  const QRect oPlace({StoredPixels(oForm, settings::kLeft, oDesign.left()),
                      StoredPixels(oForm, settings::kTop, oDesign.top())},
                     oSize.boundedTo(oLargest).expandedTo(oForm.minimumSize()));
  if (oPlace != oDesign) {
    oForm.setGeometry(CanBeGrasped(oPlace) ? oPlace : BroughtOntoScreen(oPlace));
  }
  switch (Stored(oForm, settings::kWindowState).value_or(0)) {
    case 1:
      oForm.setWindowState(Qt::WindowMinimized);
      break;
    case 2:
      oForm.setWindowState(Qt::WindowMaximized);
      break;
    default:
      break;
  }
}

}  // namespace quillet
