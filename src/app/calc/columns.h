// The columns of the results that programs read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/calc/Options.h"
#include "app/calc/Result.h"

namespace quillet {

/// What stands in a column for one auction.
enum class Cell { None, Number, Text };

struct Column {
  std::string_view sName;
  /// Puts what the column holds for a result into an empty text; that may be a word for none.
  Cell (*fnRead)(const Result& oResult, std::string& sText);
};

/// Those that every result has, and behind them those of the prices that are asked for.
[[nodiscard]] std::vector<Column> ColumnsFor(const Options& oOptions);

}  // namespace quillet
