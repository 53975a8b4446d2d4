// Price keys, built and hashed without using the heap.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/text.h"

namespace quillet {

/// A key or a part of one, with its hash, which is the same for every case of A to Z. The hash of
/// two parts joined follows from those of the parts; that of a literal is known to the compiler.
class KeyText {
 public:
  template <std::size_t nSize>
  consteval KeyText(const char (&acLiteral)[nSize])  // NOLINT: a text is a key
      : KeyText(std::string_view(acLiteral, nSize - 1)) {}

  constexpr KeyText(std::string_view sText) : m_sText(sText) {  // NOLINT: likewise
    // Two characters at a time, since each step waits for the one before.
    for (; sText.size() >= 2; sText.remove_prefix(2)) {
      m_nHash = m_nHash * (kBase * kBase) + (Digit(sText[0]) * kBase + Digit(sText[1]));
      m_nPower *= kBase * kBase;
    }
    if (!sText.empty()) {
      m_nHash = m_nHash * kBase + Digit(sText.front());
      m_nPower *= kBase;
    }
  }

  KeyText(const std::string& sText) : KeyText(std::string_view(sText)) {}  // NOLINT: likewise

  [[nodiscard]] constexpr std::string_view Text() const { return m_sText; }
  [[nodiscard]] constexpr std::uint64_t Hash() const { return m_nHash; }

 private:
  friend class PriceKey;
  static constexpr std::uint64_t kBase = 0x9E3779B97F4A7C15;

  [[nodiscard]] static constexpr std::uint64_t Digit(char c) {
    return static_cast<unsigned char>(LowerCase(c));
  }

  KeyText(std::string_view sText, std::uint64_t nHash, std::uint64_t nPower)
      : m_sText(sText), m_nHash(nHash), m_nPower(nPower) {}

  std::string_view m_sText;
  std::uint64_t m_nHash = 0;   ///< the characters as digits to kBase
  std::uint64_t m_nPower = 1;  ///< kBase to the number of characters
};

/// A key of at most 128 bytes, built from parts. One that grows longer is in no table: it reads as
/// empty from then on.
class PriceKey {
 public:
  PriceKey(const KeyText& oText) { Append(oText); }  // NOLINT: a text is a key

  template <std::size_t nSize>
  PriceKey(const char (&acLiteral)[nSize])  // NOLINT: likewise
      : PriceKey(KeyText(std::string_view(acLiteral, nSize - 1))) {}

  operator KeyText() const {  // NOLINT: a key is a text
    return {Text(), m_oState.nHash, m_oState.nPower};
  }

  PriceKey& Append(const KeyText& oText) {
    const std::string_view sText = oText.Text();
    if (m_oState.nLength + sText.size() > m_acText.size()) {
      m_oState.nLength = kOverlong;
      return *this;
    }
    std::copy(sText.begin(), sText.end(), m_acText.begin() + m_oState.nLength);
    m_oState.nLength += sText.size();
    m_oState.nHash = m_oState.nHash * oText.m_nPower + oText.m_nHash;
    m_oState.nPower *= oText.m_nPower;
    return *this;
  }

  /// Appends a number in plain decimal.
  PriceKey& Append(std::int32_t nNumber) {
    std::array<char, 12> acDigits{};
    const auto oEnd = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(), nNumber);
    return Append(
        std::string_view(acDigits.data(), static_cast<std::size_t>(oEnd.ptr - acDigits.data())));
  }

  [[nodiscard]] std::string_view Text() const {
    return {m_acText.data(), m_oState.nLength == kOverlong ? 0 : m_oState.nLength};
  }

 private:
  friend class KeyBranch;
  static constexpr std::size_t kOverlong = ~std::size_t{0} / 2;

  struct State {
    std::size_t nLength = 0;
    std::uint64_t nHash = 0;
    std::uint64_t nPower = 1;
  };

  std::array<char, 128> m_acText;
  State m_oState;
};

/// Restores a key: what is appended meanwhile is removed when this goes out of scope.
class KeyBranch {
 public:
  explicit KeyBranch(PriceKey& oKey) : m_oKey(oKey), m_oState(oKey.m_oState) {}
  KeyBranch(const KeyBranch&) = delete;
  KeyBranch& operator=(const KeyBranch&) = delete;
  ~KeyBranch() { m_oKey.m_oState = m_oState; }

 private:
  PriceKey& m_oKey;
  PriceKey::State m_oState;
};

}  // namespace quillet
