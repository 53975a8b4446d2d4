#include "engine/clsSaleFees.h"

#include <algorithm>
#include <cmath>

#include "base/failure.h"

namespace quillet {
namespace {

/// Sums and products of these are exact. With doubles, 10 % of 26.75 would be less than 2.675 and
/// be rounded down.
__extension__ using Wide = __int128;

constexpr std::int64_t kWhole = 1'000'000;     // a Rate of 100 %, and a cent as FineAmount
constexpr Wide kCent = Wide{kWhole} * kWhole;  // a cent of an amount times a rate
constexpr double kLargestAmount = 1e14;

/// In whole cents, as prices are typed and shown.
std::int64_t CentsOf(double fAmount) {
  if (std::abs(fAmount) > kLargestAmount) {
    throw Failure(FailureNumber::Overflow, "An amount is too large to calculate with.");
  }
  return std::llround(fAmount * 100);
}

/// The nearest whole number, an exact half upwards.
std::int64_t Rounded(Wide nDividend, Wide nDivisor) {
  const Wide nTwice = 2 * nDividend + nDivisor;
  const Wide nQuotient = nTwice / (2 * nDivisor);
  return static_cast<std::int64_t>(nTwice % (2 * nDivisor) < 0 ? nQuotient - 1 : nQuotient);
}

/// The sum of several equal amounts: of the items sold, or of the orders. It needn't divide evenly,
/// since tiers are multiplied instead.
struct Lot {
  Wide nAmount = 0;  ///< as FineAmount
  std::int64_t nCount = 1;

  /// The value of the first tier that holds the amount of one, both ends included; 0 if none does.
  [[nodiscard]] std::int64_t ValueIn(const SaleTable& oTable) const {
    const auto oFound =
        std::find_if(oTable.aoTiers.begin(), oTable.aoTiers.end(), [this](const SaleTier& oTier) {
          return nAmount >= Wide{oTier.nStart} * nCount && nAmount <= EndOf(oTier);
        });
    return oFound != oTable.aoTiers.end() ? oFound->nValue : 0;
  }

  [[nodiscard]] Wide EndOf(const SaleTier& oTier) const {
    return oTier.IsEndless() ? nAmount : Wide{oTier.nEnd} * nCount;
  }

  /// Each tier's rate on the part of the amount that is in it.
  [[nodiscard]] Wide PartsIn(const SaleTable& oTable) const {
    Wide nSum = 0;
    for (const SaleTier& oTier : oTable.aoTiers) {
      const Wide nStart = Wide{oTier.nStart} * nCount;
      nSum += std::max<Wide>(std::min(nAmount, EndOf(oTier)) - nStart, 0) * oTier.nValue;
    }
    return nSum;
  }
};

/// All that is sold, and the fees on it. Sums are amounts times rates.
class Sale {
 public:
  Sale(const SaleRates& oRates, const SaleInputs& oInputs, const clsOutlay& oOutlay,
       double fPostage) {
    const double fPrices = oOutlay.m_fEstimatedEndPrice * oOutlay.m_lQuantity;
    (void)CentsOf(fPrices);  // throws if they are too large
    const std::int64_t nPrices = CentsOf(oOutlay.m_fEstimatedEndPrice) * oOutlay.m_lQuantity;
    const std::int64_t nCents = nPrices + (oRates.bWithPostage ? CentsOf(fPostage) : 0);
    const Rate nTax = oRates.bWithTax ? RateOf(oInputs.fBuyerTax) : 0;
    m_oItems = {Wide{nCents} * (kWhole + nTax), oOutlay.m_lQuantity};
    m_oBareItems = {Wide{nPrices} * kWhole, oOutlay.m_lQuantity};
  }

  [[nodiscard]] bool IsPaid() const { return m_oItems.nAmount > 0; }

  [[nodiscard]] Wide At(Rate nRate) const { return m_oItems.nAmount * nRate; }

