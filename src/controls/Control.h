// What a section reads and writes in any control, whatever its toolkit class.
#pragma once

#include <QString>
#include <cstdint>
#include <string>

#include "look/palette.h"

class QWidget;

namespace quillet {

/// A mixin for widgets. Places are kept in whole twips; the widget's pixels follow from them at the
/// current zoom, and nothing is ever read back from pixels.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  /// The control's class: "Label", "CheckBox", "OptionButton", "Frame", "Image", or "ctl..." for
  /// the project's own.
  [[nodiscard]] virtual const char* TypeName() const = 0;

  [[nodiscard]] const std::string& Name() const { return m_sName; }
  void SetName(const std::string& sName);

  [[nodiscard]] const std::string& Tag() const { return m_sTag; }
  void SetTag(const std::string& sTag) { m_sTag = sTag; }

  [[nodiscard]] int Left() const { return m_nLeft; }
  [[nodiscard]] int Top() const { return m_nTop; }
  [[nodiscard]] int Width() const { return m_nWidth; }
  [[nodiscard]] int Height() const { return m_nHeight; }
  void SetLeft(int nLeft) { Place(nLeft, m_nTop, m_nWidth, m_nHeight); }
  void SetTop(int nTop) { Place(m_nLeft, nTop, m_nWidth, m_nHeight); }
  void SetWidth(int nWidth) { Place(m_nLeft, m_nTop, nWidth, m_nHeight); }
  void SetHeight(int nHeight) { Place(m_nLeft, m_nTop, m_nWidth, nHeight); }
  void Place(int nLeft, int nTop, int nWidth, int nHeight);

  /// The control's own flag: true even if a hidden panel hides the control.
  [[nodiscard]] bool Visible() const { return m_bVisible; }
  void SetVisible(bool bVisible);

  [[nodiscard]] bool Enabled() const;
  void SetEnabled(bool bEnabled);

  /// A colour as in palette.h.
  [[nodiscard]] std::uint32_t ForeColor() const { return m_nForeColor; }
  virtual void SetForeColor(std::uint32_t nColour);

  /// The control's text, if its kind has any. "&&" is an ampersand, a single "&" marks the access
  /// key.
  [[nodiscard]] virtual QString Caption() const { return {}; }
  virtual void SetCaption(const QString& /*sCaption*/) {}

  /// The Frame or panel that contains this control; null for a window.
  [[nodiscard]] Control* Container() const;

  [[nodiscard]] QWidget& Widget() const { return *m_oWidget; }

  /// Updates its place and font after a change of zoom.
  virtual void Rescale();

 protected:
  explicit Control(QWidget& oWidget) : m_oWidget(&oWidget) {}

  /// The width that the whole caption needs: where the design is too narrow for the font, the
  /// widget extends beyond its place to the right.
  [[nodiscard]] virtual int PixelsForCaption() const { return 0; }

  /// Called at the end of Place, for anything that depends on the control's size.
  virtual void Placed() {}

 private:
  QWidget* m_oWidget;
  std::string m_sName;
  std::string m_sTag;
  int m_nLeft = 0;
  int m_nTop = 0;
  int m_nWidth = 0;
  int m_nHeight = 0;
  bool m_bVisible = true;
  std::uint32_t m_nForeColor = kColourWindow;
};

/// A control that is chosen or not: a CheckBox or an OptionButton.
class Choice : public Control {
 public:
  /// 0 or 1. Writing another value raises the control's click.
  [[nodiscard]] virtual int Value() const = 0;
  virtual void SetValue(int nValue) = 0;

 protected:
  using Control::Control;
};

/// A control's caption as shown, without the mark of its access key.
[[nodiscard]] QString WordsOf(const Control& oControl);

/// Rescales every control below a widget.
void RescaleAll(QWidget& oWidget);

}  // namespace quillet
