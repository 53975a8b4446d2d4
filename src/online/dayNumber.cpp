#include "online/dayNumber.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>

#include "base/conversions.h"
#include "platform/Host.h"

namespace quillet {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::sys_days kDayZero = 1899y / 12 / 30;
constexpr double kFirstDay = -657434;  // 0100-01-01
constexpr double kPastLastDay = 2958466;
constexpr double kSecondsOfDay = 86400;

}  // namespace

double CurrentDayNumber() {
  const std::time_t nNow = std::time(nullptr);
  const std::tm oNow = *std::localtime(&nNow);  // NOLINT(concurrency-mt-unsafe): one thread
  const std::chrono::sys_days oToday =
      std::chrono::year(oNow.tm_year + 1900) / (oNow.tm_mon + 1) / oNow.tm_mday;
  const int nSeconds = (oNow.tm_hour * 60 + oNow.tm_min) * 60 + oNow.tm_sec;
  return static_cast<double>((oToday - kDayZero).count()) + nSeconds / kSecondsOfDay;
}

std::string DayNumberText(double fDay) {
  std::array<char, 32> acText{};
  const auto oResult = std::to_chars(acText.data(), acText.data() + acText.size(), fDay,
                                     std::chars_format::general, 15);
  std::string sText(acText.data(), oResult.ptr);
  if (const std::size_t nPoint = sText.find('.'); nPoint != std::string::npos) {
    sText.replace(nPoint, 1, TheHost().DecimalSeparator());
  }
  return sText;
}

std::optional<double> ReadDayNumber(std::string_view sText) {
  const std::optional<double> fDay = ToDouble(sText);
  return fDay && *fDay >= kFirstDay && *fDay < kPastLastDay ? fDay : std::nullopt;
}

int DaysBetween(double fFrom, double fTo) {
  return static_cast<int>(std::floor(fTo) - std::floor(fFrom));
}

std::string LongTimeAndDate(double fDay) {
  // Round to a whole second first, so that a time just before midnight gets the right day.
  const auto nSeconds = static_cast<std::int64_t>(std::llround(fDay * kSecondsOfDay));
  const std::chrono::sys_seconds oMoment = kDayZero + std::chrono::seconds(nSeconds);
  const auto oDay = std::chrono::floor<std::chrono::days>(oMoment);
  const std::chrono::year_month_day oDate(oDay);
  const std::chrono::hh_mm_ss oTime(oMoment - oDay);
  std::tm oParts{};
  oParts.tm_year = static_cast<int>(oDate.year()) - 1900;
  oParts.tm_mon = static_cast<int>(static_cast<unsigned>(oDate.month())) - 1;
  oParts.tm_mday = static_cast<int>(static_cast<unsigned>(oDate.day()));
  oParts.tm_wday = static_cast<int>(std::chrono::weekday(oDay).c_encoding());
  oParts.tm_hour = static_cast<int>(oTime.hours().count());
  oParts.tm_min = static_cast<int>(oTime.minutes().count());
  oParts.tm_sec = static_cast<int>(oTime.seconds().count());
  std::array<char, 64> acText{};
  const std::size_t nLength =
      std::strftime(acText.data(), acText.size(), "%I:%M:%S %p %A, %B %d, %Y", &oParts);
  return {acText.data(), nLength};
}

}  // namespace quillet
