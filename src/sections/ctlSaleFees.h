// The section for today's fees on a sale. Its choices are the fee schedule's.
#pragma once

#include "engine/clsSaleFees.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlSaleFees : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlSaleFees(QWidget* pParent);

  /// Shows a model and the result of its latest DoCalc, and writes into it from then on. It must
  /// outlive the panel.
  void ApplyFees(clsSaleFees& oSaleFees);

  [[nodiscard]] bool IsInUse(const Control& oControl) const override;

 protected:
  void EnableShowChecks() override;
  void UpdateModel() override;

 private:
  void ShowNames(const SaleRates& oRates);
  void ShowInputs(const SaleInputs& oInputs);
  void ShowCategory(std::int32_t nCategory);

  clsSaleFees* m_oSaleFees = nullptr;
};

}  // namespace quillet
