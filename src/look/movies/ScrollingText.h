// A message that scrolls upward, over and over. The wheel and the arrow keys move it; a click or
// the space bar pauses and resumes it.
#pragma once

#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>
#include <QWidget>

namespace quillet {

class ScrollingText : public QWidget {
  Q_OBJECT

 public:
  /// Each "<br>" in the text begins a new line; everything else is shown as it is.
  ScrollingText(const QString& sText, QWidget* pParent);

  /// Its size relative to the design of the movie that it is in.
  void SetScale(double fScale);

  /// How far the text has scrolled, in pixels.
  [[nodiscard]] double Offset() const { return m_fOffset; }

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;
  void showEvent(QShowEvent* pEvent) override;
  void hideEvent(QHideEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  void wheelEvent(QWheelEvent* pEvent) override;

 private:
  void Advance();
  void Move(double fPixels);
  void Wrap();
  [[nodiscard]] double LineHeight() const;

  QStringList m_asParagraphs;
  QStringList m_asLines;  ///< as they fit the width
  QTimer m_oTicks;
  QElapsedTimer m_oClock;
  double m_fScale = 1.0;
  double m_fOffset = 0.0;
  double m_fRest = 0.0;  ///< seconds before it moves again
  bool m_bHeld = false;
};

}  // namespace quillet
