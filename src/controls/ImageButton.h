// A button that is drawn as what it does.
#pragma once

#include <QAbstractButton>

#include "controls/Control.h"

namespace quillet {

/// What stands beside a button's words.
enum class ButtonPicture {
  None,
  Back,    ///< a chevron to the left, before the words
  Next,    ///< a chevron to the right, behind them
  Finish,  ///< a tick, before them
  About,
  Settings,
};

/// Works by the mouse, by Space and Enter, and by the access key of its caption.
class ImageButton : public QAbstractButton, public Control {
 public:
  explicit ImageButton(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Image"; }

  [[nodiscard]] QString Caption() const override { return text(); }
  void SetCaption(const QString& sCaption) override { setText(sCaption); }

  [[nodiscard]] ButtonPicture Picture() const { return m_ePicture; }
  void SetPicture(ButtonPicture ePicture);

  /// The one that goes on: drawn in the accent.
  void SetPrimary(bool bPrimary);

  /// One that chooses a page: without an edge, its words at the left, and lit while it is checked.
  void SetPage(bool bPage);

  /// How much of the right side stays free, in twips, where a neighbour's place begins early.
  void SetGap(int nGap);

  /// Its face begins at the very left of the place, and the line of the focus reaches beyond it.
  void SetFlush(bool bFlush);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void Placed() override;
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override;

 private:
  [[nodiscard]] QRectF Face() const;
  [[nodiscard]] QColor FaceColour() const;
  [[nodiscard]] QColor PageColour() const;
  [[nodiscard]] QColor WordsColour() const;
  void DrawPicture(QPainter& oPainter, const QRectF& oSquare) const;
  void DrawLabel(QPainter& oPainter, const QRectF& oFace) const;

  ButtonPicture m_ePicture = ButtonPicture::None;
  bool m_bPrimary = false;
  bool m_bPage = false;
  bool m_bFlush = false;
  int m_nGap = 0;
};

}  // namespace quillet
