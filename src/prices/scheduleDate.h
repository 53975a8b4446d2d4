// The month that a fee schedule is from.
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace quillet {

/// Later ones are greater; days have no say, and one that isn't known is the least.
struct ScheduleDate {
  int nYear = 0;       ///< 0 if it isn't known
  int nMonth = 0;      ///< from 1; 0 if only the year is known
  std::string sWords;  ///< as the heading has it: "early 2007"; empty if nothing is known

  [[nodiscard]] std::weak_ordering operator<=>(const ScheduleDate& oOther) const;
};

/// What the first heading of a schedule's text says behind "As of", up to the next point; else the
/// year and month in the name of its file.
[[nodiscard]] ScheduleDate DateOf(std::string_view sText, std::string_view sFile);

}  // namespace quillet
