// A button of the main window: an icon with its caption below. Sends "click".
#pragma once

#include <QPushButton>
#include <optional>

#include "look/icons.h"
#include "look/movies/movies.h"
#include "look/palette.h"

namespace quillet {

/// Designed in 72 by 72 units, scaled to its size.
class ButtonMovie : public QPushButton, public Movie {
 public:
  ButtonMovie(Icon eIcon, QWidget& oStage, SendCommand oSend);

  [[nodiscard]] QWidget& Widget() override { return *this; }
  void SetCurrent(bool bCurrent) override;

 protected:
  void focusInEvent(QFocusEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override { return rect().contains(oAt); }

 private:
  struct Look {
    Ink eIcon;
    Ink eCaption;
    std::optional<Ink> eTile;  ///< behind both
  };

  [[nodiscard]] Look LookNow() const;
  void DrawCaption(QPainter& oPainter, Ink eCaption, double fScale) const;

  Icon m_eIcon;
  bool m_bCurrent = false;
  bool m_bShowFocus = false;  ///< not after a click, when the user knows where the focus is
};

}  // namespace quillet
