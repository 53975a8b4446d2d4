#include "answers/pieces.h"

#include <algorithm>
#include <array>

#include "prices/clsPrices.h"

namespace quillet {
namespace {

using LookedUp = Single (*)(const clsOutlay& oOutlay, Single fPrice);

/// The values that the engine looks tiers up by, if they grow with the price.
constexpr std::array<LookedUp, 2> kLookedUp = {
    [](const clsOutlay&, Single fPrice) { return fPrice; },
    [](const clsOutlay& oOutlay, Single fPrice) { return Single(fPrice * oOutlay.m_lQuantity); },
};

}  // namespace

std::vector<Cents> PieceStarts(const clsOutlay& oOutlay, Cents nFrom, Cents nLast) {
  std::vector<Cents> anStarts = {nFrom};
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
  std::sort(anStarts.begin(), anStarts.end());
  anStarts.erase(std::unique(anStarts.begin(), anStarts.end()), anStarts.end());
  if (anStarts.back() > nLast) {
    anStarts.pop_back();
  }
  return anStarts;
}

}  // namespace quillet
