// How long a listing stays in the seller's shop.
#pragma once

#include "sections/AuctionOptionsPanel.h"

namespace quillet {

class ctlShopDurations : public AuctionOptionsPanel {
  Q_OBJECT

 public:
  explicit ctlShopDurations(QWidget* pParent);
};

}  // namespace quillet
