// The controls of a section: the toolkit's own, drawn in the theme.
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QRadioButton>
#include <QStyleOptionButton>

#include "controls/Control.h"

namespace quillet {

class Label : public QLabel, public Control {
 public:
  explicit Label(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "Label"; }
  [[nodiscard]] QString Caption() const override { return m_sCaption; }
  void SetCaption(const QString& sCaption) override;
  void SetForeColor(std::uint32_t nColour) override;
  /// Its size and weight at zoom 1.
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

/// A toolkit button with a mark before its text, which can be clicked anywhere in its place.
template <typename Kind>
class MarkedButton : public Kind, public Choice {
 public:
  explicit MarkedButton(QWidget* pParent) : Kind(pParent), Choice(static_cast<QWidget&>(*this)) {}
  [[nodiscard]] QString Caption() const override { return Kind::text(); }
  void SetCaption(const QString& sCaption) override {
    Kind::setText(sCaption);
    SetWidth(Width());
  }
  [[nodiscard]] int Value() const override { return Kind::isChecked() ? 1 : 0; }
  void SetValue(int nValue) override { Kind::setChecked(nValue != 0); }

 protected:
  [[nodiscard]] int PixelsForCaption() const override { return Kind::sizeHint().width(); }
  [[nodiscard]] bool hitButton(const QPoint& oAt) const override {
    return Kind::rect().contains(oAt);
  }
  void initStyleOption(QStyleOptionButton* pOption) const override {
    Kind::initStyleOption(pOption);
    pOption->palette.setColor(QPalette::WindowText, ColourOf(ForeColor()));
  }
};

/// Raises toggled() as its click, whether the mouse, the keyboard or the code changed it.
class CheckBox : public MarkedButton<QCheckBox> {
 public:
  using MarkedButton::MarkedButton;
  [[nodiscard]] const char* TypeName() const override { return "CheckBox"; }
};

/// One of the options of its container. Unlike the toolkit's, it can be unset by code, so that none
/// is chosen. Raises toggled() as its click; an option that another one unsets raises nothing.
class OptionButton : public MarkedButton<QRadioButton> {
  Q_OBJECT

 public:
  explicit OptionButton(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "OptionButton"; }

 protected:
  void keyPressEvent(QKeyEvent* pEvent) override;
  void nextCheckState() override { setChecked(true); }

 private:
  [[nodiscard]] QList<OptionButton*> Group() const;
  void PutOutOthers();
  void ChooseNeighbour(int nStep);
};

/// Holds other controls, and disables them with itself.
class Frame : public QFrame, public Control {
 public:
  explicit Frame(QWidget* pParent) : QFrame(pParent), Control(static_cast<QWidget&>(*this)) {}
  [[nodiscard]] const char* TypeName() const override { return "Frame"; }
};

}  // namespace quillet
