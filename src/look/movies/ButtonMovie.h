// A button of the main window: an icon with its caption below. Sends "click".
#pragma once

#include <optional>

#include "look/PlainButton.h"
#include "look/icons.h"
#include "look/palette.h"

namespace quillet {

/// Designed in 72 by 72 units, scaled to its size.
class ButtonMovie : public PlainButton {
  Q_OBJECT

 public:
  ButtonMovie(Icon eIcon, const char* sCaption, QWidget* pStage);

  /// Whether its view is showing.
  void SetCurrent(bool bCurrent);

 signals:
  void Command(const QString& sCommand);

 protected:
  void focusInEvent(QFocusEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;

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
