// What an option of a section costs and what choosing it would leave, in words.
#pragma once

#include <string>

#include "answers/Change.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// "Bold: $1.00. Profit would be $93.78." Or, if it is chosen already, "Bold: $1.00. Profit without
/// it would be $95.78." The cost is what it adds to the section's total. `oClick` does what a click
/// on it would do. Throws a Failure if the auction can't be calculated.
[[nodiscard]] std::string FeatureTip(const clsCalculate& oAuction, eFeature eBit, bool bChosen,
                                     const Change& oClick);

/// "Motor Auction: $40.00 in fees. Profit would be $54.78." The fees are the section's total and
/// the sale fees. An empty `oClick` is one on the chosen option, which does nothing.
[[nodiscard]] std::string ListingTip(const clsCalculate& oAuction, const std::string& sName,
                                     bool bChosen, const Change& oClick);

/// For a greyed option.
[[nodiscard]] std::string NotOnOfferTip(const std::string& sName);

}  // namespace quillet
