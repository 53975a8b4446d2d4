#include "prices/money.h"

#include "base/FormatNumber.h"
#include "base/conversions.h"
#include "base/text.h"
#include "prices/clsPrices.h"

namespace quillet {

std::string FormatMoney(Single fValue) {
  std::string_view sSymbol;
  if (!Prices().GetData("CurrencySymbol", sSymbol)) {
    sSymbol = "£";
  }
  std::string_view sFormat;
  if (!Prices().GetData("CurrencyFormat", sFormat)) {
    sFormat = "0.00";
  }
  return std::string(sSymbol) + FormatNumber(fValue, sFormat);
}

std::string CurrencySymbolText() {
  std::string_view sSymbol;
  Prices().GetData("CurrencySymbol", sSymbol);
  return std::string(sSymbol);
}

std::int32_t CurrencyUnitsPerMajor() {
  std::string_view sFormat;
  Prices().GetData("CurrencyFormat", sFormat);
  const std::size_t nPoint = sFormat.find('.');
  if (nPoint == std::string_view::npos) {
    return 1;
  }
  double fUnits = 1;
  for (std::size_t i = Utf16Length(sFormat.substr(nPoint + 1)); i > 0; --i) {
    fUnits *= 10;
  }
  return RoundToLong(fUnits);
}

}  // namespace quillet
