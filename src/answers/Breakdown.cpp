#include "answers/Breakdown.h"

#include <array>

namespace quillet {
namespace {

enum class Which { NoFee, Fee, FeeOf2007, FeeOfToday };

struct PartOfAuction {
  PartKind eKind;
  const char* sName;
  Which eWhich;
  Single (*fnAmount)(const clsCalculate& oAuction);
};

using Auction = const clsCalculate&;

const SaleParts& PartsOf(Auction o) {
  return o.m_oSaleFees.LastParts();
}

using enum Which;

constexpr std::array<PartOfAuction, 14> kParts = {{
    {PartKind::Outlay, "Outlay", NoFee, [](Auction o) { return o.m_oOutlay.DoCalc(); }},
    {PartKind::Insertion, "Insertion", Fee, [](Auction o) { return o.m_fListingCost; }},
    {PartKind::Features, "Features", Fee, [](Auction o) { return o.m_oSellingFeatures.LastFee(); }},
    {PartKind::Reserve, "Reserve", Fee, [](Auction o) { return o.m_fReserveCost; }},
    {PartKind::FinalValue, "Final value", FeeOf2007,
     [](Auction o) { return o.m_oAuctionType.DoCalcFinalValueFee(o.m_oOutlay); }},
    {PartKind::Category, "Category", FeeOfToday, [](Auction o) { return PartsOf(o).fCategory; }},
    {PartKind::Order, "Order", FeeOfToday, [](Auction o) { return PartsOf(o).fOrder; }},
    {PartKind::Regulatory, "Regulatory", FeeOfToday,
     [](Auction o) { return PartsOf(o).fRegulatory; }},
    {PartKind::Advertising, "Advertising", FeeOfToday,
     [](Auction o) { return PartsOf(o).fAdvertising; }},
    {PartKind::Surcharges, "Surcharges", FeeOfToday, [](Auction o) { return PartsOf(o).fExtras; }},
    {PartKind::TaxOnFees, "Tax on fees", FeeOfToday, [](Auction o) { return PartsOf(o).fTax; }},
    {PartKind::PayPal, "PayPal", Fee, [](Auction o) { return o.m_fPayPayCost; }},
    {PartKind::Postage, "Postage", NoFee, [](Auction o) { return o.m_fPostageCost; }},
    {PartKind::Profit, "Profit", NoFee, [](Auction o) { return o.m_fProfit; }},
}};

}  // namespace

Breakdown BreakDown(const clsCalculate& oAuction) {
  const Single fPrice = oAuction.m_oOutlay.m_fEstimatedEndPrice;
  Breakdown oBreakdown;
  oBreakdown.fPrice = fPrice * oAuction.m_oOutlay.m_lQuantity;
  oBreakdown.fPostage = oAuction.m_fPostageCost;
  oBreakdown.fPostageProfit = oAuction.m_fPostageProfit;
  oBreakdown.fWhole = IncomeAt(oAuction, fPrice);
  const Which eOther = oAuction.m_oAuctionType.HasPaidSaleFees() ? FeeOf2007 : FeeOfToday;
  for (const PartOfAuction& oPart : kParts) {
    if (oPart.eWhich == eOther) {
      continue;
    }
    const Single fAmount = oPart.fnAmount(oAuction);
    oBreakdown.aoParts.push_back({oPart.eKind, oPart.sName, fAmount});
    oBreakdown.fFees =
        oPart.eWhich != NoFee ? Single(oBreakdown.fFees + fAmount) : oBreakdown.fFees;
  }
  return oBreakdown;
}

double IncomeAt(const clsCalculate& oAuction, Single fPrice) {
  return fPrice * oAuction.m_oOutlay.m_lQuantity + oAuction.m_fPostageCost +
         oAuction.m_fPostageProfit;
}

}  // namespace quillet
