// The insurance bands of a parcel, within the postage section.
#pragma once

#include "engine/clsPostage.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlPostageParcelInsurance : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlPostageParcelInsurance(QWidget* pParent);

  /// Shows a model, which must outlive the panel, and writes into it from then on: at once, if
  /// another band was shown.
  void ApplyAuctionType(clsPostage& oPostage);

 protected:
  void UpdateModel() override;

 private:
  clsPostage* m_oPostage = nullptr;
};

}  // namespace quillet
