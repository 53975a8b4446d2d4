// The same item listed in other ways.
#pragma once

#include <string>
#include <vector>

#include "answers/Change.h"
#include "base/Single.h"
#include "engine/clsCalculate.h"

namespace quillet {

enum class AlternativeKind { AsItIs, Listing, PayPal, Feature, Advertising, Offer, Unsold };

struct Alternative {
  AlternativeKind eKind = AlternativeKind::AsItIs;
  std::string sName;
  Change oChange;  ///< makes the auction this one
  Single fFees;    ///< all but outlay and postage
  Single fProfit;
  Single fDifference;  ///< the profit less that of the auction as it is
};

/// What the kind of listing and the region allow: first the ways to list the item, including the
/// present one, highest profit first; then with or without PayPal, without each chosen feature,
/// with today's fees at other rates of advertising, lower offers, and unsold. Leaves out listings
/// that don't offer a chosen feature, and those that can't be calculated.
[[nodiscard]] std::vector<Alternative> Alternatives(const clsCalculate& oAuction);

}  // namespace quillet
