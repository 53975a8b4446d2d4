// Which real estate is on offer.
#pragma once

#include "sections/AuctionOptionsPanel.h"

namespace quillet {

class ctlRealEstateOptionsLand : public AuctionOptionsPanel {
  Q_OBJECT

 public:
  explicit ctlRealEstateOptionsLand(QWidget* pParent);
};

}  // namespace quillet
