// The values of a fee schedule under text keys, without regard to the case of A to Z. A value is
// text; what it is as a number is worked out once, when it is added. Look-ups take constant time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Single.h"
#include "prices/PriceKey.h"

namespace quillet {

/// The three numbers of a tier, by their place in it.
enum class TierPart : std::size_t { Start, End, Value };

/// The key of a tier's number is the table's name, this word and the number of the tier.
inline constexpr std::array<KeyText, 3> kTierWords = {"RangeStart", "RangeEnd", "RangeValue"};
inline constexpr KeyText kCountWord = "Ranges";

/// One tier as the schedule has it. A number that is missing or invalid is 0.
struct Tier {
  std::array<Single, kTierWords.size()> afNumbers;  ///< by TierPart
  bool bComplete = false;                           ///< all three are there

  [[nodiscard]] Single operator[](TierPart ePart) const {
    return afNumbers[static_cast<std::size_t>(ePart)];
  }
};

class PriceTable {
 public:
  /// A tier table as LinkTiers has found it.
  struct Tiers {
    std::optional<std::int16_t> nCount;  ///< nothing if its text isn't a 16-bit integer
    std::uint32_t nFirst = 0;            ///< where tier 1 is
    std::uint32_t nLinked = 0;  ///< how many tiers are noted; the others are found by their keys
  };

  /// Makes room for the entries of a text of that many bytes.
  void Reserve(std::size_t nBytes);

  /// False if the key is there already; the first value then stays.
  bool Add(const KeyText& oKey, std::string_view sValue);

  /// The value, valid until the next Add or Clear; nothing if there is no such key.
  [[nodiscard]] std::optional<std::string_view> Find(const KeyText& oKey) const;

  /// The value as a number; nothing if there is no such key or its value isn't a number.
  [[nodiscard]] std::optional<Single> FindNumber(const KeyText& oKey) const;

  /// Notes the tier tables and their tiers, which are found from then on, until the next Add.
  void LinkTiers();

  /// The tier table whose count is under the key; null if there is none.
  [[nodiscard]] const Tiers* FindTiers(const KeyText& oCountKey) const;

  /// A tier of the table of that name, from 1.
  [[nodiscard]] Tier TierOf(const PriceKey& oName, const Tiers& oTiers, std::int32_t nTier) const {
    const auto nAt = static_cast<std::uint32_t>(nTier) - 1;
    return nAt < oTiers.nLinked ? m_aoTiers[oTiers.nFirst + nAt] : FindTier(oName, nTier);
  }

  /// The tiers of all tables, one after the other, as LinkTiers has noted them.
  [[nodiscard]] const std::vector<Tier>& AllTiers() const { return m_aoTiers; }

  [[nodiscard]] std::size_t Size() const { return m_aoEntries.size(); }
  void Clear();

  /// Every key in the order in which it was added.
  [[nodiscard]] std::string_view KeyAt(std::size_t nEntry) const;

 private:
  // Keys and values are stored one after the other in m_sTexts; an entry says where.
  struct Entry {
    std::uint32_t nKeyAt = 0;
    std::uint32_t nKeyLength = 0;
    std::uint32_t nValueLength = 0;
    std::uint32_t nHash = 0;
    std::uint32_t nTable = kNoTable;  ///< of the count of a tier table: its place in m_aoTables
    std::optional<Single> fNumber;
  };
  static constexpr std::uint32_t kNoTable = ~std::uint32_t{0};

  /// Null if there is no such key.
  [[nodiscard]] const Entry* EntryOf(const KeyText& oKey) const;
  [[nodiscard]] std::size_t SlotOf(std::string_view sKey, std::uint32_t nHash) const;
  [[nodiscard]] std::string_view ValueOf(const Entry& oEntry) const;
  [[nodiscard]] Tier FindTier(PriceKey oName, std::int32_t nTier) const;
  void LinkTable(const Entry& oCount, std::string_view sName);
  void Rehash(std::size_t nSlots);

  std::string m_sTexts;
  std::vector<Entry> m_aoEntries;
  std::vector<std::uint32_t> m_anSlots;  ///< a power of two of them: 0, or an entry's index + 1
  std::vector<Tiers> m_aoTables;
  std::vector<Tier> m_aoTiers;
};

}  // namespace quillet
