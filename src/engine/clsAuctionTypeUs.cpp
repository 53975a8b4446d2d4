// The United States rules of clsAuctionType: vehicles pay a transaction fee, real estate is priced
// by kind and sale format, business listings exist, and percentage reserve fees are capped.
#include <array>

#include "base/basCommon.h"
#include "engine/clsAuctionType.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

struct VehicleKeys {
  KeyText oListing;
  KeyText oTransaction;
  KeyText oReserve;
};

/// By eMotorType, except parts.
constexpr std::array<VehicleKeys, 5> kVehicleKeys = {{
    {"AuctionTypeMotorPassenger", "TransactionFeeMotorPassenger", "ReserveMotorPassenger"},
    {"AuctionTypeMotorMotorcycle", "TransactionFeeMotorMotorcycle", "ReserveMotorMotorbike"},
    {"AuctionTypeMotorPowersports", "TransactionFeeMotorPowersports", "ReserveMotorPowersports"},
    {"AuctionTypeMotorPocketBikes", "TransactionFeeMotorPocketBikes", "ReserveMotorPocketBikes"},
    {"AuctionTypeMotorOther", "TransactionFeeMotorOther", "ReserveMotorOther"},
}};

/// The keys of a vehicle, or none for parts and unknown codes.
const VehicleKeys* KeysOfVehicle(const clsAuctionType& oType) {
  return oType.IsVehicle(false) ? &kVehicleKeys.at(static_cast<std::size_t>(oType.m_eMotorType))
                                : nullptr;
}

/// A code outside the lists adds nothing to the key.
PriceKey RealEstateFeeKey(std::int32_t eRealEstateType, std::int32_t eSaleFormat) {
  constexpr std::array<KeyText, 2> kTypes = {"Timeshare", "Other"};
  constexpr std::array<KeyText, 4> kFormats = {"Auction10", "Auction30", "Ad30", "Ad90"};
  PriceKey oKey = KeyText("AuctionTypeRealEstate");
  const auto fnAppend = [&oKey](const auto& aoNames, std::int32_t nCode) {
    if (nCode >= 0 && static_cast<std::size_t>(nCode) < aoNames.size()) {
      oKey.Append(aoNames.at(static_cast<std::size_t>(nCode)));
    }
  };
  fnAppend(kTypes, eRealEstateType);
  fnAppend(kFormats, eSaleFormat);
  return oKey;
}

/// Tiers 1 and 2 are flat, tier 3 is a percentage up to a cap, which is 0 when it is missing.
Single CappedTierFee(const KeyText& oTierKey, const KeyText& oCapKey, Single fReservePrice) {
  clsPriceRange oTier;
  Prices().HitTestRanges(oTierKey, fReservePrice, oTier, kShopNone);
  switch (oTier.m_nIndex) {
    case 1:
    case 2:
      return oTier.m_fValue;
    case 3: {
      const Single fFee = (oTier.m_fValue / 100) * fReservePrice;
      return MinSingle(fFee, PriceOrZero(oCapKey));
    }
    default:
      return 0;
  }
}

}  // namespace

Single clsAuctionType::DoCalcListingFee_US(const clsOutlay& oOutlay) const {
  Single fFee;
  switch (m_eAuctionType) {
    case kAuctionStandard:
      fFee = OpeningFee(oOutlay, "Opening");
      break;
    case kAuctionMotor:
      if (const VehicleKeys* const pKeys = KeysOfVehicle(*this)) {
        fFee = PriceOrZero(pKeys->oListing) + PriceOrZero(pKeys->oTransaction);
      } else if (m_eMotorType == kMotorParts) {
        fFee = OpeningFee(oOutlay, "Opening");
      }
      break;
    case kAuctionRealEstate: {
      const PriceKey oKey = RealEstateFeeKey(m_eRealEstateType, m_eRealEstateSaleFormat);
      fFee = PerUnitIfFixedPrice(PriceOrZero(oKey), oOutlay);
      break;
    }
    case kAuctionBusiness:
      fFee = PriceOrZero("AuctionTypeBusiness");
      break;
    default:
      break;
  }
  return ApplyShopInventory(fFee);
}

Single clsAuctionType::DoCalcReserveFee_US(const clsOutlay& oOutlay) const {
  // The fee is charged only when the quantity is 0, and never in a shop. That is intended.
  if (oOutlay.m_lQuantity != 0 || m_bShopInventory) {
    return 0;
  }
  switch (m_eAuctionType) {
    case kAuctionStandard:
      return ReserveFee_US(oOutlay.m_fReservePrice);
    case kAuctionMotor:
      if (const VehicleKeys* const pKeys = KeysOfVehicle(*this)) {
        return PriceOrZero(pKeys->oReserve);  // due for any reserve price, 0 included
      }
      return m_eMotorType == kMotorParts ? ReserveFee_US(oOutlay.m_fReservePrice) : Single(0);
    case kAuctionRealEstate:
      return oOutlay.m_fReservePrice > 0
                 ? CappedTierFee("ReserveRealEstate", "ReserveRealEstateMax",
                                 oOutlay.m_fReservePrice)
                 : Single(0);
    case kAuctionBusiness:
      return PriceOrZero("ReserveBusiness");  // due for any reserve price, 0 included
    default:
      return 0;
  }
}

Single clsAuctionType::ReserveFee_US(Single fReservePrice) {
  return CappedTierFee("Reserve", "ReserveMax", fReservePrice);
}

Single clsAuctionType::DoCalcFinalValueFee_US(const clsOutlay& oOutlay) const {
  switch (m_eAuctionType) {
    case kAuctionStandard:
      return ProgressiveFinalValueFee(oOutlay);
    case kAuctionRealEstate: {
      const bool bAdvert =
          m_eRealEstateSaleFormat == kSaleAdvert30 || m_eRealEstateSaleFormat == kSaleAdvert90;
      if (bAdvert || !m_bRealEstateBinding) {
        return 0;
      }
      return m_eRealEstateType == kRealEstateTimeshare ? PriceOrZero("FinalRealEstateTimeshare")
             : m_eRealEstateType == kRealEstateOther   ? PriceOrZero("FinalRealEstateOther")
                                                       : Single(0);
    }
    case kAuctionBusiness: {
      const Single fFee = (PriceOrZero("FinalBusiness") / 100) * oOutlay.m_fEstimatedEndPrice;
      return MinSingle(fFee, PriceOrZero("FinalBusinessMax"));
    }
    default:
      // No motor listing pays one, parts included: a vehicle's is in its transaction fee.
      return 0;
  }
}

}  // namespace quillet
