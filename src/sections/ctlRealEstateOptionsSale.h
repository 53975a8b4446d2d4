// How real estate is offered: by auction or by advertisement, and for how long.
#pragma once

#include "sections/AuctionOptionsPanel.h"

namespace quillet {

class ctlRealEstateOptionsSale : public AuctionOptionsPanel {
  Q_OBJECT

 public:
  explicit ctlRealEstateOptionsSale(QWidget* pParent);
};

}  // namespace quillet
