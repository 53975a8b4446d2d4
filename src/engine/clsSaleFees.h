// What eBay charges for a sale by a schedule of today's fees.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "engine/clsAuctionType.h"
#include "engine/clsOutlay.h"
#include "prices/SaleRates.h"

namespace quillet {

/// What the seller enters. It is stored in auction files.
struct SaleInputs {
  std::int32_t nCategory = 1;  ///< of the schedule, from 1; one that it lacks has no fee
  Single fBuyerTax;            ///< percent, on price and postage
  Single fAdvertising;         ///< percent; 0 without advertising
  std::int32_t lExtras = 0;    ///< bit i - 1 for the schedule's extra i
  bool bFreeListing = false;   ///< one of the month's listings without an insertion fee
  bool bTaxIsCost = true;      ///< the tax on fees isn't paid back to the seller

  bool operator==(const SaleInputs&) const = default;
};

/// A sale fee's parts, in whole cents. They add up to the fee.
struct SaleParts {
  Single fCategory;
  Single fOrder;
  Single fRegulatory;
  Single fAdvertising;
  Single fExtras;
  Single fTax;
};

class clsSaleFees {
 public:
  /// The fees on all that is sold in `lOrders` orders, with the cost of the postage and the profit
  /// on it. 0 for real estate and vehicles, and if nothing is sold or paid. Throws a Failure for a
  /// tier table that the schedule lacks, or an amount beyond a hundred trillion.
  [[nodiscard]] Single DoCalc(const SaleRates& oRates, const clsAuctionType& oAuctionType,
                              const clsOutlay& oOutlay, std::int32_t lOrders, double fPostage);

  /// The result of the latest DoCalc, and its parts.
  [[nodiscard]] Single LastFee() const { return m_fLastFee; }
  [[nodiscard]] const SaleParts& LastParts() const { return m_oLastParts; }

  /// Appends the section "[FEES]" to `sData`, or reads it from there (docs/auction-file.md).
  void Serialize(std::string& sData, bool bSave);

  [[nodiscard]] bool IsFresh() const { return m_oInputs == SaleInputs{}; }

  /// Resets everything but m_bDirty and what DoCalc keeps.
  void Clear() { m_oInputs = {}; }

  SaleInputs m_oInputs;
  bool m_bDirty = false;  ///< changed since last saved

 private:
  SaleParts m_oLastParts;
  Single m_fLastFee;
};

}  // namespace quillet
