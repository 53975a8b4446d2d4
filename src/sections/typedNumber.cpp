#include "sections/typedNumber.h"

#include <algorithm>
#include <string>

#include "base/conversions.h"
#include "base/text.h"
#include "platform/Host.h"
#include "prices/money.h"

namespace quillet {
namespace {

constexpr std::u16string_view kSpaces = u" \u00A0\u2009\u202F";
constexpr std::u16string_view kApostrophes = u"'\u2019";
constexpr std::u16string_view kMinusSigns = u"-\u2212";

bool Holds(std::u16string_view sSet, char16_t c) {
  return sSet.find(c) != std::u16string_view::npos;
}

bool IsDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

bool IsBlank(char16_t c) {
  return c == u'\t' || Holds(kSpaces, c);
}

std::u16string_view TrimBlanks(std::u16string_view sText) {
  while (!sText.empty() && IsBlank(sText.front())) {
    sText.remove_prefix(1);
  }
  while (!sText.empty() && IsBlank(sText.back())) {
    sText.remove_suffix(1);
  }
  return sText;
}

/// Takes a part off either end of a text; false if it is at neither.
bool TakeOff(std::u16string_view& sText, std::u16string_view sPart) {
  if (sPart.empty() || sText.size() < sPart.size()) {
    return false;
  }
  if (sText.starts_with(sPart)) {
    sText.remove_prefix(sPart.size());
    return true;
  }
  const bool bBehind = sText.ends_with(sPart);
  sText.remove_suffix(bBehind ? sPart.size() : 0);
  return bBehind;
}

/// What may surround a number, each at most once.
struct Surroundings {
  bool bSign = false;
  bool bNegative = false;
  bool bSymbol = false;
};

bool TakeSign(std::u16string_view& sText, Surroundings& oAround) {
  for (const char16_t& c : kMinusSigns) {
    oAround.bNegative = oAround.bNegative || TakeOff(sText, {&c, 1});
  }
  oAround.bSign = oAround.bNegative || TakeOff(sText, u"+");
  return oAround.bSign;
}

bool TakeSymbol(std::u16string_view& sText, Surroundings& oAround) {
  for (const std::string& sSymbol : {CurrencySymbolText(), TheHost().Numbers().sCurrency}) {
    oAround.bSymbol =
        oAround.bSymbol || TakeOff(sText, TrimBlanks(std::u16string_view(ToUtf16(sSymbol))));
  }
  return oAround.bSymbol;
}

/// What may separate the groups. A locale that has one kind of space, or of apostrophe, accepts
/// them all: keyboards have only one.
std::u16string GroupMarks(std::u16string_view sDecimal) {
  const std::u16string sGroup = ToUtf16(TheHost().Numbers().sGroup);
  if (sGroup.size() != 1 || sGroup == sDecimal) {
    return {};
  }
  for (const std::u16string_view sAlike : {kSpaces, kApostrophes}) {
    if (Holds(sAlike, sGroup.front())) {
      return std::u16string(sAlike);
    }
  }
  return sGroup;
}

/// The digits of a whole number without their grouping; nothing if the grouping is wrong.
std::optional<std::string> Ungrouped(std::u16string_view sWhole) {
  const NumberStyle& oStyle = TheHost().Numbers();
  std::string sDigits;
  std::size_t nSize = oStyle.nLastGroup;
  std::size_t nRun = 0;
  bool bGrouped = false;
  for (std::size_t nAt = sWhole.size(); nAt > 0;) {
    const char16_t c = sWhole[--nAt];
    if (IsDigit(c)) {
      sDigits += static_cast<char>(c);
      ++nRun;
    } else if (nRun == nSize) {
      nSize = oStyle.nGroup;
      nRun = 0;
      bGrouped = true;
    } else {
      return std::nullopt;
    }
  }
  if (bGrouped && (nRun == 0 || nRun > nSize || sDigits.back() == '0')) {
    return std::nullopt;
  }
  std::reverse(sDigits.begin(), sDigits.end());
  return sDigits;
}

}  // namespace

std::optional<Single> ToTypedSingle(std::u16string_view sText, std::u16string_view sDecimal,
                                    bool bMoney) {
  Surroundings oAround{.bSymbol = !bMoney};
  do {
    sText = TrimBlanks(sText);
  } while ((!oAround.bSign && TakeSign(sText, oAround)) ||
           (!oAround.bSymbol && TakeSymbol(sText, oAround)));

  const std::u16string sOfWhole = u"0123456789" + GroupMarks(sDecimal);
  const std::size_t nWhole = std::min(sText.find_first_not_of(sOfWhole), sText.size());
  const std::optional<std::string> sWhole = Ungrouped(sText.substr(0, nWhole));
  if (!sWhole) {
    return std::nullopt;
  }
  std::string sNumber = (oAround.bNegative ? "-" : "+") + *sWhole;
  sText.remove_prefix(nWhole);
  if (!sDecimal.empty() && sText.starts_with(sDecimal)) {
    sText.remove_prefix(sDecimal.size());
    sNumber += TheHost().DecimalSeparator();
  }
  return ToSingle(sNumber + FromUtf16(sText));
}

}  // namespace quillet
