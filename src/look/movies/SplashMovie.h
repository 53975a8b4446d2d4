// The splash movie: a quill writes the product's name. Sends "start" when it begins and "stop" when
// it ends, which any key or click does at once.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace quillet {

/// Designed in 553 by 305 units, scaled to its size. Begins when it is played, and keeps showing
/// its last picture. A key or click ends it; later ones go to its window.
class SplashMovie : public QWidget {
  Q_OBJECT

 public:
  /// `sParameters` is "Version=" with the edition: "UK", "US" or "EU".
  SplashMovie(const QString& sParameters, QWidget* pStage);

  void Play();

 signals:
  void Command(const QString& sCommand);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;

 private:
  void Advance();
  void End();
  void Tell(bool& bTold, const char* sCommand);
  void DrawGround(QPainter& oPainter) const;
  void DrawName(QPainter& oPainter, double fScale) const;
  void DrawLine(QPainter& oPainter) const;
  void DrawWords(QPainter& oPainter, double fScale) const;

  QString m_sEdition;
  QTimer m_oTicks;
  QElapsedTimer m_oClock;
  double m_fNow = 0.0;  ///< seconds since it began
  bool m_bStarted = false;
  bool m_bStopped = false;
};

}  // namespace quillet
