// The kind of listing, and the three fees that eBay charges for the listing itself.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "engine/clsOutlay.h"
#include "engine/fresh.h"
#include "prices/PriceKey.h"
#include "prices/shopDuration.h"

namespace quillet {

class clsSaleFees;

// The values of these codes are stored in auction files. Fields hold them as numbers, since a file
// may hold others too; a code outside the list affects no fee.

enum eAuctionType : std::int32_t {
  kAuctionStandard = 0,
  kAuctionMotor = 1,
  kAuctionRealEstate = 2,
  kAuctionBusiness = 3,  ///< business and industrial
};

enum eMotorType : std::int32_t {
  kMotorPassenger = 0,
  kMotorMotorcycle = 1,
  kMotorPowersports = 2,
  kMotorPocketBikes = 3,
  kMotorOther = 4,
  kMotorParts = 5,
};

enum eRealEstateType : std::int32_t { kRealEstateTimeshare = 0, kRealEstateOther = 1 };

enum eRealEstateSaleFormat : std::int32_t {
  kSaleAuction10 = 0,
  kSaleAuction30 = 1,
  kSaleAdvert30 = 2,
  kSaleAdvert90 = 3,
};

class clsAuctionType {
 public:
  // Fees are in the auction's currency and not rounded to pennies. A price that the schedule lacks
  // leaves its part of a fee as it was; a missing tier table throws a Failure.

  /// DoCalc with the outlay of the last DoCalcListingFee; throws a Failure if there was none.
  [[nodiscard]] Single DoCalcAuto();
  /// Reserve, listing and final value fee together.
  [[nodiscard]] Single DoCalc(const clsOutlay& oOutlay);
  /// The insertion fee. Keeps `oOutlay` for DoCalcAuto; it must live as long as this object.
  [[nodiscard]] Single DoCalcListingFee(const clsOutlay& oOutlay);
  /// The reserve fee: charged only at quantity 0, for every kind of listing.
  [[nodiscard]] Single DoCalcReserveFee(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcFinalValueFee(const clsOutlay& oOutlay) const;

  /// Appends the section "[TYPE]" to `sData`, or reads it from there (docs/auction-file.md).
  void Serialize(std::string& sData, bool bSave);

  /// Resets everything but m_bDirty.
  void Clear() { MakeFresh(*this); }

  /// Whether the seller may choose a kind of listing, or a vehicle of eMotorType. With today's fees
  /// vehicles and real estate aren't on offer if their price is missing or below 0.
  [[nodiscard]] static bool IsOnOffer(std::int32_t eAuctionType);
  [[nodiscard]] static bool IsVehicleOnOffer(std::int32_t eMotorType);

  /// Turns a vehicle that isn't on offer into parts, which always are where vehicles are told
  /// apart.
  void TakeVehicleOnOffer();

  /// True unless it is a vehicle or real estate: those pay none of today's sale fees.
  [[nodiscard]] bool PaysSaleFees() const;

  /// The same, but false unless the auction's latest DoCalc was by a schedule of today's fees.
  [[nodiscard]] bool HasPaidSaleFees() const { return m_oSaleFees != nullptr && PaysSaleFees(); }

  /// A shop's inventory has a fixed price too.
  [[nodiscard]] bool HasFixedPrice() const { return m_bBuyItNowOnly || m_bShopInventory; }

  // The United States rules, to which the routines above delegate in that region.
  [[nodiscard]] Single DoCalcListingFee_US(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcReserveFee_US(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcFinalValueFee_US(const clsOutlay& oOutlay) const;

  /// True for the listing of a vehicle; for vehicle parts the answer is `bAllowParts`.
  [[nodiscard]] bool IsVehicle(bool bAllowParts) const;

  std::int32_t m_eAuctionType = kAuctionStandard;
  bool m_bBuyItNowOnly = false;  ///< fixed-price listing
  bool m_bShopInventory = false;
  std::int32_t m_eShopDuration = kShop30Days;
  std::int32_t m_eMotorType = kMotorPassenger;
  std::int32_t m_eRealEstateType = kRealEstateTimeshare;
  std::int32_t m_eRealEstateSaleFormat = kSaleAuction10;
  bool m_bRealEstateBinding = false;
  bool m_bDirty = false;  ///< changed since last saved
  /// The same auction's, if its latest DoCalc was by a schedule of today's fees; not owned.
  const clsSaleFees* m_oSaleFees = nullptr;

 private:
  [[nodiscard]] Single DoCalcListingFee_UK(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcReserveFee_UK(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcFinalValueFee_UK(const clsOutlay& oOutlay) const;

  [[nodiscard]] Single DoCalcListingFee_2007(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcReserveFee_2007(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcFinalValueFee_2007(const clsOutlay& oOutlay) const;

  [[nodiscard]] Single DoCalcListingFee_Today(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcReserveFee_Today(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single DoCalcFinalValueFee_Today(const clsOutlay& oOutlay) const;

  // What they share.
  [[nodiscard]] Single OpeningFee(const clsOutlay& oOutlay, const KeyText& oTable) const;
  [[nodiscard]] static Single ReserveFee_UK(Single fReservePrice);
  [[nodiscard]] static Single ReserveFee_US(Single fReservePrice);
  [[nodiscard]] Single ProgressiveFinalValueFee(const clsOutlay& oOutlay) const;
  [[nodiscard]] Single PerUnitIfFixedPrice(Single fFee, const clsOutlay& oOutlay) const;
  [[nodiscard]] Single ApplyShopInventory(Single fFee) const;

  const clsOutlay* m_oLastOutlay = nullptr;
};

/// The amount under a key without a suffix; 0 if the schedule lacks it.
[[nodiscard]] Single PriceOrZero(const KeyText& oKey);

}  // namespace quillet
