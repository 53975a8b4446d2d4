// Text values under text keys, without regard to the case of A to Z; look-ups take constant time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

class PriceTable {
 public:
  /// False if the key is there already; the first value then stays.
  bool Add(std::string_view sKey, std::string_view sValue);

  /// The value, valid until the next Add or Clear; nothing if there is no such key.
  [[nodiscard]] std::optional<std::string_view> Find(std::string_view sKey) const;

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
  };

  [[nodiscard]] std::size_t SlotOf(std::string_view sKey, std::uint32_t nHash) const;
  void Grow();

  std::string m_sTexts;
  std::vector<Entry> m_aoEntries;
  std::vector<std::uint32_t> m_anSlots;  ///< a power of two of them: 0, or an entry's index + 1
};

}  // namespace quillet
