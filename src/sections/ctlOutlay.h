// The section for the item's cost, the prices of the listing and the quantity.
#pragma once

#include "engine/clsAuctionType.h"
#include "engine/clsOutlay.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlOutlay : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlOutlay(QWidget* pParent);

  /// Shows a model, and writes into it from then on. Both must outlive the panel; a null listing
  /// keeps the one given before.
  void ApplyOutlay(clsOutlay& oOutlay, const clsAuctionType* oAuctionType);

 protected:
  void UpdateModel() override;

 private:
  clsOutlay* m_oOutlay = nullptr;
  const clsAuctionType* m_oAuctionType = nullptr;
};

}  // namespace quillet
