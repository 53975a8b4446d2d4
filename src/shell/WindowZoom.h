// The zoom of the main window, and the window's size, which follows it.
#pragma once

#include <QSize>
#include <functional>

class QWidget;

namespace quillet {

class WindowZoom {
 public:
  /// `fnLayOut` lays the window out again after each change. The window must outlive this.
  WindowZoom(QWidget& oWindow, std::function<void()> fnLayOut);

  /// Loads the stored zoom, or 100 percent if there is none. The caller lays out.
  void Load();

  /// Draws everything at another size, in percent, and remembers it. The window is resized to
  /// match, as far as the screen has room.
  void SetPercent(int nPercent);

  /// Steps to the next size.
  void Step(bool bLarger);

  /// No zoom was stored when it was loaded.
  [[nodiscard]] bool IsFirstStart() const { return m_bFirstStart; }

  /// For a first start: sets the largest zoom at which `oWhole`, in twips, fits the screen, and
  /// centres a window that holds it.
  void Fit(const QSize& oWhole);

  /// The largest size that the window can have on its screen, without the frame around it.
  [[nodiscard]] QSize RoomOnScreen() const;

 private:
  void ResizeWithZoom();
  void KeepOnScreen();

  QWidget& m_oWindow;
  std::function<void()> m_fnLayOut;
  QSize m_oChosenSize;  ///< twips; when the window was last sized other than by a zoom
  QSize m_oZoomedSize;  ///< pixels; when the window was last sized by a zoom
  bool m_bFirstStart = false;
};

}  // namespace quillet
