// What files and standard streams have in common: the system's handles. For this room alone.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

namespace quillet {

#ifdef _WIN32
using Handle = void*;
#else
using Handle = int;
#endif

/// The system's latest error.
[[nodiscard]] std::error_code LastSystemError();

/// As ReadStandardInput, from the current position of an open file.
[[nodiscard]] std::error_code ReadSome(Handle hFile, char* pBuffer, std::size_t nSize,
                                       std::size_t& nRead);

/// Reads to the end of the file; file_too_large beyond `nLimit` bytes. On errors `sContent` is left
/// alone.
[[nodiscard]] std::error_code ReadAll(Handle hFile, std::size_t nLimit, std::string& sContent);

[[nodiscard]] std::error_code WriteAll(Handle hFile, std::string_view sContent);

}  // namespace quillet
