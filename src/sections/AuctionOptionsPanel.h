// The small panels of options that refine the kind of listing: one class, and for each panel a
// table of its options and the model's code for each.
#pragma once

#include <cstdint>
#include <span>

#include "engine/clsAuctionType.h"
#include "sections/SectionPanel.h"

namespace quillet {

/// An input with the Show box beside it.
struct OptionRow {
  const char* sName;
  const char* sCaption;
  int nTop;
  int nWidth;
  std::int32_t nValue;  ///< the value of the model's field when the input is chosen
  const char* sShowBox;
  const char* sTag;
};

/// What a panel shows and edits of the listing.
struct AuctionOptions {
  PanelDesign oDesign;
  std::int32_t clsAuctionType::*m_lField;
  bool (*fnActive)(const clsAuctionType& oAuctionType);  ///< false: the inputs are greyed
  std::span<const OptionRow> aoRows;
  /// False: that input is closed as well; null if all are on offer.
  bool (*fnOnOffer)(std::int32_t nValue) = nullptr;

  [[nodiscard]] bool IsOnOffer(std::int32_t nValue) const {
    return fnOnOffer == nullptr || fnOnOffer(nValue);
  }
};

class AuctionOptionsPanel : public SectionPanel {
  Q_OBJECT

 public:
  /// `oOptions` must live as long as the panel.
  AuctionOptionsPanel(const AuctionOptions& oOptions, QWidget* pParent);

  /// Shows a listing, and writes into it from then on. It must outlive the panel. An input that
  /// this changes writes into the listing at once and raises Changed.
  void ApplyAuctionType(clsAuctionType& oAuctionType);

 protected:
  void UpdateModel() override;
  [[nodiscard]] std::string TipOf(const Control& oInput,
                                  const clsCalculate& oAuction) const override;

 private:
  const AuctionOptions& m_oOptions;
  clsAuctionType* m_oAuctionType = nullptr;
};

/// Makes a member's panel.
template <const AuctionOptions& oOptions>
SectionPanel* MakeOptions(QWidget* pParent) {
  return new AuctionOptionsPanel(oOptions, pParent);
}

// The members, by the names of their types.
extern const AuctionOptions ctlMotorOptions;           ///< the vehicle of a motor listing
extern const AuctionOptions ctlRealEstateOptionsLand;  ///< which real estate is on offer
extern const AuctionOptions ctlRealEstateOptionsSale;  ///< by auction or by advertisement
extern const AuctionOptions ctlShopDurations;          ///< how long it stays in the shop
extern const AuctionOptions ctlSubControlExample;      ///< the pattern for new ones, in no window

[[nodiscard]] bool IsRealEstate(const clsAuctionType& oAuctionType);

}  // namespace quillet
