// A button with text, a picture, or both.
#pragma once

#include "controls/Control.h"
#include "look/PlainButton.h"

namespace quillet {

/// The picture beside a button's text.
enum class ButtonPicture {
  None,
  Back,    ///< a left chevron, before the text
  Next,    ///< a right chevron, after the text
  Finish,  ///< a tick, before the text
  About,
  Settings,
};

/// Works with the access key in its caption too.
class ImageButton : public PlainButton, public Control {
 public:
  explicit ImageButton(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Image"; }

  [[nodiscard]] QString Caption() const override { return text(); }
  void SetCaption(const QString& sCaption) override { setText(sCaption); }

  [[nodiscard]] ButtonPicture Picture() const { return m_ePicture; }
  void SetPicture(ButtonPicture ePicture);

  /// The main button of its window: drawn in the accent.
  void SetPrimary(bool bPrimary);

  /// A button that selects a page: no edge, text at the left, and highlighted while checked.
  void SetPage(bool bPage);

  /// How much to leave free at the right, in twips, where a neighbour overlaps its place.
  void SetGap(int nGap);

  /// Its face begins at the very left of its place, and the focus line extends beyond it.
  void SetFlush(bool bFlush);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void Placed() override;
  void paintEvent(QPaintEvent* pEvent) override;
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override;

 private:
  [[nodiscard]] bool IsLit() const;
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
