// The rules of clsAuctionType by a schedule of today's fees: one insertion fee by category, and a
// reserve fee that may be due whether the item sells or not. By the rules of 2007, and if the
// schedule has the prices, vehicles pay an insertion fee alone and real estate all its fees.
#include <algorithm>
#include <array>

#include "base/region.h"
#include "engine/clsAuctionType.h"
#include "engine/clsSaleFees.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

bool IsPriced(const KeyText& oKey) {
  Single fPrice = -1;
  Prices().GetPrice(oKey, fPrice, kShopNone);
  return fPrice >= 0;
}

}  // namespace

bool clsAuctionType::PaysSaleFees() const {
  return m_eAuctionType == kAuctionStandard || m_eAuctionType == kAuctionBusiness ||
         (m_eAuctionType == kAuctionMotor && m_eMotorType == kMotorParts);
}

Single clsAuctionType::DoCalcListingFee_Today(const clsOutlay& oOutlay) const {
  if (!PaysSaleFees()) {
    return std::max<double>(0, DoCalcListingFee_2007(oOutlay));
  }
  const SaleRates* const pRates = Prices().Sale();
  const SaleInputs& oInputs = m_oSaleFees->m_oInputs;
  const SaleCategory* const pCategory =
      pRates != nullptr ? pRates->Category(oInputs.nCategory) : nullptr;
  if (oInputs.bFreeListing ||
      (pCategory != nullptr && pCategory->IsFree(oOutlay.m_fEstimatedEndPrice))) {
    return 0;
  }
  if (pCategory != nullptr && pCategory->fInsertion) {
    return *pCategory->fInsertion;
  }
  const bool bShopsOwn = m_bShopInventory && Prices().HasTiers("ShopOpening");
  return OpeningFee(oOutlay, bShopsOwn ? KeyText("ShopOpening") : KeyText("Opening"));
}

Single clsAuctionType::DoCalcReserveFee_Today(const clsOutlay& oOutlay) const {
  if (m_eAuctionType == kAuctionRealEstate) {
    const bool bPriced = RegionCode() == 0 || Prices().HasTiers("ReserveRealEstate");
    return bPriced ? DoCalcReserveFee_2007(oOutlay) : Single(0);
  }
  const SaleRates* const pRates = Prices().Sale();
  const bool bDue = oOutlay.m_lQuantity == 0 || (pRates != nullptr && pRates->bReserveWhenSold);
  if (!bDue || !PaysSaleFees() || HasFixedPrice() || oOutlay.m_fReservePrice <= 0) {
    return 0;
  }
  return RegionCode() == 1 ? ReserveFee_US(oOutlay.m_fReservePrice)
                           : ReserveFee_UK(oOutlay.m_fReservePrice);
}

/// The fees of the sale itself are in clsSaleFees.
Single clsAuctionType::DoCalcFinalValueFee_Today(const clsOutlay& oOutlay) const {
  return m_eAuctionType == kAuctionRealEstate ? DoCalcFinalValueFee_2007(oOutlay) : Single(0);
}

bool clsAuctionType::IsOnOffer(std::int32_t eAuctionType) {
  if (Prices().Sale() == nullptr) {
    return true;
  }
  switch (eAuctionType) {
    case kAuctionMotor:
      return RegionCode() == 1 || IsPriced("AuctionTypeMotor");  // parts, in the United States
    case kAuctionRealEstate:
      return RegionCode() == 1 ? IsPriced("AuctionTypeRealEstateTimeshareAuction10")
                               : IsPriced("AuctionTypeRealEstate");
    default:
      return true;
  }
}

bool clsAuctionType::IsVehicleOnOffer(std::int32_t eMotorType) {
  constexpr std::array<KeyText, 5> kKeys = {
      "AuctionTypeMotorPassenger", "AuctionTypeMotorMotorcycle", "AuctionTypeMotorPowersports",
      "AuctionTypeMotorPocketBikes", "AuctionTypeMotorOther"};
  const auto nAt = static_cast<std::size_t>(eMotorType);
  return Prices().Sale() == nullptr || nAt >= kKeys.size() || IsPriced(kKeys.at(nAt));
}

void clsAuctionType::TakeVehicleOnOffer() {
  if (RegionCode() == 1 && !IsVehicleOnOffer(m_eMotorType)) {
    m_eMotorType = kMotorParts;
  }
}

}  // namespace quillet
