#include "answers/pieces.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "prices/clsPrices.h"
#include "prices/money.h"

namespace quillet {
namespace {

using LookedUp = Single (*)(const clsOutlay& oOutlay, Single fPrice);

/// The values that the engine looks tiers up by and that grow with the price.
constexpr std::array<LookedUp, 2> kLookedUp = {
    [](const clsOutlay&, Single fPrice) { return fPrice; },
    [](const clsOutlay& oOutlay, Single fPrice) { return Single(fPrice * oOutlay.m_lQuantity); },
};

/// Today's tiers are looked up by amounts with postage and tax. Finding the price that gives such
/// an amount takes a division, so the cents on both sides are added too.
class SaleEdges {
 public:
  SaleEdges(const clsCalculate& oAuction, const SaleRates& oRates, std::vector<Cents>& anStarts)
      : m_oAuction(oAuction), m_oRates(oRates), m_anStarts(anStarts) {}

  void Add() {
    const SaleInputs& oInputs = m_oAuction.m_oSaleFees.m_oInputs;
    const bool bShop = m_oAuction.m_oAuctionType.m_bShopInventory;
    AddTable(m_oRates.oOrderFee.For(bShop), m_oAuction.Orders());
    if (const SaleCategory* const pCategory = m_oRates.Category(oInputs.nCategory)) {
      AddTable(pCategory->oRates.For(bShop), m_oAuction.m_oOutlay.m_lQuantity);
      AddAround(pCategory->fFreeFrom.value_or(0));
    }
  }

 private:
  /// A table that is looked up by the amount of one of `fParts` equal parts of the sale, or by the
  /// bare price.
  void AddTable(const SaleTable& oTable, double fParts) {
    const double fPostage =
        m_oRates.bWithPostage ? m_oAuction.m_fPostageCost + m_oAuction.m_fPostageProfit : 0;
    const double fTax = m_oRates.bWithTax ? m_oAuction.m_oSaleFees.m_oInputs.fBuyerTax / 100 : 0;
    for (const SaleTier& oTier : oTable.aoTiers) {
      for (const FineAmount nEdge : {oTier.nStart, oTier.nEnd}) {
        const double fEdge = static_cast<double>(nEdge) / static_cast<double>(FineAmountOf(1));
        AddAround(fEdge);
        AddAround((fEdge * fParts / (1 + fTax) - fPostage) / m_oAuction.m_oOutlay.m_lQuantity);
      }
    }
  }

  void AddAround(double fPrice) {
    if (std::abs(fPrice) < PriceOf(kHighestPrice)) {
      const auto nBelow = static_cast<Cents>(std::floor(fPrice * 100));
      for (const Cents nPrice : {nBelow - 1, nBelow, nBelow + 1, nBelow + 2}) {
        m_anStarts.push_back(nPrice);
      }
    }
  }

  const clsCalculate& m_oAuction;
  const SaleRates& m_oRates;
  std::vector<Cents>& m_anStarts;
};

const SaleRates* SaleRatesOf(const clsCalculate& oAuction) {
  const bool bSells =
      oAuction.m_oAuctionType.HasPaidSaleFees() && oAuction.m_oOutlay.m_lQuantity > 0;
  return bSells ? Prices().Sale() : nullptr;
}

}  // namespace

std::vector<Cents> PieceStarts(const clsCalculate& oAuction, Cents nFrom, Cents nLast) {
  std::vector<Cents> anStarts = {nFrom};
  const clsOutlay& oOutlay = oAuction.m_oOutlay;
  const clsPrices::TierEdges oEdges = Prices().Edges();
  for (const LookedUp fnValue : kLookedUp) {
    for (const Single fStart : oEdges.afStarts) {
      anStarts.push_back(FirstWhere(nFrom, nLast + 1, [&](Cents nPrice) {
        return fnValue(oOutlay, PriceOf(nPrice)) >= fStart;
      }));
    }
    for (const Single fEnd : oEdges.afEnds) {
      anStarts.push_back(FirstWhere(nFrom, nLast + 1, [&](Cents nPrice) {
        return fnValue(oOutlay, PriceOf(nPrice)) > fEnd;
      }));
    }
  }
  if (const SaleRates* const pRates = SaleRatesOf(oAuction)) {
    SaleEdges(oAuction, *pRates, anStarts).Add();
  }
  std::erase_if(anStarts, [&](Cents nPrice) { return nPrice < nFrom || nPrice > nLast; });
  std::sort(anStarts.begin(), anStarts.end());
  anStarts.erase(std::unique(anStarts.begin(), anStarts.end()), anStarts.end());
  return anStarts;
}

double MostRounded(const clsCalculate& oAuction) {
  double fMost = 0.5 / CurrencyUnitsPerMajor();
  if (const SaleRates* const pRates = SaleRatesOf(oAuction)) {
    const double fTax = static_cast<double>(pRates->nFeeTax) / static_cast<double>(RateOf(100));
    fMost += oAuction.Orders() * (0.005 * (1 + fTax) + 0.005);
  }
  return fMost;
}

}  // namespace quillet
