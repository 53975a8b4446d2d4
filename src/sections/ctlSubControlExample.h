// The smallest panel of options, and the pattern for new ones; it stands in no window.
#pragma once

#include "sections/AuctionOptionsPanel.h"

namespace quillet {

class ctlSubControlExample : public AuctionOptionsPanel {
  Q_OBJECT

 public:
  explicit ctlSubControlExample(QWidget* pParent);
};

}  // namespace quillet
