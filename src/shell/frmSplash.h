// The window that plays a movie while the program starts.
#pragma once

#include <QWidget>

#include "base/Application.h"

namespace quillet {

class ShockwaveFlash;

/// Borderless, in the middle of the screen and not in the task bar. When made, its movie is already
/// playing, but the window isn't shown yet.
class frmSplash : public QWidget, public SplashWindow {
  Q_OBJECT

 public:
  frmSplash();

  [[nodiscard]] bool LoadComplete() const override { return m_bLoadComplete; }
  [[nodiscard]] bool MovieComplete() const override { return m_bMovieComplete; }
  void Hide() override { hide(); }

 signals:
  /// A key or click when the movie has ended: the user wants to go on.
  void Hurried();

 protected:
  void keyPressEvent(QKeyEvent* /*pEvent*/) override { emit Hurried(); }
  void mousePressEvent(QMouseEvent* /*pEvent*/) override { emit Hurried(); }

 private:
  void Form_Load();
  void FitToScreen();
  void ShockwaveFlash1_FSCommand(const QString& sCommand);

  ShockwaveFlash* m_pShockwaveFlash1;
  bool m_bLoadComplete = false;
  bool m_bMovieComplete = false;
};

}  // namespace quillet
