// A button within a movie: an icon, words, or both.
#pragma once

#include <optional>

#include "look/PlainButton.h"
#include "look/icons.h"
#include "look/palette.h"

namespace quillet {

/// A checked one is drawn in the accent.
class MovieButton : public PlainButton {
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

 private:
  [[nodiscard]] std::optional<Ink> Face() const;

  Icon m_eIcon;
  double m_fScale = 1.0;
};

}  // namespace quillet
