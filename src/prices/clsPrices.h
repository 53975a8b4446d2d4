// The table of fee amounts, thresholds and rates, read from the update file (docs/update-file.md).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Single.h"
#include "prices/FeaturePrices.h"
#include "prices/PriceKey.h"
#include "prices/PriceTable.h"
#include "prices/SaleRates.h"
#include "prices/Schedule.h"
#include "prices/clsPriceRange.h"
#include "prices/shopDuration.h"

namespace quillet {

/// Keys are compared without regard to case. Where a code `eShop` is passed, its suffix is joined
/// onto the key. Values are text; those that are numbers, with a point or the user's decimal
/// separator, are read as such when they are loaded.
class clsPrices {
 public:
  /// Bytes. A larger file isn't loaded; real fee schedules are far smaller.
  static constexpr std::size_t kLargestFile = std::size_t{1} << 20U;

  /// Reads the update file in use, in up to five attempts. An unusable user's copy is put aside,
  /// with a message, and the file that came with the program is read. An unusable file that the
  /// user has chosen is replaced by the default, also in the settings, with a message. If the
  /// default can't be read, or holds a key twice, says so in a message box and closes the
  /// application; the table keeps what was read.
  void LoadUpdateFile();

  /// The same in one attempt; throws a Failure that says what is wrong if the file, chosen or
  /// default, can't be used.
  void LoadUpdateFileOrFail() { LoadUpdateFileOrFail(1); }

  /// Reads a given file in one attempt; throws a Failure that names the file and its fault.
  void LoadFile(const std::string& sPath);

  /// Adds entries from the text of an update file to the table. A key that is there already ends
  /// the reading and throws a Failure.
  void LoadText(std::string_view sText);

  /// True and the text under a key as it is; False and an empty text if there is none.
  bool GetData(const KeyText& oName, std::string_view& sData) const;

  /// True and the value; False, and `fValue` left alone, if the key is missing or not a number.
  bool GetPrice(const KeyText& oName, Single& fValue, std::int32_t nShop) const;

  /// Fills `oRange` with one tier, from 1. False, and `oRange` left alone, if there is no tier
  /// table; False, and 0 in their place, if the tier lacks numbers. Throws a Failure if the count
  /// of tiers isn't a 16-bit integer.
  bool GetRange(const KeyText& oName, std::int16_t nRangeNumber, clsPriceRange& oRange,
                std::int32_t nShop) const;

  /// Fills `oRange` with the first tier that holds a value, both its ends included. If none does:
  /// False, m_nIndex 0, and the rest of the last tier tried. Throws a Failure if the tier table is
  /// missing or its count isn't a 16-bit integer.
  bool HitTestRanges(const KeyText& oName, Single fHitTestValue, clsPriceRange& oRange,
                     std::int32_t nShop) const;

  /// True if there is a tier table of that name, even an empty one.
  [[nodiscard]] bool HasTiers(const KeyText& oName) const;

  /// The features' prices, as GetPrice would find them one by one.
  [[nodiscard]] const FeatureLists& Features() const { return m_oFeatures; }

  /// What a sale costs today, valid until the next load; null in a schedule of 2007.
  [[nodiscard]] const SaleRates* Sale() const { return m_oSaleRates ? &*m_oSaleRates : nullptr; }

  /// Where the tiers of all tables start and end, without the ends that mean no limit: in order,
  /// each once.
  struct TierEdges {
    std::vector<Single> afStarts;
    std::vector<Single> afEnds;
  };
  [[nodiscard]] TierEdges Edges() const;

  [[nodiscard]] const PriceTable& Table() const { return m_oTable; }

  /// Why some sale can't be priced, as LoadUpdateFile found.
  [[nodiscard]] const std::optional<Finding>& MissingPrice() const { return m_oMissingPrice; }

 private:
  void LoadFile(const std::string& sPath, int nAttempts);
  void LoadUpdateFileOrFail(int nAttempts);
  void LoadUsersCopy(const std::string& sPath, int nAttempts);
  void LoadDefaultInstead(const std::string& sReason);
  void AddEntries(std::string_view sText);
  void EndLoad();

  PriceTable m_oTable;
  FeatureLists m_oFeatures;
  std::optional<SaleRates> m_oSaleRates;
  std::optional<Finding> m_oMissingPrice;
};

/// The program's table, made and loaded from the update file on first use.
[[nodiscard]] clsPrices& Prices();

/// True if the program's table is loaded and has today's fees. Loads nothing.
[[nodiscard]] bool AreFeesOfToday();

/// Makes `oPrices` the program's table: for tools and tests that choose the file themselves.
void UsePrices(std::unique_ptr<clsPrices> oPrices);

}  // namespace quillet
