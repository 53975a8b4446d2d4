// Converts text between the program's UTF-8 and the system's UTF-16.
#pragma once

#include <string>

namespace quillet {

[[nodiscard]] std::wstring Wide(const std::string& sText);
[[nodiscard]] std::string Narrow(const std::wstring& sWide);

/// The path of a known folder (FOLDERID_...) without a trailing separator; empty if there is none.
[[nodiscard]] std::string KnownFolder(const struct _GUID& oId);

}  // namespace quillet
