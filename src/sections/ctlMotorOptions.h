// The vehicle of a motor listing.
#pragma once

#include "sections/AuctionOptionsPanel.h"

namespace quillet {

class ctlMotorOptions : public AuctionOptionsPanel {
  Q_OBJECT

 public:
  explicit ctlMotorOptions(QWidget* pParent);
};

}  // namespace quillet
