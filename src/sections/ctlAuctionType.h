// The section for the kind of listing.
#pragma once

#include "engine/clsAuctionType.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlAuctionType : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlAuctionType(QWidget* pParent);

  /// Shows a listing, and writes into it from then on. It must outlive the panel, and its fees must
  /// have been worked out once. An input that this changes writes into the listing at once and
  /// raises Changed.
  void ApplyAuctionType(clsAuctionType& oAuctionType);

  /// Shows the fees of a listing, whatever the boxes show.
  void ShowTotal(clsAuctionType& oAuctionType);

 protected:
  void UpdateModel() override;
  void InputClicked(Control& oInput) override;
  [[nodiscard]] std::string TipOf(const Control& oInput,
                                  const clsCalculate& oAuction) const override;

 private:
  void SyncShopInventory(bool bShopClicked);
  void ShowWhatIsOnOffer();

  clsAuctionType* m_oAuctionType = nullptr;
};

}  // namespace quillet
