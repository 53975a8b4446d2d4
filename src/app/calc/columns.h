// The columns of the results for programs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/calc/Options.h"
#include "app/calc/Result.h"

namespace quillet {

/// The kind of value in one cell.
enum class Cell { None, Number, Text };

struct Column {
  std::string_view sName;
  /// Appends the column's value for a result to `sText`; it may be a word for none.
  Cell (*fnRead)(const Result& oResult, std::string& sText);
};

/// The columns that every result has, followed by those of the requested prices.
[[nodiscard]] std::vector<Column> ColumnsFor(const Options& oOptions);

}  // namespace quillet
