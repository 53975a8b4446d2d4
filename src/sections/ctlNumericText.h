// The input for amounts, quantities and weights: a text box that shows a number in a fixed format,
// and a spin button. The arrow keys and the spin button step the number: left of the decimal
// separator by whole units, right of it by the last decimal place. Anything may be typed; when the
// focus leaves with a bad text, the last good one comes back, and the edge stays red until the box
// gets another text or is left again.
#pragma once

#include <QLineEdit>
#include <QWidget>
#include <cstdint>
#include <string>

#include "base/Single.h"
#include "controls/Control.h"
#include "look/palette.h"
#include "sections/NumericText.h"

namespace quillet {

class SpinButton;

class ctlNumericText : public QWidget, public Control {
  Q_OBJECT

 public:
  explicit ctlNumericText(QWidget* pParent);

  [[nodiscard]] const char* TypeName() const override { return "ctlNumericText"; }

  // Writing one of these three also shows 0, or the bound nearest to it: so set them first. The
  // program itself reads none of them back.

  [[nodiscard]] int DecimalPlaces() const { return m_oNumber.m_nDecimalPlaces; }
  void SetDecimalPlaces(std::int16_t nPlaces);
  [[nodiscard]] bool ShowMoney() const { return m_oNumber.m_bShowMoney; }
  void SetShowMoney(bool bShowMoney);
  /// "." at first. This one is looked for in the text; the text shown has the user's own
  /// (Host::DecimalSeparator), so owners set it to that.
  [[nodiscard]] std::string DecimalSeperator() const;
  void SetDecimalSeperator(const std::string& sSeparator);

  /// The bounds; equal ones, as at first, mean none. The shown text stays until it is next written.
  [[nodiscard]] Single Min() const { return m_oNumber.m_fMin; }
  void SetMin(Single fMin) { m_oNumber.m_fMin = fMin; }
  [[nodiscard]] Single Max() const { return m_oNumber.m_fMax; }
  void SetMax(Single fMax) { m_oNumber.m_fMax = fMax; }

  /// The text in the box, with the currency symbol. Writing a number shows it in the box's format
  /// and within its bounds, any other text as it is; it raises nothing. Throws a Failure for a
  /// number too large for a Single, or without decimals for 32 bits.
  [[nodiscard]] std::string Text() const;
  void SetText(const std::string& sText);

  /// The number in the box; 0 if the text isn't one. A written value is ignored: the box only shows
  /// its own number in its format again.
  [[nodiscard]] Single Value() const;
  void SetValue(Single fIgnored);

  /// A colour as in palette.h; in an input, "window text" is the colour of its text, and "window"
  /// that of its background. The program itself leaves the background alone.
  void SetForeColor(std::uint32_t nColour) override;
  [[nodiscard]] std::uint32_t BackColor() const { return m_nBackColor; }
  void SetBackColor(std::uint32_t nColour);

  /// What screen readers call the box.
  void SetAccessibleName(const QString& sName);

  void Refresh() { update(); }

  /// Enters what was typed, as leaving the box does; does nothing if nothing was typed. False, and
  /// a red edge, if it was refused.
  bool CommitTyping();

  /// The same for the box that has the focus, if one has.
  static bool CommitFocused();

  /// Removes the red edge, for another auction's amount.
  void ForgetRefusal() { SetRefused(false); }

  /// Moves the focus to a view on the program's own account. A box that loses it enters what was
  /// typed, and raises nothing if nothing was.
  static void LeaveFor(QWidget& oView);

  /// The part that takes the focus.
  [[nodiscard]] QLineEdit* TextBox() const { return m_pText; }

 signals:
  /// The arrow keys or the spin button have stepped, or the focus has left. Typing raises nothing.
  void Changed();

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  void wheelEvent(QWheelEvent* pEvent) override;
  void Placed() override;

 private:
  bool txtValue_KeyDown(const QKeyEvent& oEvent);
  void txtValue_Change();
  void UserControl_LostFocus();
  void UpDown1_Change();

  void SetDisplayValue(Single fValue);
  void SetRefused(bool bRefused);
  void StepAndTell(int nDelta, bool bInDecimals);
  [[nodiscard]] BoxText Box() const;
  void Show(const BoxText& oBox);

  NumericText m_oNumber;
  std::u16string m_sLastValidText;
  int m_nLastSpinValue = 0;
  int m_nWheel = 0;         ///< how far the wheel has turned since the last step
  bool m_bRefused = false;  ///< what the user typed isn't a number for this box
  std::uint32_t m_nBackColor = kColourWindow;
  QLineEdit* m_pText;
  SpinButton* m_pSpin;
};

}  // namespace quillet
