// The small panels of options that refine the kind of listing. Each is one table: which options
// there are, and which code of the model each of them stands for.
#pragma once

#include <array>
#include <cstddef>
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
  std::int32_t nValue;  ///< what the model's field holds when the input is chosen
  const char* sShowBox;
  const char* sTag;
};

/// What a panel shows and edits of the listing.
struct AuctionOptions {
  std::int32_t clsAuctionType::*m_lField;
  bool (*fnActive)(const clsAuctionType& oAuctionType);  ///< false: the inputs are grey
  std::span<const OptionRow> aoRows;
};

class AuctionOptionsPanel : public SectionPanel {
  Q_OBJECT

 public:
  /// Shows a listing, and writes into it from then on. It must outlive the panel. An input whose
  /// value changes by it writes into the listing at once and raises Changed.
  void ApplyAuctionType(clsAuctionType& oAuctionType);

 protected:
  /// Both designs must live as long as the panel.
  AuctionOptionsPanel(const PanelDesign& oDesign, const AuctionOptions& oOptions, QWidget* pParent);

  void UpdateModel() override;

 private:
  const AuctionOptions& m_oOptions;
  clsAuctionType* m_oAuctionType = nullptr;
};

[[nodiscard]] bool IsRealEstate(const clsAuctionType& oAuctionType);

/// The controls of a panel that has nothing but rows of options.
template <std::size_t nRows>
constexpr std::array<ControlDesign, 2 * nRows> OptionControls(
    const std::array<OptionRow, nRows>& aoRows, ControlKind eKind, int nBoxLeft, int nBoxWidth) {
  constexpr int kHeight = 255;
  std::array<ControlDesign, 2 * nRows> aoControls{};
  for (std::size_t i = 0; i < nRows; ++i) {
    const OptionRow& oRow = aoRows[i];
    aoControls[2 * i] = {oRow.sName, eKind, oRow.sCaption, 0, oRow.nTop, oRow.nWidth, kHeight};
    aoControls[2 * i + 1] = {
        oRow.sShowBox, ControlKind::kCheckBox, "Show", nBoxLeft, oRow.nTop, nBoxWidth, kHeight,
        oRow.sTag};
  }
  return aoControls;
}

}  // namespace quillet
