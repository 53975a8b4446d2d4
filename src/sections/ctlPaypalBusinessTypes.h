// The merchant-rate bands of a premier or business account, within the PayPal section.
#pragma once

#include "engine/clsPayPal.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlPaypalBusinessTypes : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlPaypalBusinessTypes(QWidget* pParent);

  /// Shows a model, which must outlive the panel, and writes into it from then on: at once, if
  /// another band was shown.
  void ApplyFeatures(clsPayPal& oPayPal);

 protected:
  void UpdateModel() override;

 private:
  clsPayPal* m_oPayPal = nullptr;
};

}  // namespace quillet
