#include "answers/Advertising.h"

#include "answers/Price.h"
#include "answers/Trial.h"

namespace quillet {

std::optional<std::int32_t> HighestAdvertising(const clsCalculate& oAuction) {
  constexpr std::int32_t kHundredPercent = 1'000;
  Trial oTrial(oAuction);
  if (!oTrial.With(NoChange()).m_oAuctionType.HasPaidSaleFees()) {
    return std::nullopt;
  }
  const std::int32_t nFirstLoss = FirstWhere(0, kHundredPercent + 1, [&](std::int32_t nTenths) {
    return oTrial.With(AdvertiseAt(nTenths)).m_fProfit < 0;
  });
  return nFirstLoss > 0 ? std::optional(nFirstLoss - 1) : std::nullopt;
}

}  // namespace quillet
