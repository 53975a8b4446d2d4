// The check of one tier table.
#pragma once

#include <optional>
#include <string>

#include "prices/Catalogue.h"
#include "prices/Schedule.h"

namespace quillet {

/// Reports whatever is wrong with a table, and asks for all of its keys.
void CheckTiers(Schedule& oSchedule, const CatalogueKey& oTable);

/// The number under a key, which is reported if it is no number; nothing if there is none.
[[nodiscard]] std::optional<double> AskNumber(Schedule& oSchedule, const std::string& sKey);

}  // namespace quillet
