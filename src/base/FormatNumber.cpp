#include "base/FormatNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "base/conversions.h"
#include "base/text.h"
#include "platform/Host.h"

namespace quillet {
namespace {

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
