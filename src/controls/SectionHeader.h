// The bar by which a section is dragged.
#pragma once

#include <QPoint>
#include <QWidget>

#include "controls/Control.h"

namespace quillet {

/// Any mouse button drags. Its tag is "1" while it is being dragged, else "0".
class SectionHeader : public QWidget, public Control {
  Q_OBJECT

 public:
  explicit SectionHeader(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Image"; }
  /// The text on it, which the design leaves out: the section's name.
  void SetCaption(const QString& sCaption) override;
  [[nodiscard]] QString Caption() const override { return m_sCaption; }

 signals:
  /// While it is dragged: how far the pointer is from where it was pressed, in twips.
  void Moved(float fX, float fY);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  void mouseMoveEvent(QMouseEvent* pEvent) override;
  void mouseReleaseEvent(QMouseEvent* pEvent) override;

 private:
  QString m_sCaption;
  QPoint m_oOrigin;  ///< twips within the bar, where it was pressed
};

}  // namespace quillet
