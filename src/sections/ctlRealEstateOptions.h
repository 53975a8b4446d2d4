// The options of a real estate listing: two panels of them, and whether the bid is binding.
#pragma once

#include "engine/clsAuctionType.h"
#include "sections/SectionPanel.h"

namespace quillet {

class ctlRealEstateOptions : public SectionPanel {
  Q_OBJECT

 public:
  explicit ctlRealEstateOptions(QWidget* pParent);

  /// Shows a listing, and writes into it from then on. It must outlive the panel. An input that
  /// this changes writes into the listing at once and raises Changed.
  void ApplyAuctionType(clsAuctionType& oAuctionType);

 protected:
  void UpdateModel() override;
  [[nodiscard]] std::string TipOf(const Control& oInput,
                                  const clsCalculate& oAuction) const override;
  bool AddOwnNames(clsTokeniser& oList) const override;
  [[nodiscard]] bool StoresOwnNames() const override { return true; }

 private:
  clsAuctionType* m_oAuctionType = nullptr;
};

}  // namespace quillet
