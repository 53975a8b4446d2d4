// The text of an auction: whatever it is, once saved it reads back as it was saved, and the figures
// depend on the saved text alone.
#include <array>
#include <bit>
#include <memory>

#include "prices/clsPrices.h"
#include "support.h"

namespace quillet {
namespace {

void UseShippedSchedule(bool bUs, bool bToday) {
  const std::string sName =
      std::string(bUs ? "UpdateUS_" : "UpdateUK_") + (bToday ? "2026-10.dat" : "v0101.dat");
  const std::string sFolder = std::string(QUILLET_SOURCE_DIR) + "/data/";
  auto oPrices = std::make_unique<clsPrices>();
  oPrices->LoadFile(sFolder + sName);
  UsePrices(std::move(oPrices));
}

using Bits = std::array<std::uint32_t, 8>;

Bits FiguresOf(std::string sText) {
  clsCalculate oAuction;
  oAuction.Serialize(sText, false);
  CalculateQuietly(oAuction);
  const auto fnBits = [](Single fValue) { return std::bit_cast<std::uint32_t>(fValue.Float()); };
  return {fnBits(oAuction.m_fProfit),        fnBits(oAuction.m_fSellCost),
          fnBits(oAuction.m_fPostageCost),   fnBits(oAuction.m_fPostageProfit),
          fnBits(oAuction.m_fFinalValueFee), fnBits(oAuction.m_fListingCost),
          fnBits(oAuction.m_fReserveCost),   fnBits(oAuction.m_fPayPayCost)};
}

}  // namespace
}  // namespace quillet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  static int nSettingsOf = -1;
  const std::string sText(TakeSettings(pData, nSize));
  const int nSettings = nSize != 0 ? pData[0] & 5 : 0;
  if (nSettings != nSettingsOf) {
    UseShippedSchedule((nSettings & 1) != 0, (nSettings & 4) != 0);
    nSettingsOf = nSettings;
  }
  const std::string sSaved = Resaved(sText);
  Require(Resaved(sSaved) == sSaved);
  (void)FiguresOf(sText);
  Require(FiguresOf(sSaved) == FiguresOf("left of it " + sSaved + "\r\n"));
  return 0;
}
