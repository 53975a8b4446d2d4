// The check of one tier table.
#pragma once

#include <optional>
#include <string>

#include "prices/Catalogue.h"
#include "prices/Schedule.h"

namespace quillet {

/// Reports whatever is wrong with a table, and marks all of its keys as looked up.
void CheckTiers(Schedule& oSchedule, const CatalogueKey& oTable);

/// The number under a key, which is reported if it isn't one; nothing if there is none.
[[nodiscard]] std::optional<double> AskNumber(Schedule& oSchedule, const std::string& sKey);

}  // namespace quillet