  [[nodiscard]] Wide In(const SaleCategory& oCategory, bool bShop) const {
    const SaleTable& oTable = oCategory.oRates.For(bShop);
    if (oCategory.bWhole) {
      return At((oCategory.bByPrice ? m_oBareItems : m_oItems).ValueIn(oTable));
    }
    return m_oItems.PartsIn(oTable);
  }

  [[nodiscard]] Wide OrderFees(const SaleTable& oTable, std::int64_t nOrders) const {
    return Wide{Lot{m_oItems.nAmount, nOrders}.ValueIn(oTable)} * nOrders * kWhole;
  }

 private:
  Lot m_oItems;
  Lot m_oBareItems;  ///< their prices alone
};

/// The bill for an order is rounded as a whole. So each part is what it adds to the rounded sum of
/// those before it: it is within a cent of its own figure, and all add up to the bill. The order
/// fee, which is in whole cents, comes first.
class Bill {
 public:
  explicit Bill(std::int64_t nOrders) : m_nOrders(nOrders) {}

  [[nodiscard]] Single Add(Wide nPart) {
    m_nSum += nPart;
    return Amount(Rounded(m_nSum, kCent * m_nOrders) - m_nCents);
  }

  [[nodiscard]] Single AddTax(Rate nRate) {
    return Amount(Rounded(Wide{m_nCents} * nRate, kWhole));
  }

  [[nodiscard]] Single Total() const { return InMoney(m_nCents); }

 private:
  [[nodiscard]] Single Amount(std::int64_t nCents) {
    m_nCents += nCents;
    return InMoney(nCents);
  }
  [[nodiscard]] Single InMoney(std::int64_t nCents) const {
    return static_cast<double>(nCents) * static_cast<double>(m_nOrders) / 100;
  }

  std::int64_t m_nOrders;
  Wide m_nSum = 0;            ///< of all orders
  std::int64_t m_nCents = 0;  ///< billed for one
};

Rate ExtrasOf(const SaleRates& oRates, std::int32_t lExtras) {
  Rate nSum = 0;
  for (std::size_t i = 0; i < oRates.aoExtras.size(); ++i) {
    nSum += (static_cast<std::uint32_t>(lExtras) >> i & 1U) != 0 ? oRates.aoExtras[i].nRate : 0;
  }
  return nSum;
}

}  // namespace

Single clsSaleFees::DoCalc(const SaleRates& oRates, const clsAuctionType& oAuctionType,
                           const clsOutlay& oOutlay, std::int32_t lOrders, double fPostage) {
  m_oLastParts = {};
  m_fLastFee = 0;
  const SaleCategory* const pCategory = oRates.Category(m_oInputs.nCategory);
  if (!oAuctionType.PaysSaleFees() || oOutlay.m_lQuantity < 1) {
    return 0;
  }
  const Sale oSale(oRates, m_oInputs, oOutlay, fPostage);
  if (!oSale.IsPaid()) {
    return 0;
  }
  const bool bShop = oAuctionType.m_bShopInventory;
  Bill oBill(lOrders);
  if (pCategory == nullptr || !pCategory->IsFree(oOutlay.m_fEstimatedEndPrice)) {
    m_oLastParts.fOrder = oBill.Add(oSale.OrderFees(oRates.oOrderFee.For(bShop), lOrders));
  }
  if (pCategory != nullptr) {
    m_oLastParts.fCategory = oBill.Add(oSale.In(*pCategory, bShop));
  }
  m_oLastParts.fRegulatory = oBill.Add(oSale.At(oRates.nAlways));
  m_oLastParts.fAdvertising = oBill.Add(oSale.At(RateOf(m_oInputs.fAdvertising)));
  m_oLastParts.fExtras = oBill.Add(oSale.At(ExtrasOf(oRates, m_oInputs.lExtras)));
  m_oLastParts.fTax = oBill.AddTax(m_oInputs.bTaxIsCost ? oRates.nFeeTax : 0);
  m_fLastFee = oBill.Total();
  return m_fLastFee;
}

}  // namespace quillet
