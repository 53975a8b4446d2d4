// The tables of the option panels.
#include <array>
#include <cstddef>

#include "sections/AuctionOptionsPanel.h"

namespace quillet {
namespace {

/// The controls of a panel that has nothing but rows of options.
template <std::size_t nRows>
constexpr std::array<ControlDesign, 2 * nRows> Controls(const std::array<OptionRow, nRows>& aoRows,
                                                        ControlKind eKind, int nBoxLeft,
                                                        int nBoxWidth) {
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

/// What the designs differ in; the visibility list is the panel's own unless it is given.
struct Sizes {
  const char* sTypeName;
  const char* sTitle;
  const char* sSectionKey;
  int nWidth;
  int nHeight;
  const char* sVisibilityList = nullptr;
};

constexpr PanelDesign Design(const Sizes& oSizes, std::span<const ControlDesign> aoControls) {
  return {.sTypeName = oSizes.sTypeName,
          .sTitle = oSizes.sTitle,
          .sSectionKey = oSizes.sSectionKey,
          .sReferenceBox = aoControls[1].sName,
          .sVisibilityList =
              oSizes.sVisibilityList != nullptr ? oSizes.sVisibilityList : oSizes.sSectionKey,
          .bAddingComplete = true,
          .nWidth = oSizes.nWidth,
          .nHeight = oSizes.nHeight,
          .aoControls = aoControls};
}

constexpr std::array kVehicles = std::to_array<OptionRow>({
    {"optPassenger", "Passenger Vhcl", 0, 1575, kMotorPassenger, "chkShowPassenger", "Passenger"},
    {"optMotorcycle", "Motorcycle", 280, 1575, kMotorMotorcycle, "chkShowMotorcycle", "Motorcycle"},
    {"optPowersports", "Powersports", 560, 1575, kMotorPowersports, "chkShowPowersports",
     "Powersports"},
    {"optPocketBikes", "Pocket Bikes", 840, 1575, kMotorPocketBikes, "chkShowPocketBikes",
     "PocketBikes"},
    {"optOtherVehicle", "Other Vehicle", 1120, 1575, kMotorOther, "chkShowOtherVehicle",
     "OtherVehicle"},
    {"optParts", "Parts && Accsr's", 1400, 1575, kMotorParts, "chkShowParts", "Parts"},
});
constexpr std::array kVehicleControls = Controls(kVehicles, ControlKind::kOption, 1800, 855);

constexpr std::array kLand = std::to_array<OptionRow>({
    {"optRealEstateTimeShare", "T'share && Land", 0, 1455, kRealEstateTimeshare,
     "chkShowRealEstateTimeShare", "TimeShare"},
    {"optRealEstateOther", "All Other", 280, 1455, kRealEstateOther, "chkShowRealEstateOther",
     "RealEstateOther"},
});
constexpr std::array kLandControls = Controls(kLand, ControlKind::kOption, 1800, 855);

constexpr std::array kSales = std::to_array<OptionRow>({
    {"optRealEstate10DayAuction", "1-10 Day Auction", 0, 1575, kSaleAuction10,
     "chkShowRealEstate10DayAuction", "10DayAuction"},
    {"optRealEstate30DayAuction", "30 Day Auction", 280, 1455, kSaleAuction30,
     "chkShowRealEstate30DayAuction", "30DayAuction"},
    {"optRealEstate30DayAd", "30 Day Ad", 560, 1455, kSaleAdvert30, "chkShowRealEstate30DayAd",
     "30DayAd"},
    {"optRealEstate90DayAd", "90 Day Ad", 840, 1575, kSaleAdvert90, "chkShowRealEstate90DayAd",
     "90DayAd"},
});
constexpr std::array kSaleControls = Controls(kSales, ControlKind::kOption, 1800, 855);

constexpr std::array kDurations = std::to_array<OptionRow>({
    {"optShop30Days", "30 Days", 0, 1455, kShop30Days, "chkShowShop30Days", "Shop30Days"},
    {"optShop60Days", "60 Days", 280, 1455, kShop60Days, "chkShowShop60Days", "Shop60Days"},
    {"optShop90Days", "90 Days", 560, 1455, kShop90Days, "chkShowShop90Days", "Shop90Days"},
    {"optShop120Days", "120 Days", 840, 1455, kShop120Days, "chkShowShop120Days", "Shop120Days"},
    {"optShopGoodTillCancelled", "Good T.C.", 1120, 1455, kShopGoodTillCancelled,
     "chkShowShopGoodTillCancelled", "ShopGoodTillCancelled"},
});
constexpr std::array kDurationControls = Controls(kDurations, ControlKind::kOption, 1800, 975);

constexpr std::array kExample = std::to_array<OptionRow>({
    {"chkCheck1", "Check1", 0, 1575, kRealEstateTimeshare, "chkShowCheck1", "Check1"},
    {"chkCheck2", "Check2", 280, 1575, kRealEstateOther, "chkShowCheck2", "Check2"},
});
constexpr std::array kExampleControls = Controls(kExample, ControlKind::kCheckBox, 2040, 975);

bool IsMotor(const clsAuctionType& oAuctionType) {
  return oAuctionType.m_eAuctionType == kAuctionMotor;
}

bool IsInShop(const clsAuctionType& oAuctionType) {
  return oAuctionType.m_bShopInventory;
}

}  // namespace

bool IsRealEstate(const clsAuctionType& oAuctionType) {
  return oAuctionType.m_eAuctionType == kAuctionRealEstate;
}

// The vehicles and the durations use the section's visibility list, not their own; the packing
// after it has the final say.
constexpr AuctionOptions ctlMotorOptions = {
    Design({"ctlMotorOptions", "Vehicle", "MotorTypes", 2760, 1680, "AuctionType"},
           kVehicleControls),
    &clsAuctionType::m_eMotorType, IsMotor, kVehicles, clsAuctionType::IsVehicleOnOffer};

constexpr AuctionOptions ctlShopDurations = {
    Design({"ctlShopDurations", "Shop Duration", "ShopDuration", 2760, 1575, "AuctionType"},
           kDurationControls),
    &clsAuctionType::m_eShopDuration, IsInShop, kDurations};

constexpr AuctionOptions ctlRealEstateOptionsLand = {
    Design({"ctlRealEstateOptionsLand", "Real Estate Type", "RealEstateLandOptions", 2730, 915},
           kLandControls),
    &clsAuctionType::m_eRealEstateType, IsRealEstate, kLand};

constexpr AuctionOptions ctlRealEstateOptionsSale = {
    Design({"ctlRealEstateOptionsSale", "Real Estate Sale", "RealEstateSaleOptions", 2670, 1365},
           kSaleControls),
    &clsAuctionType::m_eRealEstateSaleFormat, IsRealEstate, kSales};

constexpr AuctionOptions ctlSubControlExample = {
    Design({"ctlSubControlExample", "Example", "EXAMPLE_SUB_CONTROL", 3135, 930}, kExampleControls),
    &clsAuctionType::m_eRealEstateType, IsRealEstate, kExample};

}  // namespace quillet
