#include "base/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/text.h"
#include "platform/Host.h"

namespace quillet {
namespace {

constexpr std::string_view kPoint = ".";

bool TakeSign(std::string_view& sText) {
  if (sText.empty() || (sText.front() != '+' && sText.front() != '-')) {
    return false;
  }
  const bool bNegative = sText.front() == '-';
  sText.remove_prefix(1);
  return bNegative;
}

/// Whether a number that is out of a format's range is too small rather than too large. Its
/// separator, if any, is a point.
bool IsTiny(std::string_view sUnsigned) {
  const std::size_t nExponent = std::min(sUnsigned.find_first_of("eE"), sUnsigned.size());
  const std::string_view sDigits = sUnsigned.substr(0, nExponent);
  const std::size_t nPoint = std::min(sDigits.find(kPoint), sDigits.size());
  const std::size_t nFirst = std::min(sDigits.find_first_of("123456789"), sDigits.size());
  std::string_view sExponent = sUnsigned.substr(std::min(nExponent + 1, sUnsigned.size()));
  const bool bNegative = TakeSign(sExponent);
  double fExponent = 0;  // takes any number of digits
  for (const char c : sExponent) {
    fExponent = fExponent * 10 + (c - '0');
  }
  return static_cast<double>(nPoint) + (bNegative ? -fExponent : fExponent) <=
         static_cast<double>(nFirst);
}

/// Converts a number with a point: nothing on overflow, 0 on underflow.
template <typename Float>
std::optional<Float> ConvertWithPoint(std::string_view sText) {
  const bool bNegative = TakeSign(sText);
  if (sText.empty() || (!IsDigit(sText.front()) && sText.front() != kPoint.front())) {
    return std::nullopt;  // a second sign, or the library's "inf" or "nan"
  }
  Float fValue = 0;
  const char* const pEnd = sText.data() + sText.size();
  const auto oResult = std::from_chars(sText.data(), pEnd, fValue);
  if (oResult.ptr != pEnd || oResult.ec == std::errc::invalid_argument) {
    return std::nullopt;
  }
  if (oResult.ec == std::errc::result_out_of_range) {
    if (!IsTiny(sText)) {
      return std::nullopt;
    }
    fValue = 0;
  }
  return bNegative ? -fValue : fValue;
}

/// The nearest number.
template <typename Float>
std::optional<Float> ConvertNumber(std::string_view sText, std::string_view sSeparator) {
  sText = Trim(sText);
  if (sSeparator == kPoint) {
    return ConvertWithPoint<Float>(sText);
  }
  if (sText.find(kPoint) != std::string_view::npos) {
    return std::nullopt;
  }
  std::string sWithPoint(sText);
  if (const std::size_t nAt = sText.find(sSeparator); nAt != std::string_view::npos) {
    sWithPoint.replace(nAt, sSeparator.size(), kPoint);
  }
  return ConvertWithPoint<Float>(sWithPoint);
}

/// For files: with a point, or else with the user's separator.
template <typename Float>
std::optional<Float> ConvertOfFile(std::string_view sText) {
  const std::optional<Float> fValue = ConvertNumber<Float>(sText, kPoint);
  const std::string& sSeparator = TheHost().DecimalSeparator();
  return fValue || sSeparator == kPoint ? fValue : ConvertNumber<Float>(sText, sSeparator);
}

std::optional<Single> AsSingle(const std::optional<float>& fValue) {
  return fValue ? std::optional(Single::OfFinite(*fValue)) : std::nullopt;
}

template <typename Integer>
std::optional<Integer> ConvertInteger(std::string_view sText) {
  if (sText.size() == 1 && IsDigit(sText.front())) {
    return static_cast<Integer>(sText.front() - '0');  // by far the most common case
  }
  sText = Trim(sText);
  if (sText.starts_with('+')) {
    sText.remove_prefix(1);
    if (sText.starts_with('-')) {
      return std::nullopt;
    }
  }
  std::int64_t nValue = 0;
  const auto oResult = std::from_chars(sText.data(), sText.data() + sText.size(), nValue);
  if (oResult.ec != std::errc{} || oResult.ptr != sText.data() + sText.size() ||
      nValue < std::numeric_limits<Integer>::min() ||
      nValue > std::numeric_limits<Integer>::max()) {
    return std::nullopt;
  }
  return static_cast<Integer>(nValue);
}

/// AppendSingle for a number from a ten-thousandth to below ten million, where seven digits scale
/// exactly in a double. False for any other.
bool AppendPlain(std::string& sText, Single fValue) {
  constexpr double kLeast = 1e-4;
  constexpr double kEightDigits = 9'999'999.5;  // the least that rounds to eight digits
  double fScaled = std::abs(double{fValue});
  if (!(fScaled >= kLeast && fScaled < kEightDigits)) {
    return false;
  }
  std::size_t nDecimals = 0;
  if (fScaled != std::trunc(fScaled)) {
    for (; fScaled * 10 < kEightDigits; fScaled *= 10) {
      ++nDecimals;
    }
  }
  auto uDigits = static_cast<std::uint32_t>(std::nearbyint(fScaled));
  for (; nDecimals > 0 && uDigits % 10 == 0; uDigits /= 10) {
    --nDecimals;
  }
  std::array<char, 16> acDigits{};
  const auto oEnd = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(), uDigits);
  const std::string_view sDigits(acDigits.data(), oEnd.ptr);
  sText.append(fValue < 0 ? "-" : "");
  if (nDecimals == 0) {
    sText += sDigits;
    return true;
  }
  const std::size_t nWhole = sDigits.size() > nDecimals ? sDigits.size() - nDecimals : 0;
  sText.append(nWhole == 0 ? "0" : sDigits.substr(0, nWhole)).append(TheHost().DecimalSeparator());
  sText.append(nDecimals - (sDigits.size() - nWhole), '0').append(sDigits.substr(nWhole));
  return true;
}

}  // namespace

