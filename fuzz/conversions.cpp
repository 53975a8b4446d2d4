// Conversions between text and numbers: they match the C library's, and are stable there and back.
#include "base/conversions.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "base/FormatNumber.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Host.h"
#include "support.h"

namespace quillet {
namespace {

void CheckText(std::string_view sText) {
  const std::string sDecoded = DecodeText(std::string(sText));
  Require(IsValidUtf8(sDecoded) && FromUtf16(ToUtf16(sDecoded)) == sDecoded);
  std::string sHex;
  std::string sBack;
  StringToHex(sDecoded, sHex);
  HexToString(sHex, sBack);
  Require(sBack == sDecoded);
  IgnoreFailure([&] { HexToString(sText, sBack); });
}

/// Compares with the C library, which reads numbers with a point.
void CheckAgainstLibrary(std::string sText) {
  const auto fDouble = ToDouble(sText);
  const auto fSingle = ToSingle(sText);
  Require(IsNumeric(sText) == fDouble.has_value());
  if (fDouble) {
    if (const std::size_t nAt = sText.find(TheHost().DecimalSeparator());
        nAt != std::string::npos) {
      sText[nAt] = '.';
    }
    const float fExpected = std::strtof(sText.c_str(), nullptr);
    Require(*fDouble == std::strtod(sText.c_str(), nullptr));
    Require(fSingle.has_value() == std::isfinite(fExpected));
    Require(!fSingle || fSingle->Float() == fExpected);
  }
}

void CheckIntegers(std::string_view sText) {
  const auto nLong = ToLong(sText);
  const auto nInteger = ToInteger(sText);
  const auto nByte = ToByte(sText);
  Require(!nInteger || (nLong && *nLong == *nInteger));
  Require(!nByte || (nInteger && *nInteger == *nByte));
  Require(!nLong || (IsNumeric(sText) && *ToDouble(sText) == *nLong));
  Require(!IsNumeric(sText) || *ToBoolean(sText) == (*ToDouble(sText) != 0));
}

void CheckSingle(Single fValue, std::string_view sPattern) {
  const std::string sText = SingleText(fValue);
  const auto fBack = ToSingle(sText);
  Require(!fBack || SingleText(*fBack) == sText);  // the largest one's text is out of range
  std::string sShown = FormatNumber(fValue, sPattern);
  const std::size_t nPoint = sPattern.find('.');
  const bool bPlain = sPattern.find_first_not_of("0#.") == std::string_view::npos &&
                      sPattern.rfind('.') == nPoint && sPattern.find('0') < nPoint;
  if (bPlain && sPattern.size() <= 12) {
    const std::size_t nDecimals =
        nPoint == std::string_view::npos ? 0 : sPattern.size() - nPoint - 1;
    const auto fShown = ToDouble(sShown);
    const double fHalf = 0.5 * std::pow(10.0, -static_cast<double>(nDecimals));
    Require(fShown && std::abs(*fShown - fValue) <= fHalf * 1.000001 + std::abs(fValue) * 1e-15);
  }
}

}  // namespace
}  // namespace quillet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  const std::string_view sText = TakeSettings(pData, nSize);
  CheckText(sText);
  CheckAgainstLibrary(std::string(sText));
  CheckIntegers(sText);
  if (sText.size() >= sizeof(float)) {
    float fValue = 0;
    std::memcpy(&fValue, sText.data(), sizeof fValue);
    if (std::isfinite(fValue)) {
      CheckSingle(static_cast<double>(fValue), sText.substr(sizeof fValue));
    }
  }
  return 0;
}
