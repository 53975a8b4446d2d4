#include "engine/clsPayPal.h"

#include <cmath>
#include <limits>

#include "base/conversions.h"
#include "base/failure.h"
#include "prices/clsPrices.h"
#include "prices/money.h"

namespace quillet {
namespace {

KeyText RateName(std::int32_t eAccountType) {
  switch (eAccountType) {
    case kAccountPersonal:
      return "PersonalRate";
    case kAccountPremier:
    case kAccountBusiness:
      return "BusinessRate";
    default:
      return "";
  }
}

enum eCurrency : std::int32_t {
  kUSDollars = 0,
  kCanadianDollars = 1,
  kEuros = 2,
  kPounds = 3,
  kYen = 4,
};

KeyText CurrencyName(std::int32_t eCurrency) {
  switch (eCurrency) {
    case kUSDollars:
      return "USDollars";
    case kCanadianDollars:
      return "CanadianDollars";
    case kEuros:
      return "Euros";
    case kPounds:
      return "Pounds";
    case kYen:
      return "Yen";
    default:
      return "";
  }
}

Single BandRate(const KeyText& oKey, Single fBandValue) {
  clsPriceRange oTier;
  return Prices().HitTestRanges(oKey, fBandValue, oTier, kShopNone) ? oTier.m_fValue : Single(0);
}

/// The text's amount in whole smallest units; an exact half goes down.
Single RoundFee(const std::string& sFee) {
  const std::int32_t nUnitsPerMajor = CurrencyUnitsPerMajor();
  Single fUnits = ToDouble(sFee).value_or(0) * nUnitsPerMajor;
  const Single fWhole = std::trunc(fUnits);
  const Single fFraction = fUnits - fWhole;
  fUnits = fFraction > 0.5 ? Single(fWhole + 1) : fWhole;
  return fUnits / nUnitsPerMajor;
}

}  // namespace

Single clsPayPal::DoCalc(Single fAmount, const clsOutlay* oOutlay) {
  m_fLastPrice = fAmount;
  m_oLastOutlay = oOutlay;
  if (m_nBusinessBand == 0 || !m_bEnabled || fAmount <= 0) {
    return 0;
  }
  // The schedule keeps its rates under this one currency in every region.
  PriceKey oPercentKey = RateName(m_eAccountType);
  oPercentKey.Append(CurrencyName(kPounds));
  PriceKey oFixedKey = oPercentKey;
  oPercentKey.Append("%");
  oFixedKey.Append("Fixed");
  Single fPercent;
  Single fFixed;
  if (m_eAccountType == kAccountPersonal) {
    Prices().GetPrice(oPercentKey, fPercent, kShopNone);
    Prices().GetPrice(oFixedKey, fFixed, kShopNone);
  } else {
    const Single fBandValue = BandValue();
    fPercent = BandRate(oPercentKey, fBandValue);
    fFixed = BandRate(oFixedKey, fBandValue);
  }
  const Single fFixedTotal = ApplyIndividually(fFixed);
  const Single fFee = fPercent / 100 * fAmount + fFixedTotal;
  // The text's seven digits strip the noise of the float before its fraction is judged.
  return RoundFee(SingleText(fFee));
}

Single clsPayPal::DoCalcAuto() {
  return DoCalc(m_fLastPrice, m_oLastOutlay);
}

PriceKey clsPayPal::BandKey(std::int32_t nAttribute, std::int32_t& nBand) const {
  if (nBand == 0) {
    nBand = m_nBusinessBand;
  }
  if (nBand < std::numeric_limits<std::int16_t>::min() ||
      nBand > std::numeric_limits<std::int16_t>::max()) {
    throw Failure(FailureNumber::Overflow, "There is no such merchant rate band.");
  }
  PriceKey oKey = KeyText("BusinessRateBand");
  return oKey.Append(nBand).Append(nAttribute == 0 ? KeyText("Name") : KeyText("Value"));
}

std::string clsPayPal::GetBusinessRateBandAttribute(std::int32_t nAttribute,
                                                    std::int32_t& nBand) const {
  std::string_view sData;
  Prices().GetData(BandKey(nAttribute, nBand), sData);
  return std::string(sData);
}

/// Of the chosen band. This selects the tier of a rate, not the amount.
Single clsPayPal::BandValue() const {
  std::int32_t nBand = 0;
  Single fValue;
  if (!Prices().GetPrice(BandKey(1, nBand), fValue, kShopNone)) {
    throw Failure(FailureNumber::TypeMismatch,
                  "The fee schedule has no value for PayPal's merchant rate band " +
                      std::to_string(nBand) + ".");
  }
  return fValue;
}

Single clsPayPal::ApplyIndividually(Single fAmount) const {
  const bool bEach =
      m_oLastOutlay != nullptr && m_oLastOutlay->m_lQuantity >= 2 && m_bPayIndividually;
  return bEach ? Single(fAmount * m_oLastOutlay->m_lQuantity) : fAmount;
}

}  // namespace quillet
