#include "prices/scheduleDate.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "base/conversions.h"
#include "base/text.h"
#include "prices/lines.h"

namespace quillet {
namespace {

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

constexpr std::size_t kDigitsOfYear = 4;
constexpr std::size_t kDigitsOfMonth = 2;

bool IsOfWord(char c) {
  return IsDigit(c) || (LowerCase(c) >= 'a' && LowerCase(c) <= 'z');
}

/// Takes the next word or number off `sText`. False when none is left.
bool TakeWord(std::string_view& sText, std::string_view& sWord) {
  const auto* const pFirst = std::find_if(sText.begin(), sText.end(), IsOfWord);
  const auto* const pEnd = std::find_if_not(pFirst, sText.end(), IsOfWord);
  sWord = {pFirst, pEnd};
  sText = {pEnd, sText.end()};
  return !sWord.empty();
}

/// The number that `nDigits` digits make; 0 if the word is anything else.
int NumberOf(std::string_view sWord, std::size_t nDigits) {
  const bool bNumber = sWord.size() == nDigits && std::all_of(sWord.begin(), sWord.end(), IsDigit);
  return bNumber ? ToInteger(sWord).value_or(0) : 0;
}

/// From 1; 0 if the word isn't a month.
int MonthNamed(std::string_view sWord) {
  const auto* const pMonth =
      std::find_if(kMonths.begin(), kMonths.end(),
                   [&](std::string_view sMonth) { return EqualIgnoringCase(sMonth, sWord); });
  return pMonth == kMonths.end() ? 0 : static_cast<int>(pMonth - kMonths.begin()) + 1;
}

/// From 1; 0 if the word isn't a month's name or, after a year, its number.
int MonthOf(std::string_view sWord, bool bBehindYear) {
  const int nNumber = bBehindYear ? NumberOf(sWord, kDigitsOfMonth) : 0;
  return nNumber <= static_cast<int>(kMonths.size()) ? std::max(nNumber, MonthNamed(sWord)) : 0;
}

/// The first year and the first month; sWords stays empty.
ScheduleDate DateIn(std::string_view sText) {
  ScheduleDate oDate;
  std::string_view sWord;
  while (TakeWord(sText, sWord)) {
    oDate.nMonth = oDate.nMonth != 0 ? oDate.nMonth : MonthOf(sWord, oDate.nYear != 0);
    oDate.nYear = oDate.nYear != 0 ? oDate.nYear : NumberOf(sWord, kDigitsOfYear);
  }
  return oDate;
}

std::string WordsOf(const ScheduleDate& oDate) {
  const std::string sYear = std::to_string(oDate.nYear);
  return oDate.nMonth == 0
             ? sYear
             : std::string(kMonths.at(static_cast<std::size_t>(oDate.nMonth) - 1)) + " " + sYear;
}

/// What follows "As of" in the first heading that has it.
std::string_view AsOf(std::string_view sText) {
  constexpr std::string_view kMark = "As of ";
  std::string_view sLine;
  while (TakeLine(sText, sLine)) {
    const std::size_t nAt = sLine.starts_with('#') ? sLine.find(kMark) : std::string_view::npos;
    if (nAt != std::string_view::npos) {
      const std::string_view sWords = sLine.substr(nAt + kMark.size());
      return Trim(sWords.substr(0, sWords.find('.')));
    }
  }
  return {};
}

}  // namespace

std::weak_ordering ScheduleDate::operator<=>(const ScheduleDate& oOther) const {
  return std::tie(nYear, nMonth) <=> std::tie(oOther.nYear, oOther.nMonth);
}

ScheduleDate DateOf(std::string_view sText, std::string_view sFile) {
  const std::string_view sAsOf = AsOf(sText);
  ScheduleDate oDate = DateIn(sAsOf);
  if (oDate.nYear != 0) {
    oDate.sWords = sAsOf;
    return oDate;
  }
  oDate = DateIn(sFile);
  if (oDate.nYear == 0) {
    return {};
  }
  oDate.sWords = WordsOf(oDate);
  return oDate;
}

}  // namespace quillet
