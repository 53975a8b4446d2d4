// Every key that a region's rules look up in the fee schedule.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "prices/PriceTable.h"

namespace quillet {

/// Which fees a schedule has: those of 2007 by the kind of listing, or today's by category.
enum class FeeModel : unsigned { Of2007 = 1, OfToday = 2 };

enum class KeyKind {
  OptionalText,  ///< it may be missing
  Text,
  OptionalNumber,
  Number,
  BandNumber,        ///< the value of a merchant-rate band
  OverWeightNumber,  ///< looked up only if first class has tiers
  // Tier tables, by what is looked up in them.
  PriceTiers,        ///< an amount of money
  LotTiers,          ///< an amount of money times a quantity
  PictureTiers,      ///< a count
  WeightTiers,       ///< kilograms
  BandTiers,         ///< the value of a merchant-rate band
  ProgressiveTiers,  ///< not looked up: each tier takes its part of a price
};

struct CatalogueKey {
  std::string sName;  ///< a tier table's without "Ranges" and the like
  KeyKind eKind = KeyKind::Text;
  std::int32_t nPercentTier = 0;  ///< the tier whose value is a percentage, or kEveryTier
  unsigned nModels = 0;           ///< those of FeeModel that look it up, together

  static constexpr std::int32_t kEveryTier = -1;

  [[nodiscard]] bool IsOf(FeeModel eModel) const {
    return (nModels & static_cast<unsigned>(eModel)) != 0;
  }
  [[nodiscard]] bool IsTable() const { return eKind >= KeyKind::PriceTiers; }
  /// No sale of its kind can be priced without it; any other that is missing counts as 0.
  [[nodiscard]] bool IsNeeded() const { return eKind > KeyKind::Number; }
  [[nodiscard]] bool IsOptional() const {
    return eKind == KeyKind::OptionalText || eKind == KeyKind::OptionalNumber;
  }
  [[nodiscard]] bool IsPercentage(std::int32_t nTier) const {
    return nPercentTier == nTier || nPercentTier == kEveryTier;
  }
};

class Catalogue {
 public:
  /// A region's, made on first use.
  [[nodiscard]] static const Catalogue& Of(std::int32_t nRegion);

  /// Those of both models, but not the numbered keys of categories and surcharges, nor those of
  /// tables that replace another.
  [[nodiscard]] const std::vector<CatalogueKey>& Keys() const { return m_aoKeys; }

  /// True for a key of the catalogue, and for a key of any of its tables. Case doesn't matter.
  [[nodiscard]] bool Holds(std::string_view sKey) const;

  /// True if the table has at least one key that the catalogue holds.
  [[nodiscard]] bool HoldsAnyOf(const PriceTable& oTable) const;

 private:
  explicit Catalogue(std::int32_t nRegion);

  std::vector<CatalogueKey> m_aoKeys;
  std::set<std::string, std::less<>> m_asPlain;   ///< in upper case
  std::set<std::string, std::less<>> m_asTables;  ///< in upper case
};

/// The number of the tier that a key of a table belongs to: 3 for "OpeningRangeEnd3" and "Opening".
/// 0 if it isn't such a key. Case doesn't matter.
[[nodiscard]] std::int32_t TierOfKey(std::string_view sKey, std::string_view sTable);

}  // namespace quillet
