// The text of an update file: auctions of every kind calculated with it.
#include <array>
#include <memory>
#include <string>

#include "base/failure.h"
#include "prices/clsPrices.h"
#include "prices/money.h"
#include "support.h"

namespace quillet {
namespace {

/// The kind of listing and the quantity; every option is chosen.
struct Listing {
  const char* sType;
  const char* sQuantity;
};

constexpr std::array<Listing, 7> kListings = {{
    {"000|False|False|3|0|0|0|False", "1"},
    {"000|True|True|0|0|0|0|True", "3"},
    {"000|False|False|3|0|0|0|False", "0"},
    {"001|False|False|3|3|0|0|False", "1"},
    {"001|True|False|2|5|0|0|True", "0"},
    {"002|False|False|3|0|1|1|True", "1"},
    {"003|False|False|5|0|0|0|False", "0"},
}};

void CalculateAll() {
  for (const Listing& oListing : kListings) {
    std::string sText =
        std::string("[TYPE]") + oListing.sType + "[TYPE][OUTLAY]10|1|250|60|" + oListing.sQuantity +
        "|True[OUTLAY][FEATURES]2097151|7[FEATURES][PAYPAL]True|2|1|True[PAYPAL]"
        "[POSTAGE]True|0|0|1|0|True|True|True|1|True[POSTAGE][FEES]1|7|2|3|False|True[FEES]";
    clsCalculate oAuction;
    oAuction.Serialize(sText, false);
    oAuction.m_oPostage.m_fWeight = 1.6;
    CalculateQuietly(oAuction);
    (void)FormatMoney(oAuction.m_fProfit);
  }
}

}  // namespace
}  // namespace quillet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  auto oPrices = std::make_unique<clsPrices>();
  IgnoreFailure([&] { oPrices->LoadText(TakeSettings(pData, nSize)); });
  UsePrices(std::move(oPrices));
  CalculateAll();
  return 0;
}