std::optional<double> ToDouble(std::string_view sText) {
  return ConvertNumber<double>(sText, TheHost().DecimalSeparator());
}

bool IsNumeric(std::string_view sText) {
  return ToDouble(sText).has_value();
}

std::optional<Single> ToSingle(std::string_view sText) {
  return AsSingle(ConvertNumber<float>(sText, TheHost().DecimalSeparator()));
}

std::optional<double> ToFileDouble(std::string_view sText) {
  return ConvertOfFile<double>(sText);
}

std::optional<Single> ToFileSingle(std::string_view sText) {
  return AsSingle(ConvertOfFile<float>(sText));
}

std::optional<std::int32_t> ToLong(std::string_view sText) {
  return ConvertInteger<std::int32_t>(sText);
}

std::optional<std::int16_t> ToInteger(std::string_view sText) {
  return ConvertInteger<std::int16_t>(sText);
}

std::optional<std::uint8_t> ToByte(std::string_view sText) {
  return ConvertInteger<std::uint8_t>(sText);
}

std::optional<bool> ToBoolean(std::string_view sText) {
  for (const bool bValue : {false, true}) {
    if (sText == BooleanText(bValue)) {
      return bValue;  // the usual case
    }
  }
  for (const bool bValue : {false, true}) {
    if (EqualIgnoringCase(Trim(sText), BooleanText(bValue))) {
      return bValue;
    }
  }
  const std::optional<double> fValue = ToFileDouble(sText);
  return fValue ? std::optional<bool>(*fValue != 0) : std::nullopt;
}

std::int32_t RoundToLong(double fValue) {
  const double fWhole = std::nearbyint(fValue);
  if (!(fWhole >= std::numeric_limits<std::int32_t>::min() &&
        fWhole <= std::numeric_limits<std::int32_t>::max())) {
    throw Failure(FailureNumber::Overflow, "A number is too large.");
  }
  return static_cast<std::int32_t>(fWhole);
}

std::string SingleText(Single fValue) {
  std::string sText;
  AppendSingle(sText, fValue);
  return sText;
}

void AppendSingle(std::string& sText, Single fValue) {
  if (fValue == 0) {
    sText += '0';
    return;
  }
  if (AppendPlain(sText, fValue)) {
    return;
  }
  std::array<char, 32> acText{};
  const auto oResult = std::to_chars(acText.data(), acText.data() + acText.size(), double{fValue},
                                     std::chars_format::general, 7);
  std::string sRare = UpperCase({acText.data(), oResult.ptr});
  if (const std::size_t nPoint = sRare.find('.'); nPoint != std::string::npos) {
    sRare.replace(nPoint, 1, TheHost().DecimalSeparator());
  }
  sText += sRare;
}

}  // namespace quillet
