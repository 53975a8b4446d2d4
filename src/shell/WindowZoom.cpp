#include "shell/WindowZoom.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "base/clsRegistryAccess.h"
#include "look/scale.h"
#include "shell/zoomSteps.h"

namespace quillet {

WindowZoom::WindowZoom(QWidget& oWindow, std::function<void()> fnLayOut)
    : m_oWindow(oWindow), m_fnLayOut(std::move(fnLayOut)) {}

void WindowZoom::Load() {
  const std::optional<int> nStored = StoredZoom();
  m_bFirstStart = !nStored;
  SetZoom(nStored.value_or(100) / 100.0);
}

void WindowZoom::SetPercent(int nPercent) {
  if (m_oWindow.size() != m_oZoomedSize) {
    m_oChosenSize = {Twips(m_oWindow.width()), Twips(m_oWindow.height())};
  }
  SetZoom(nPercent / 100.0);
  Registry().Set(settings::kZoom, std::to_string(nPercent));
  m_fnLayOut();
  ResizeWithZoom();
}

void WindowZoom::Step(bool bLarger) {
  SetPercent(NextZoomStep(static_cast<int>(std::lround(Zoom() * 100)), bLarger));
}

void WindowZoom::Fit(const QSize& oWhole) {
  // The window manager hasn't framed the window yet: allow for an ordinary frame.
  const QSize oFrame(16, 48);
  const QRect oScreen = m_oWindow.screen()->availableGeometry();
  const QSize oRoom = oScreen.size() - oFrame;
  SetPercent(LargestFittingZoom(oWhole.width() / kTwipsPerPixel, oWhole.height() / kTwipsPerPixel,
                                oRoom.width(), oRoom.height()));
  m_oWindow.resize(QSize(Pixels(oWhole.width()), Pixels(oWhole.height())).boundedTo(oRoom));
  const QSize oOuter = m_oWindow.size() + oFrame;
  m_oWindow.move(oScreen.topLeft() + QPoint((oScreen.width() - oOuter.width()) / 2,
                                            (oScreen.height() - oOuter.height()) / 2));
}

QSize WindowZoom::RoomOnScreen() const {
  return m_oWindow.screen()->availableSize() -
         (m_oWindow.frameGeometry().size() - m_oWindow.size());
}

/// Zooming back restores the window's size too.
void WindowZoom::ResizeWithZoom() {
  if (!m_oWindow.isMaximized()) {
    const QSize oWanted(Pixels(m_oChosenSize.width()), Pixels(m_oChosenSize.height()));
    m_oWindow.resize(oWanted.boundedTo(RoomOnScreen()));
    KeepOnScreen();
  }
  m_oZoomedSize = m_oWindow.size();
}

void WindowZoom::KeepOnScreen() {
  const QRect oScreen = m_oWindow.screen()->availableGeometry();
  const QRect oFrame = m_oWindow.frameGeometry();
  const QPoint oFarthest = oScreen.bottomRight() - QPoint(oFrame.width(), oFrame.height());
  const QPoint oAt(std::max(oScreen.left(), std::min(oFrame.left(), oFarthest.x() + 1)),
                   std::max(oScreen.top(), std::min(oFrame.top(), oFarthest.y() + 1)));
  if (oAt != oFrame.topLeft()) {
    m_oWindow.move(oAt);
  }
}

}  // namespace quillet
