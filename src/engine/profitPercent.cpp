#include "engine/profitPercent.h"

#include <array>
#include <charconv>
#include <cmath>

namespace quillet {

std::optional<std::string> ProfitPercentText(const clsCalculate& oAuction) {
  if (!(oAuction.m_fSellCost > 0 && oAuction.m_fProfit > 0)) {
    return std::nullopt;
  }
  const double fPercent = std::trunc(oAuction.m_fProfit / oAuction.m_fSellCost * 100);
  std::array<char, 128> acDigits{};  // two 32-bit floats give at most 86 digits
  const auto oEnd = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(), fPercent,
                                  std::chars_format::fixed, 0);
  return std::string(acDigits.data(), oEnd.ptr);
}

}  // namespace quillet
