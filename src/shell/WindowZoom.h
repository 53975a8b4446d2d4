// The zoom of the main window, and the size that the window takes with it.
#pragma once

#include <QSize>
#include <functional>

class QWidget;

namespace quillet {

class WindowZoom {
 public:
  /// `fnLayOut` lays the window, which must outlive this, out anew after each change.
  WindowZoom(QWidget& oWindow, std::function<void()> fnLayOut);

  /// Takes the stored zoom, and 100 percent where there is none. The caller lays out.
  void Load();

  /// Draws everything at another size, in percent, and remembers it. The window goes with it, as
  /// far as the screen has room.
  void SetPercent(int nPercent);

  /// Goes on to the next size.
  void Step(bool bLarger);

  /// No zoom was stored when it was loaded.
  [[nodiscard]] bool IsFirstStart() const { return m_bFirstStart; }

  /// For a first start: the largest zoom at which all of it, in twips, fits the screen, and a
  /// window that holds it in the screen's middle.
  void Fit(const QSize& oWhole);

  /// The largest that the window can be made on its screen, without the edges around it.
  [[nodiscard]] QSize RoomOnScreen() const;

 private:
  void ResizeWithZoom();
  void KeepOnScreen();

  QWidget& m_oWindow;
  std::function<void()> m_fnLayOut;
  QSize m_oChosenSize;  ///< twips; that of the window when it was last sized but by a zoom
  QSize m_oZoomedSize;  ///< pixels; that of the window when it was last sized by a zoom
  bool m_bFirstStart = false;
};

}  // namespace quillet
