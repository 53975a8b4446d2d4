#include "shell/whatif/moneyParts.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "look/palette.h"

namespace quillet {
namespace {

constexpr std::array<std::pair<PartKind, Ink>, 14> kInks = {{
    {PartKind::Outlay, Ink::Slate},
    {PartKind::Insertion, Ink::Peach},
    {PartKind::Features, Ink::Peach},
    {PartKind::Reserve, Ink::Sand},
    {PartKind::FinalValue, Ink::Orange},
    {PartKind::Category, Ink::Orange},
    {PartKind::Order, Ink::Sand},
    {PartKind::Regulatory, Ink::Peach},
    {PartKind::Advertising, Ink::Violet},
    {PartKind::Surcharges, Ink::Pink},
    {PartKind::TaxOnFees, Ink::Teal},
    {PartKind::PayPal, Ink::Rust},
    {PartKind::Postage, Ink::Sky},
    {PartKind::Profit, Ink::Green},
}};

Ink InkOf(PartKind eKind) {
  const auto* const pInk =
      std::find_if(kInks.begin(), kInks.end(), [&](const auto& o) { return o.first == eKind; });
  return pInk != kInks.end() ? pInk->second : Ink::FaintText;
}

}  // namespace

double BarLength(const Breakdown& oBreakdown) {
  double fLength = 0;
  for (const Part& oPart : oBreakdown.aoParts) {
    fLength += std::max<double>(0, oPart.fAmount);
  }
  return fLength;
}

std::vector<ShownPart> ShownParts(const Breakdown& oBreakdown) {
  const double fLength = BarLength(oBreakdown);
  const auto fnShare = [&](double fAmount) { return fLength > 0 ? fAmount / fLength : 0; };
  std::vector<ShownPart> aoShown;
  PartKind eBefore = PartKind::Profit;
  for (const Part& oPart : oBreakdown.aoParts) {
    const bool bProfit = oPart.eKind == PartKind::Profit;
    if (oPart.fAmount == 0 && !bProfit) {
      continue;
    }
    if (oPart.eKind == PartKind::Features && eBefore == PartKind::Insertion) {
      ShownPart& oJoined = aoShown.back();
      oJoined.sName = "Insertion and features";
      oJoined.fAmount = oJoined.fAmount + oPart.fAmount;
      oJoined.fShare = fnShare(oJoined.fAmount);
    } else {
      aoShown.push_back({oPart.sName, oPart.fAmount, fnShare(oPart.fAmount),
                         InkColour(InkOf(oPart.eKind)), bProfit});
    }
    eBefore = oPart.eKind;
  }
  return aoShown;
}

QString ShareText(const ShownPart& oPart) {
  return QString::number(std::round(oPart.fShare * 100) + 0.0, 'f', 0) + " %";
}

}  // namespace quillet
