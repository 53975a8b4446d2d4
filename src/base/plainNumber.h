// The quick way of the numbers that nearly all prices are. What it refuses, conversions.h may still
// read, and what it reads, conversions.h reads the same.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace quillet {

[[nodiscard]] inline bool IsDigit(char c) {
  return static_cast<unsigned char>(c - '0') <= 9;
}

/// The decimal separator that a number of a file may have whatever the user's is.
inline constexpr std::string_view kPoint = ".";

/// The powers of ten that a format holds exactly. One exact integer times or divided by one of them
/// rounds once, and so gives the nearest number.
template <typename Float>
struct Exact {
  static constexpr bool bDouble = sizeof(Float) == sizeof(double);
  static constexpr std::uint64_t kInteger = std::uint64_t{1} << std::numeric_limits<Float>::digits;
  static constexpr std::size_t kPower = bDouble ? 22 : 10;
  static constexpr std::array<Float, kPower + 1> kPowers = [] {
    std::array<Float, kPower + 1> afPowers{1};
    for (std::size_t i = 1; i < afPowers.size(); ++i) {
      afPowers.at(i) = afPowers.at(i - 1) * 10;
    }
    return afPowers;
  }();
};

/// Takes the digits at the front of the text onto the number.
inline std::size_t TakePlainDigits(std::string_view& sText, std::uint32_t& uDigits) {
  const char* pAt = sText.data();
  const char* const pEnd = pAt + sText.size();
  for (; pAt != pEnd && IsDigit(*pAt); ++pAt) {
    uDigits = uDigits * 10 + static_cast<std::uint32_t>(*pAt - '0');
  }
  const auto nTaken = static_cast<std::size_t>(pAt - sText.data());
  sText.remove_prefix(nTaken);
  return nTaken;
}

/// The number that a text is, if it is nothing but a few digits with a minus and a separator at
/// most. False, and `fValue` left alone, for any other text, be it a number or not.
template <typename Float>
[[nodiscard]] inline bool ReadPlainNumber(std::string_view sText, std::string_view sSeparator,
                                          Float& fValue) {
  constexpr std::size_t kMostDigits = 9;  // so many fit without a look at each
  const bool bNegative = sText.starts_with('-');
  sText.remove_prefix(bNegative ? 1 : 0);
  std::uint32_t uDigits = 0;
  std::size_t nDigits = TakePlainDigits(sText, uDigits);
  std::size_t nDecimals = 0;
  if (!sText.empty()) {
    if (sSeparator.size() != 1 || sText.front() != sSeparator.front()) {
      return false;
    }
    sText.remove_prefix(1);
    nDecimals = TakePlainDigits(sText, uDigits);
    nDigits += nDecimals;
  }
  if (!sText.empty() || nDigits == 0 || nDigits > kMostDigits || uDigits > Exact<Float>::kInteger) {
    return false;
  }
  const auto fWhole = static_cast<Float>(static_cast<std::int32_t>(uDigits));
  const Float fResult = nDecimals == 0 ? fWhole : fWhole / Exact<Float>::kPowers[nDecimals];
  fValue = bNegative ? -fResult : fResult;
  return true;
}

}  // namespace quillet
