// What a sale costs by a schedule of today's fees (docs/update-file.md), ready to calculate with.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Single.h"
#include "prices/PriceTable.h"

namespace quillet {

// Rates and amounts are whole numbers here, so that half a cent is exact: no float is exactly 13.6,
// and no double exactly 0.136.

/// Millionths: 13.6 % is 136'000.
using Rate = std::int64_t;

/// Hundred-millionths of the currency.
using FineAmount = std::int64_t;

/// A percentage, to four decimals. One beyond 1,000 % counts as that.
[[nodiscard]] Rate RateOf(double fPercent);

/// An amount, to eight decimals. One beyond a billion counts as that.
[[nodiscard]] FineAmount FineAmountOf(double fAmount);

struct SaleTier {
  FineAmount nStart = 0;
  FineAmount nEnd = 0;      ///< or kNoUpperLimit
  std::int64_t nValue = 0;  ///< a Rate, or for order fees a FineAmount

  static constexpr FineAmount kNoUpperLimit = -1;
  [[nodiscard]] bool IsEndless() const { return nEnd == kNoUpperLimit; }
};

struct SaleTable {
  std::string sCountKey;
  bool bThere = false;
  std::vector<SaleTier> aoTiers;  ///< up to the first that lacks a number
};

/// A table, and the one that replaces it for a shop's listing, if the schedule has one.
struct SaleTables {
  SaleTable oPlain;
  SaleTable oShop;

  /// Throws a Failure if the table is missing.
  [[nodiscard]] const SaleTable& For(bool bShop) const;
};

struct SaleCategory {
  std::string sName;
  SaleTables oRates;
  bool bWhole = false;    ///< one tier's rate on the whole amount, not each tier's on its part
  bool bByPrice = false;  ///< that tier is looked up by the bare price
  std::optional<Single> fInsertion;
  std::optional<Single> fFreeFrom;  ///< from this price on neither insertion nor order fee

  [[nodiscard]] bool IsFree(Single fPrice) const { return fFreeFrom && fPrice >= *fFreeFrom; }
};

struct SaleExtra {
  std::string sName;
  Rate nRate = 0;
};

struct SaleRates {
  /// As many extras as an auction has bits for.
  static constexpr std::int16_t kMostExtras = 31;

  /// Counted from 1; null if there is no such category.
  [[nodiscard]] const SaleCategory* Category(std::int32_t nCategory) const;

  std::vector<SaleCategory> aoCategories;  ///< up to the first without a tier table
  SaleTables oOrderFee;
  bool bWithPostage = false;  ///< fees are taken on postage too
  bool bWithTax = false;      ///< and on the buyer's tax
  Rate nAlways = 0;
  std::vector<SaleExtra> aoExtras;
  Rate nFeeTax = 0;
  std::string sFeeTaxName;
  bool bReserveWhenSold = false;
};

/// Nothing if the schedule is one of 2007, which doesn't say "FeeModel,2".
[[nodiscard]] std::optional<SaleRates> ReadSaleRates(const PriceTable& oTable);

}  // namespace quillet
