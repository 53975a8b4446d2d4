// The controls of a section: the toolkit's own, drawn in the theme.
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QRadioButton>

#include "controls/Control.h"

namespace quillet {

class Label : public QLabel, public Control {
 public:
  explicit Label(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Label"; }
  [[nodiscard]] QString Caption() const override { return m_sCaption; }
  void SetCaption(const QString& sCaption) override;
  void SetForeColor(std::uint32_t nColour) override;
  /// Its own size and weight at zoom 1.
  void SetFontSize(double fPoints, QFont::Weight eWeight);
  void Rescale() override;

 protected:
  [[nodiscard]] int PixelsForCaption() const override {
    return wordWrap() ? 0 : sizeHint().width();
  }

 private:
  QString m_sCaption;
  double m_fPoints;
  QFont::Weight m_eWeight = QFont::Medium;
};

/// Raises toggled() as its click, whether the mouse, the keyboard or the code changed it.
class CheckBox : public QCheckBox, public Choice {
 public:
  explicit CheckBox(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "CheckBox"; }
  [[nodiscard]] QString Caption() const override { return text(); }
  void SetCaption(const QString& sCaption) override;
  [[nodiscard]] int Value() const override { return isChecked() ? 1 : 0; }
  void SetValue(int nValue) override { setChecked(nValue != 0); }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return sizeHint().width(); }
  void paintEvent(QPaintEvent* pEvent) override;
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override { return rect().contains(oAt); }
};

/// One of the options of its container. Unlike the toolkit's it can be unset by code, so that none
/// is chosen. Raises toggled() as its click; an option that another one puts out raises nothing.
class OptionButton : public QRadioButton, public Choice {
  Q_OBJECT

 public:
  explicit OptionButton(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "OptionButton"; }
  [[nodiscard]] QString Caption() const override { return text(); }
  void SetCaption(const QString& sCaption) override;
  [[nodiscard]] int Value() const override { return isChecked() ? 1 : 0; }
  void SetValue(int nValue) override { setChecked(nValue != 0); }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return sizeHint().width(); }
  void paintEvent(QPaintEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void nextCheckState() override { setChecked(true); }
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override { return rect().contains(oAt); }

 private:
  [[nodiscard]] QList<OptionButton*> Group() const;
  void PutOutOthers();
  void ChooseNeighbour(int nStep);
};

/// Holds other controls, which can't be used while it is disabled.
class Frame : public QFrame, public Control {
 public:
  explicit Frame(QWidget* pParent) : QFrame(pParent), Control(static_cast<QWidget&>(*this)) {}
  [[nodiscard]] const char* TypeName() const override { return "Frame"; }
};

/// The bar by which a section is dragged. Raises what the mouse does on it, any button alike.
class Image : public QWidget, public Control {
  Q_OBJECT

 public:
  explicit Image(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Image"; }
  /// The words on it, which the design leaves out: the section's name.
  void SetCaption(const QString& sCaption) override;
  [[nodiscard]] QString Caption() const override { return m_sCaption; }

 signals:
  // Places in twips within the image.
  void MouseDown(float fX, float fY);
  void MouseMove(float fX, float fY);
  void MouseUp(float fX, float fY);

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  void mouseMoveEvent(QMouseEvent* pEvent) override;
  void mouseReleaseEvent(QMouseEvent* pEvent) override;

 private:
  QString m_sCaption;
};

/// The places of a box or option: how wide its mark is, and where its words begin, in pixels.
struct MarkPlaces {
  double fSize;
  int nTextLeft;
};
[[nodiscard]] MarkPlaces MarkPlacesAtZoom();

}  // namespace quillet
