// The same item listed otherwise.
#pragma once

#include <string>
#include <vector>

#include "answers/Change.h"
#include "base/Single.h"
#include "engine/clsCalculate.h"

namespace quillet {

enum class AlternativeKind { AsItIs, Listing, PayPal, Feature, Offer, Unsold };

struct Alternative {
  AlternativeKind eKind = AlternativeKind::AsItIs;
  std::string sName;
  Change oChange;  ///< makes the auction this one
  Single fFees;    ///< all but outlay and postage
  Single fProfit;
  Single fDifference;  ///< of the profit to that of the auction as it is
};

/// What the kind of listing and the region allow: first the ways to list the item, as it is among
/// them, the one with the highest profit in front; then with or without PayPal, without each
/// feature that is on, lower offers, and unsold. A listing on which a chosen feature isn't on offer
/// is left out, and so is what can't be calculated.
[[nodiscard]] std::vector<Alternative> Alternatives(const clsCalculate& oAuction);

}  // namespace quillet
