// The result for one auction.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "answers/Price.h"
#include "base/Single.h"

namespace quillet {

struct Figures {
  Single fProfit;
  Single fSellingCost;
  Single fPostageCost;
  Single fPostageProfit;
  Single fListingFee;
  Single fFeaturesFee;
  Single fTotalListingFee;  ///< listing and features
  Single fReserveFee;
  Single fFinalValueFee;
  Single fPayPalFee;
  std::optional<std::string> sProfitPercent;  ///< in digits, as the summary shows it
  std::optional<Cents> nBreakEven;            ///< if requested; nothing if no price does it
  std::optional<Cents> nGoalPrice;
};

struct Result {
  std::string sFile;                    ///< the file's path; empty for a line of a stream
  std::int64_t nLine = 0;               ///< the line of the stream, from 1
  std::optional<std::string> sMessage;  ///< what loading reported
  std::optional<std::string> sError;    ///< why there are no figures
  std::optional<Figures> oFigures;
  std::optional<std::string> sAuction;  ///< the text as it would be saved; none if it wasn't read

  /// How a message names the auction: its path, or "line 7".
  [[nodiscard]] std::string Name() const {
    return nLine > 0 ? "line " + std::to_string(nLine) : sFile;
  }
};

}  // namespace quillet
