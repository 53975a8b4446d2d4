// What an option of a section costs and what choosing it would leave, in words.
#pragma once

#include <string>

#include "answers/Change.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// "Bold: $1.00. Profit would be $93.78." Or, if it is chosen already, "Bold: $1.00. Profit without
/// it would be $95.78." It costs what it adds to the section's total.
/// `oClick` does what a click on it would do. An auction that can't be calculated is a Failure.
[[nodiscard]] std::string FeatureTip(const clsCalculate& oAuction, eFeature eBit, bool bChosen,
                                     const Change& oClick);

/// "Motor Auction: $40.00 in fees. Profit would be $54.78." The fees are those in the total of the
/// section, and the sale fees. An empty click is one on the option that is chosen, which
/// does nothing.
[[nodiscard]] std::string ListingTip(const clsCalculate& oAuction, const std::string& sName,
                                     bool bChosen, const Change& oClick);

/// Of an option that is grey.
[[nodiscard]] std::string NotOnOfferTip(const std::string& sName);

}  // namespace quillet
