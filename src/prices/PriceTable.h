// Text values under text keys, without regard to the case of A to Z; look-ups take constant time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "prices/PriceKey.h"

namespace quillet {

/// The three numbers of a tier, by the place of their text.
enum class TierPart : std::size_t { Start, End, Value };

/// The key of a tier's number is the table's name, this word and the number of the tier.
inline constexpr std::array<KeyText, 3> kTierWords = {"RangeStart", "RangeEnd", "RangeValue"};
inline constexpr KeyText kCountWord = "Ranges";

class PriceTable {
 public:
  /// A tier table as LinkTiers has found it.
  struct Tiers {
    std::string_view sCount;    ///< the text that counts them
    std::uint32_t nFirst = 0;   ///< where the links of tier 1 are
    std::uint32_t nLinked = 0;  ///< how many tiers have links; the others are found by their keys
  };

  /// False if the key is there already; the first value then stays.
  bool Add(const KeyText& oKey, std::string_view sValue);

  /// The value, valid until the next Add or Clear; nothing if there is no such key.
  [[nodiscard]] std::optional<std::string_view> Find(const KeyText& oKey) const;

  /// Notes where the tiers of every table stand, so that reading them takes no search by key.
  /// Adding an entry undoes it.
  void LinkTiers();

  /// The tier table whose count stands under the key; nothing if there is no such key.
  [[nodiscard]] std::optional<Tiers> FindTiers(const KeyText& oCountKey) const;

  /// The text of a number of a linked tier, from 1; empty if the tier lacks it.
  [[nodiscard]] std::string_view TierText(const Tiers& oTiers, std::uint32_t nTier,
                                          TierPart ePart) const {
    const Place oPlace = m_aoLinks[oTiers.nFirst + nTier - 1][static_cast<std::size_t>(ePart)];
    return {m_sTexts.data() + oPlace.nAt, oPlace.nLength};
  }

  [[nodiscard]] std::size_t Size() const { return m_aoEntries.size(); }
  void Clear();

  /// Every key in the order in which it was added.
  [[nodiscard]] std::string_view KeyAt(std::size_t nEntry) const;

 private:
  // Keys and values stand one behind the other in m_sTexts; an entry says where.
  struct Entry {
    std::uint32_t nKeyAt = 0;
    std::uint32_t nKeyLength = 0;
    std::uint32_t nValueLength = 0;
    std::uint32_t nHash = 0;
    std::uint32_t nFirstLink = 0;  ///< of the count of a tier table: its tiers
    std::uint32_t nLinks = 0;
  };
  struct Place {
    std::uint32_t nAt = 0;
    std::uint32_t nLength = 0;
    bool operator==(const Place&) const = default;
  };
  using Link = std::array<Place, kTierWords.size()>;  ///< by TierPart: the values of a tier

  /// Null if there is no such key.
  [[nodiscard]] const Entry* EntryOf(const KeyText& oKey) const;
  [[nodiscard]] std::size_t SlotOf(std::string_view sKey, std::uint32_t nHash) const;
  [[nodiscard]] std::string_view ValueOf(const Entry& oEntry) const;
  [[nodiscard]] Link LinkOf(PriceKey& oTable, std::int32_t nTier) const;
  void LinkTable(std::string_view sTable);
  void Grow();

  std::string m_sTexts;
  std::vector<Entry> m_aoEntries;
  std::vector<std::uint32_t> m_anSlots;  ///< a power of two of them: 0, or an entry's index + 1
  std::vector<Link> m_aoLinks;
  bool m_bLinked = false;
};

}  // namespace quillet
