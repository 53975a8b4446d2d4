// Text between the program, which has UTF-8, and the system, which has UTF-16.
#pragma once

#include <string>

namespace quillet {

[[nodiscard]] std::wstring Wide(const std::string& sText);
[[nodiscard]] std::string Narrow(const std::wstring& sWide);

/// The text of a known folder (FOLDERID_...) without a closing separator; empty if there is none.
[[nodiscard]] std::string KnownFolder(const struct _GUID& oId);

}  // namespace quillet
