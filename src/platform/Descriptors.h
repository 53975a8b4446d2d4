// Open files by their number, as the system knows them.
#pragma once

#include <cstddef>
#include <string_view>
#include <system_error>

namespace quillet {

inline constexpr int kStandardInput = 0;
inline constexpr int kStandardOutput = 1;
inline constexpr int kStandardError = 2;

/// The system's latest error.
[[nodiscard]] std::error_code LastError();

/// Reads what is there, at least one byte and at most `nSize`; waits if there is nothing yet.
/// `nRead` is 0 at the end of the file.
[[nodiscard]] std::error_code ReadSome(int nHandle, char* pBuffer, std::size_t nSize,
                                       std::size_t& nRead);

[[nodiscard]] std::error_code WriteAll(int nHandle, std::string_view sContent);

[[nodiscard]] bool IsTerminal(int nHandle);

/// From now on writing to a pipe that nobody reads (broken_pipe), or beyond the size that a file
/// may have (file_too_large), is an error and doesn't end the program.
void ReportFailedWrites();

}  // namespace quillet
