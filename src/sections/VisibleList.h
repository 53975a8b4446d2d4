// Which rows of a section the user wants to see: words that occur in the names of their controls,
// stored for each section in the settings.
#pragma once

#include <string>
#include <string_view>

#include "prices/clsTokeniser.h"

namespace quillet {

/// The stored list of a section. IsEmpty is true for one that was never stored, and false for one
/// that was stored without any words.
[[nodiscard]] clsTokeniser LoadVisibleList(const std::string& sSectionKey);

/// False if the settings can't be written. If none is stored, the list then holds while the program
/// runs.
bool SaveVisibleList(const std::string& sSectionKey, const clsTokeniser& oList);

/// True if any word of the list occurs in `sName`, in the same case.
[[nodiscard]] bool NameInVisibleList(std::string_view sName, const clsTokeniser& oList);

}  // namespace quillet
