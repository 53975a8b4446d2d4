// A button within a movie: an icon, words, or both.
#pragma once

#include <QPushButton>
#include <optional>

#include "look/icons.h"
#include "look/palette.h"

namespace quillet {

/// Works with the mouse, Space and Enter. A checked one is drawn in the accent.
class MovieButton : public QPushButton {
  Q_OBJECT

 public:
  MovieButton(Icon eIcon, const QString& sWords, QWidget* pParent);

  void SetIcon(Icon eIcon);
  /// Its size relative to the design of the movie that it is in.
  void SetScale(double fScale);

  /// The width of its text and icon, in pixels.
  [[nodiscard]] int WidthOfWords() const;

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override { return rect().contains(oAt); }

 private:
  [[nodiscard]] std::optional<Ink> Face() const;

  Icon m_eIcon;
  double m_fScale = 1.0;
};

}  // namespace quillet
