// The key of a price, put together without touching the heap.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillet {

/// Text of at most 128 bytes. A key that grows beyond that is no key of any table: it reads as
/// empty from then on.
class PriceKey {
 public:
  PriceKey() = default;
  PriceKey(std::string_view sText) { Append(sText); }                 // NOLINT: a text is a key
  PriceKey(const char* sText) : PriceKey(std::string_view(sText)) {}  // NOLINT: likewise

  PriceKey& Append(std::string_view sText) {
    m_bOverlong = m_bOverlong || sText.size() > m_acText.size() - m_nLength;
    if (!m_bOverlong) {
      std::copy(sText.begin(), sText.end(), m_acText.begin() + m_nLength);
      m_nLength += sText.size();
    }
    return *this;
  }

  /// Appends a number in plain decimal.
  PriceKey& Append(std::int32_t nNumber) {
    std::array<char, 12> acDigits{};
    const auto oEnd = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(), nNumber);
    return Append({acDigits.data(), static_cast<std::size_t>(oEnd.ptr - acDigits.data())});
  }

  /// Goes back to the first `nLength` bytes.
  void Truncate(std::size_t nLength) { m_nLength = std::min(m_nLength, nLength); }

  [[nodiscard]] std::string_view Text() const {
    return m_bOverlong ? std::string_view{} : std::string_view(m_acText.data(), m_nLength);
  }

 private:
  std::array<char, 128> m_acText;
  std::size_t m_nLength = 0;
  bool m_bOverlong = false;
};

}  // namespace quillet
