// The month that a fee schedule is from.
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace quillet {

/// Later ones are greater, by year and month alone; an unknown one is the least.
struct ScheduleDate {
  int nYear = 0;       ///< 0 if it isn't known
  int nMonth = 0;      ///< from 1; 0 if only the year is known
  std::string sWords;  ///< as the heading has it: "early 2007"; empty if nothing is known

  [[nodiscard]] std::weak_ordering operator<=>(const ScheduleDate& oOther) const;
};

/// What follows "As of" in the first heading of a schedule's text that has it, up to the next
/// point; else the year and month in its file name.
[[nodiscard]] ScheduleDate DateOf(std::string_view sText, std::string_view sFile);

}  // namespace quillet
