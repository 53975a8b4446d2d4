#include "engine/clsAuctionType.h"

#include "base/basCommon.h"
#include "base/failure.h"
#include "base/region.h"
#include "prices/clsPrices.h"

namespace quillet {

Single PriceOrZero(const KeyText& oKey) {
  Single fPrice;
  Prices().GetPrice(oKey, fPrice, kShopNone);
  return fPrice;
}

Single clsAuctionType::DoCalcAuto() {
  if (m_oLastOutlay == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The listing's prices aren't known yet.");
  }
  return DoCalc(*m_oLastOutlay);
}

Single clsAuctionType::DoCalc(const clsOutlay& oOutlay) {
  const Single fReserve = DoCalcReserveFee(oOutlay);
  const Single fFinal = DoCalcFinalValueFee(oOutlay);
  const Single fListing = DoCalcListingFee(oOutlay);
  return fReserve + fListing + fFinal;
}

Single clsAuctionType::DoCalcListingFee(const clsOutlay& oOutlay) {
  m_oLastOutlay = &oOutlay;
  return m_oSaleFees != nullptr ? DoCalcListingFee_Today(oOutlay) : DoCalcListingFee_2007(oOutlay);
}

Single clsAuctionType::DoCalcReserveFee(const clsOutlay& oOutlay) const {
  return m_oSaleFees != nullptr ? DoCalcReserveFee_Today(oOutlay) : DoCalcReserveFee_2007(oOutlay);
}

Single clsAuctionType::DoCalcFinalValueFee(const clsOutlay& oOutlay) const {
  return m_oSaleFees != nullptr ? DoCalcFinalValueFee_Today(oOutlay)
                                : DoCalcFinalValueFee_2007(oOutlay);
}

Single clsAuctionType::DoCalcListingFee_2007(const clsOutlay& oOutlay) const {
  return RegionCode() == 1 ? DoCalcListingFee_US(oOutlay) : DoCalcListingFee_UK(oOutlay);
}

Single clsAuctionType::DoCalcReserveFee_2007(const clsOutlay& oOutlay) const {
  return RegionCode() == 1 ? DoCalcReserveFee_US(oOutlay) : DoCalcReserveFee_UK(oOutlay);
}

Single clsAuctionType::DoCalcFinalValueFee_2007(const clsOutlay& oOutlay) const {
  return RegionCode() == 1 ? DoCalcFinalValueFee_US(oOutlay) : DoCalcFinalValueFee_UK(oOutlay);
}

bool clsAuctionType::IsVehicle(bool bAllowParts) const {
  if (m_eAuctionType != kAuctionMotor) {
    return false;
  }
  if (m_eMotorType == kMotorParts) {
    return bAllowParts;
  }
  return m_eMotorType >= kMotorPassenger && m_eMotorType <= kMotorOther;
}

Single clsAuctionType::DoCalcListingFee_UK(const clsOutlay& oOutlay) const {
  Single fFee;
  switch (m_eAuctionType) {
    case kAuctionStandard:
      fFee = OpeningFee(oOutlay, "Opening");
      break;
    case kAuctionMotor:
      fFee = PerUnitIfFixedPrice(PriceOrZero("AuctionTypeMotor"), oOutlay);
      break;
    case kAuctionRealEstate:
      fFee = PerUnitIfFixedPrice(PriceOrZero("AuctionTypeRealEstate"), oOutlay);
      break;
    default:
      break;
  }
  return ApplyShopInventory(fFee);
}

Single clsAuctionType::DoCalcReserveFee_UK(const clsOutlay& oOutlay) const {
  // The fee is charged only when the quantity is 0. That is intended.
  if (oOutlay.m_lQuantity != 0) {
    return 0;
  }
  const bool bReserve = oOutlay.m_fReservePrice > 0;
  switch (m_eAuctionType) {
    case kAuctionStandard:
      break;
    case kAuctionMotor:
      return bReserve ? PriceOrZero("ReserveMotor") : Single(0);
    case kAuctionRealEstate:
      return bReserve ? PriceOrZero("ReserveRealEstate") : Single(0);
    default:
      return 0;
  }
  return ReserveFee_UK(oOutlay.m_fReservePrice);
}

/// Tiers 1 and 3 are flat, tier 2 is a percentage.
Single clsAuctionType::ReserveFee_UK(Single fReservePrice) {
  clsPriceRange oTier;
  Prices().HitTestRanges("Reserve", fReservePrice, oTier, kShopNone);
  switch (oTier.m_nIndex) {
    case 1:
    case 3:
      return oTier.m_fValue;
    case 2:
      return (oTier.m_fValue / 100) * fReservePrice;
    default:
      return 0;
  }
}

Single clsAuctionType::DoCalcFinalValueFee_UK(const clsOutlay& oOutlay) const {
  switch (m_eAuctionType) {
    case kAuctionStandard:
      return ProgressiveFinalValueFee(oOutlay);
    case kAuctionMotor:
      break;
    case kAuctionRealEstate:
      return PriceOrZero("FinalRealEstate");
    default:
      return 0;
  }
  // Whether a tier matched is ignored: a price outside all tiers pays the last tier's value.
  clsPriceRange oTier;
  Prices().HitTestRanges("FinalMotor", oOutlay.m_fEstimatedEndPrice, oTier, kShopNone);
  Single fFee = oTier.m_fValue;
  if (oTier.m_nIndex == 2) {
    fFee = (oTier.m_fValue / 100) * oOutlay.m_fEstimatedEndPrice;
  }
  fFee = fFee * oOutlay.m_lQuantity;
  return fFee;
}

/// The insertion fee by opening value. A reserve counts for a single item only.
Single clsAuctionType::OpeningFee(const clsOutlay& oOutlay, const KeyText& oTable) const {
  Single fOpening;
  if (oOutlay.m_lQuantity != 1) {
    fOpening = (m_bBuyItNowOnly ? oOutlay.m_fEstimatedEndPrice : oOutlay.m_fStartingPrice) *
               oOutlay.m_lQuantity;
  } else if (m_bBuyItNowOnly) {
    fOpening = oOutlay.m_fEstimatedEndPrice;
  } else {
    fOpening = oOutlay.m_fReservePrice > 0 ? oOutlay.m_fReservePrice : oOutlay.m_fStartingPrice;
  }
  clsPriceRange oTier;
  const bool bHit = Prices().HitTestRanges(oTable, fOpening, oTier, kShopNone);
  return bHit ? oTier.m_fValue : Single(0);
}

/// Each tier's percentage of the part of the price that is in the tier, times the quantity.
Single clsAuctionType::ProgressiveFinalValueFee(const clsOutlay& oOutlay) const {
  const KeyText oKey = m_bShopInventory ? KeyText("ShopFinal") : KeyText("Final");
  const Single fPrice = oOutlay.m_fEstimatedEndPrice;
  Single fFee;
  clsPriceRange oTier;
  Prices().GetRange(oKey, 1, oTier, kShopNone);
  const std::int32_t nCount = oTier.m_nCount;
  for (std::int32_t i = 1; i <= nCount; ++i) {
    if (i > 1) {
      Prices().GetRange(oKey, static_cast<std::int16_t>(i), oTier, kShopNone);
    }
    Single fWidth = oTier.m_fEnd - oTier.m_fStart;
    if (oTier.m_fEnd == clsPriceRange::kNoUpperLimit) {
      fWidth = fPrice - oTier.m_fStart;
    }
    if (fPrice > oTier.m_fStart) {
      const Single fPortion = MinSingle(fPrice - oTier.m_fStart, fWidth);
      fFee = (oTier.m_fValue / 100) * fPortion + fFee;
    }
  }
  fFee = fFee * oOutlay.m_lQuantity;
  return fFee;
}

Single clsAuctionType::PerUnitIfFixedPrice(Single fFee, const clsOutlay& oOutlay) const {
  return m_bBuyItNowOnly ? Single(fFee * MaxLong(oOutlay.m_lQuantity, 1)) : fFee;
}

/// A shop listing pays the shop's insertion fee and surcharge in place of any other.
Single clsAuctionType::ApplyShopInventory(Single fFee) const {
  if (!m_bShopInventory) {
    return fFee;
  }
  Single fSurcharge;
  Prices().GetPrice("ShopInsertionFee", fFee, m_eShopDuration);
  Prices().GetPrice("ShopInsertionSurcharge", fSurcharge, m_eShopDuration);
  return fFee + fSurcharge;
}

}  // namespace quillet
