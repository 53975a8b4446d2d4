// The family of input panels: the sections of an auction and the sub-controls within them.
//
// A member is a table of its controls and a few switches (PanelDesign), its Apply routine and its
// UpdateModel; everything else is here, once. Beside each row of inputs is a box captioned "Show",
// and the rows whose boxes are ticked are stored as a list of tags. In config mode (ShowConfig) the
// boxes are visible and every row is shown; in normal mode only the stored rows are, packed
// upwards, and the panel shrinks to fit. Rows that the region lacks are hidden in both.
#pragma once

#include <QWidget>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"
#include "controls/Controls.h"
#include "prices/PriceKey.h"
#include "sections/PanelDesign.h"
#include "sections/clsControlLocator.h"
#include "sections/ctlNumericText.h"

namespace quillet {

class SectionHeader;
class clsCalculate;

/// An option, and the code that it stands for in the model.
struct OptionCode {
  const char* sOption;
  std::int32_t nCode;
};

class SectionPanel : public QWidget, public Control {
  Q_OBJECT

 public:
  [[nodiscard]] const char* TypeName() const override { return m_oDesign.sTypeName; }
  [[nodiscard]] const char* SectionKey() const { return m_oDesign.sSectionKey; }
  [[nodiscard]] const char* Title() const { return m_oDesign.sTitle; }

  /// Config mode of this panel. Every write lays the panel out again, its sub-controls first.
  [[nodiscard]] bool ShowConfig() const { return m_bShowConfig; }
  void SetShowConfig(bool bShowConfig);

  /// The parent calls this when the panel gets or loses the focus: in config mode the header shows
  /// while it has it.
  void GotFocus();
  void LostFocus();

  /// The auction that the panel's model is part of: tooltips say what an input would do to it. It
  /// must outlive the panel.
  void SetAuction(const clsCalculate& oAuction) { m_oAuction = &oAuction; }

  /// A control by name; null if there is none.
  [[nodiscard]] Control* Find(std::string_view sName) const;
  [[nodiscard]] const std::vector<Control*>& Controls() const { return m_aoControls; }

  /// False for a control that means nothing with the fee schedule: it has no row, whatever rows the
  /// user chose.
  [[nodiscard]] virtual bool IsInUse(const Control& /*oControl*/) const { return true; }

  /// How wide the panel is in config mode, in twips.
  [[nodiscard]] int ConfigWidth() const;

  /// Where the rows begin, in twips from the panel's left.
  [[nodiscard]] int ContentLeft() const;

  /// Every input, including those of sub-controls, row by row.
  [[nodiscard]] QList<QWidget*> InputsInReadingOrder() const;

 signals:
  /// While the header is dragged: how far the pointer is from where it was pressed, in twips.
  void Moved(float fX, float fY);
  /// The panel has written its inputs into its model.
  void Changed();

 protected:
  /// `oDesign` must live as long as the panel.
  SectionPanel(const PanelDesign& oDesign, QWidget* pParent);

  /// Writes the inputs into the model and raises Changed.
  virtual void UpdateModel() = 0;
  /// Called when the user, or the code, has changed an input other than a Show box.
  virtual void InputClicked(Control& /*oInput*/) { UpdateModel(); }
  /// Adds names to a list that has no Show box for them; true if it added any.
  virtual bool AddOwnNames(clsTokeniser& /*oList*/) const { return false; }
  /// Whether AddOwnNames is also called when the user's ticks are stored.
  [[nodiscard]] virtual bool StoresOwnNames() const { return false; }
  /// What a member does besides moving a control to its row's new place.
  virtual void AfterPlacing(const Control& /*oPlaced*/) {}
  /// The Show boxes can be reached only in config mode, and are beside their rows.
  virtual void EnableShowChecks();

  /// A control of a known kind; there must be one of that name.
  template <typename Kind>
  [[nodiscard]] Kind& The(std::string_view sName) const {
    return dynamic_cast<Kind&>(*Find(sName));
  }
  [[nodiscard]] int ValueOf(std::string_view sName) const { return The<Choice>(sName).Value(); }
  void SetValueOf(std::string_view sName, int nValue) { The<Choice>(sName).SetValue(nValue); }

  /// Sets the option of a code and unsets the others, in their order.
  void SetChosen(std::span<const OptionCode> aoOptions, std::int32_t nCode);
  /// The code of the option that is set, or `nNone`.
  [[nodiscard]] std::int32_t ChosenOf(std::span<const OptionCode> aoOptions,
                                      std::int32_t nNone) const;

  /// Sets a row's caption, and with it the names of its input and its Show box.
  void SetRowCaption(Control& oNamed, const QString& sCaption);
  /// Sets it to the fee schedule's text under a key, or else to the design's.
  void SetRowCaptionBySchedule(Control& oNamed, const KeyText& oKey);

  /// The tooltip of an input; empty if it has none. Called when it is about to be shown.
  [[nodiscard]] virtual std::string TipOf(const Control& /*oInput*/,
                                          const clsCalculate& /*oAuction*/) const {
    return {};
  }

  bool event(QEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void showEvent(QShowEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  void Placed() override;

  /// UpdateModel has nothing to do: the inputs are being set. The members whose clicks must come
  /// back to their Apply routine leave it alone.
  bool m_bApplying = false;

 private:
  void MakeControl(const ControlDesign& oControl);
  void Listen(Control& oControl);
  void NameTheInputs();

  [[nodiscard]] const clsCalculate* Auction() const;
  bool ShowTip(QWidget* pInput, const QPoint& oAt) const;

  /// The tops and heights at which the rows are registered.
  enum class RowPlaces { kDesigned, kAsTheyStand };

  void EnsureVisibleList();
  void BuildLocator(RowPlaces ePlaces);
  void UpdateLocator();
  void LoadShowChecks();
  void UpdateSectionLayout();
  void ApplyAllVisibility();
  void PlaceControls();
  void AlignShowChecks();
  [[nodiscard]] Control* FindRowControl(const Control& oBox) const;
  void SaveShowChecks();

  [[nodiscard]] SectionHeader* Header() const;
  [[nodiscard]] bool IsRow(const Control& oControl) const;

  const PanelDesign& m_oDesign;
  clsControlLocator m_oLocator;
  std::vector<Control*> m_aoControls;        ///< in collection order
  const clsCalculate* m_oAuction = nullptr;  ///< null in a panel within another, which has it
  bool m_bShowConfig = false;
  bool m_bLoading = false;  ///< the Show boxes are being set: nothing is stored
};

}  // namespace quillet
