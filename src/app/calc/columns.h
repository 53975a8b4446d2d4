// The columns of the results that programs read.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "app/calc/Result.h"

namespace quillet {

/// What stands in a column for one auction.
enum class Cell { None, Number, Text };

struct Column {
  std::string_view sName;
  /// Puts what the column holds for a result into an empty text.
  Cell (*fnRead)(const Result& oResult, std::string& sText);
};

extern const std::array<Column, 14> kColumns;

}  // namespace quillet
