// The section for how the item is sent, with the price of each service beside it.
#pragma once

#include "engine/clsPostage.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlPostage : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlPostage(QWidget* pParent);

  /// Shows a model, and writes into it from then on. Both must outlive the panel; a null outlay
  /// throws a Failure.
  void ApplyFeatures(clsPostage& oPostage, const clsOutlay* oOutlay);

 protected:
  void UpdateModel() override;
  void EnableShowChecks() override;

 private:
  void ShowChoices(const clsPostage& oPostage);
  void ShowPrices(const clsPostage& oPostage);
  void ShowWhatIsOpen(const clsPostage& oPostage, const clsOutlay& oOutlay);

  clsPostage* m_oPostage = nullptr;
};

}  // namespace quillet
