#include "answers/Breakdown.h"

#include <array>

namespace quillet {
namespace {

struct PartOfAuction {
  PartKind eKind;
  const char* sName;
  bool bFee;
  Single (*fnAmount)(const clsCalculate& oAuction);
};

using Auction = const clsCalculate&;

constexpr std::array<PartOfAuction, 8> kParts = {{
    {PartKind::Outlay, "Outlay", false, [](Auction o) { return o.m_oOutlay.DoCalc(); }},
    {PartKind::Insertion, "Insertion", true, [](Auction o) { return o.m_fListingCost; }},
    {PartKind::Features, "Features", true,
     [](Auction o) { return o.m_oSellingFeatures.LastFee(); }},
    {PartKind::Reserve, "Reserve", true, [](Auction o) { return o.m_fReserveCost; }},
    {PartKind::FinalValue, "Final value", true,
     [](Auction o) { return o.m_oAuctionType.DoCalcFinalValueFee(o.m_oOutlay); }},
    {PartKind::PayPal, "PayPal", true, [](Auction o) { return o.m_fPayPayCost; }},
    {PartKind::Postage, "Postage", false, [](Auction o) { return o.m_fPostageCost; }},
    {PartKind::Profit, "Profit", false, [](Auction o) { return o.m_fProfit; }},
}};

}  // namespace

Breakdown BreakDown(const clsCalculate& oAuction) {
  const Single fPrice = oAuction.m_oOutlay.m_fEstimatedEndPrice;
  Breakdown oBreakdown;
  oBreakdown.fPrice = fPrice * oAuction.m_oOutlay.m_lQuantity;
  oBreakdown.fPostage = oAuction.m_fPostageCost;
  oBreakdown.fPostageProfit = oAuction.m_fPostageProfit;
  oBreakdown.fWhole = IncomeAt(oAuction, fPrice);
  for (const PartOfAuction& oPart : kParts) {
    const Single fAmount = oPart.fnAmount(oAuction);
    oBreakdown.aoParts.push_back({oPart.eKind, oPart.sName, fAmount});
    oBreakdown.fFees = oPart.bFee ? Single(oBreakdown.fFees + fAmount) : oBreakdown.fFees;
  }
  return oBreakdown;
}

double IncomeAt(const clsCalculate& oAuction, Single fPrice) {
  return fPrice * oAuction.m_oOutlay.m_lQuantity + oAuction.m_fPostageCost +
         oAuction.m_fPostageProfit;
}

}  // namespace quillet
