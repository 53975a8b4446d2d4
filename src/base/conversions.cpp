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

/// What a pattern of FormatNumber asks for.
struct Pattern {
  std::string_view sBefore;
  std::string_view sBehind;
  std::size_t nLeastWhole = 0;     ///< digits before the separator that are always shown
  std::size_t nLeastDecimals = 0;  ///< decimals that are always shown
  std::size_t nMostDecimals = 0;
  bool bGrouped = false;
};

Pattern ReadPattern(std::string_view sPattern) {
  constexpr std::size_t kMostDecimals = 12;  // up to here a float scales exactly in a double
  Pattern oPattern;
  const std::size_t nFirst = sPattern.find_first_of("0#");
  std::size_t nAt = nFirst;
  bool bDecimals = false;
  for (; nAt < sPattern.size(); ++nAt) {
    const char c = sPattern[nAt];
    if (c == '.' && !bDecimals) {
      bDecimals = true;
    } else if (c == ',' && !bDecimals) {
      oPattern.bGrouped = true;
    } else if (c != '0' && c != '#') {
      break;
    } else if (bDecimals) {
      oPattern.nMostDecimals = std::min(oPattern.nMostDecimals + 1, kMostDecimals);
      oPattern.nLeastDecimals = c == '0' ? oPattern.nMostDecimals : oPattern.nLeastDecimals;
    } else {
      oPattern.nLeastWhole += c == '0' ? 1U : 0U;
    }
  }
  oPattern.sBefore = sPattern.substr(0, nFirst);
  oPattern.sBehind = sPattern.substr(nAt);
  return oPattern;
}

/// The digits of |value| * 10 ^ nDecimals, a half rounded up. The product (for up to twelve
/// decimals) and the rounding are both exact.
std::string ScaledDigits(Single fValue, std::size_t nDecimals) {
  const double fScaled = std::abs(double{fValue}) * std::pow(10.0, static_cast<double>(nDecimals));
  std::array<char, 64> acDigits{};
  const auto oResult = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(),
                                     std::round(fScaled), std::chars_format::fixed, 0);
  return {acDigits.data(), oResult.ptr};
}

void InsertGroups(std::string& sWhole, std::string_view sGroup) {
  for (std::size_t nAt = sWhole.size(); nAt > 3;) {
    nAt -= 3;
    sWhole.insert(nAt, sGroup);
  }
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

std::string FormatNumber(Single fValue, std::string_view sPattern) {
  if (sPattern.empty()) {
    return SingleText(fValue);
  }
  if (sPattern.find_first_of("0#") == std::string_view::npos) {
    return std::string(sPattern);
  }
  const Pattern oPattern = ReadPattern(sPattern);
  std::string sDigits = ScaledDigits(fValue, oPattern.nMostDecimals);
  const bool bZero = sDigits == "0";
  sDigits = PadLeftWith(std::move(sDigits), oPattern.nMostDecimals + 1, "0");

  const std::size_t nWhole = sDigits.size() - oPattern.nMostDecimals;
  std::string sWhole = sDigits.substr(0, nWhole);
  std::string sDecimals = sDigits.substr(nWhole);
  if (sWhole == "0") {
    sWhole.clear();
  }
  sWhole = PadLeftWith(std::move(sWhole), oPattern.nLeastWhole, "0");
  while (sDecimals.size() > oPattern.nLeastDecimals && sDecimals.back() == '0') {
    sDecimals.pop_back();
  }

  const std::string& sSeparator = TheHost().DecimalSeparator();
  if (oPattern.bGrouped) {
    InsertGroups(sWhole, sSeparator == "," ? "." : ",");
  }
  std::string sText = fValue < 0 && !bZero ? "-" : "";
  sText.append(oPattern.sBefore).append(sWhole);
  if (!sDecimals.empty()) {
    sText.append(sSeparator).append(sDecimals);
  }
  return sText.append(oPattern.sBehind);
}

}  // namespace quillet
