#include "sections/NumericText.h"

#include <algorithm>

#include "base/FormatNumber.h"
#include "base/conversions.h"
#include "base/text.h"
#include "platform/Host.h"
#include "prices/money.h"
#include "sections/typedNumber.h"

namespace quillet {
namespace {

/// Where `sSought` begins, counted from 1; 0 if it isn't there.
std::size_t Position(std::u16string_view sText, std::u16string_view sSought) {
  return sText.empty() ? 0 : sText.find(sSought) + 1;  // npos + 1 is 0
}

std::string Zeros(std::int16_t nCount) {
  return std::string(static_cast<std::size_t>(std::max<std::int16_t>(0, nCount)), '0');
}

/// How many of the last decimal place make one. 16 bits are enough for four places.
std::int16_t DecimalDivisor(std::int16_t nDecimalPlaces) {
  const std::optional<std::int16_t> nDivisor = ToInteger("1" + Zeros(nDecimalPlaces));
  if (!nDivisor) {
    throw Failure(FailureNumber::Overflow, "The box shows too many decimals to step them.");
  }
  return *nDivisor;
}

}  // namespace

Single NumericText::ClampValue(Single fValue) const {
  if (m_fMax <= m_fMin) {
    return fValue;
  }
  return std::clamp<double>(fValue, m_fMin, m_fMax);
}

std::optional<Single> NumericText::ParseCurrentValue(std::u16string_view sText) const {
  return ToTypedSingle(sText, m_sDecimalSeperator, m_bShowMoney);
}

bool NumericText::IsTextValid(std::u16string_view sText) const {
  const std::optional<Single> fValue =
      HasDecimals() ? ParseCurrentValue(sText)
                    : ToTypedSingle(sText, ToUtf16(TheHost().DecimalSeparator()), false);
  if (!fValue) {
    return false;
  }
  return m_fMin == m_fMax || (*fValue >= m_fMin && *fValue <= m_fMax);
}

bool NumericText::CanBeShown(std::u16string_view sText) const {
  if (!IsTextValid(sText)) {
    return false;
  }
  constexpr double kBeyond = 2147483648.0;
  const double fValue = *ParseCurrentValue(sText);
  return HasDecimals() || (fValue >= -kBeyond && fValue < kBeyond);
}

bool NumericText::CaretRegion(const BoxText& oBox) const {
  const std::size_t nAt = Position(oBox.sText, m_sDecimalSeperator);
  return nAt != 0 && oBox.nCaret >= nAt;
}

void NumericText::SetDisplayValue(Single fValue, BoxText& oBox) const {
  const std::string sPrefix = m_bShowMoney ? CurrencySymbolText() : "";
  const Single fShown = ClampValue(fValue);
  if (!HasDecimals()) {
    oBox.sText = ToUtf16(sPrefix + std::to_string(RoundToLong(fShown)));
    oBox.nCaret = oBox.sText.size();
    return;
  }
  // The text shown has the user's decimal character, whatever separator the box looks for.
  const bool bInDecimals = CaretRegion(oBox);
  oBox.sText = ToUtf16(sPrefix + FormatNumber(fShown, "0." + Zeros(m_nDecimalPlaces)));
  const std::size_t nAt = Position(oBox.sText, m_sDecimalSeperator);
  oBox.nCaret = nAt == 0 ? oBox.sText.size() : nAt - (bInDecimals ? 0 : 1);
}

void NumericText::StepValue(std::int32_t nDelta, bool bInDecimals, BoxText& oBox) const {
  const std::optional<Single> fValue = ParseCurrentValue(oBox.sText);
  if (!fValue) {
    return;
  }
  const double fStep =
      bInDecimals ? static_cast<double>(nDelta) / DecimalDivisor(m_nDecimalPlaces) : nDelta;
  SetDisplayValue(fStep + *fValue, oBox);
}

std::int32_t SpinDelta(const SpinRange& oRange, std::int32_t nFrom, std::int32_t nTo) {
  if (nFrom == oRange.nMin && nTo == oRange.nMax) {
    return -oRange.nIncrement;
  }
  if (nFrom == oRange.nMax && nTo == oRange.nMin) {
    return oRange.nIncrement;
  }
  return nTo - nFrom;
}

}  // namespace quillet
