// The section for whether and how the buyers pay by PayPal.
#pragma once

#include "engine/clsPayPal.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlPayPal : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlPayPal(QWidget* pParent);

  /// Shows a model, and writes into it from then on. The model takes the outlay for its latest.
  /// Both must outlive the panel; a null outlay throws a Failure.
  void ApplyFeatures(clsPayPal& oPayPal, const clsOutlay* oOutlay);

 protected:
  bool AddOwnNames(clsTokeniser& oList) const override;
  [[nodiscard]] std::string TipOf(const Control& oInput,
                                  const clsCalculate& oAuction) const override;
  void UpdateModel() override;

 private:
  clsPayPal* m_oPayPal = nullptr;
};

}  // namespace quillet
