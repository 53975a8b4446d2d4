// Open files, by the system's descriptors.
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

/// Reads what is available, at least one byte and at most `nSize`; waits if there is nothing yet.
/// `nRead` is 0 at the end of the file.
[[nodiscard]] std::error_code ReadSome(int nHandle, char* pBuffer, std::size_t nSize,
                                       std::size_t& nRead);

[[nodiscard]] std::error_code WriteAll(int nHandle, std::string_view sContent);

[[nodiscard]] bool IsTerminal(int nHandle);

/// From now on, writing to a pipe that nobody reads (broken_pipe), or beyond a file's size limit
/// (file_too_large), returns an error instead of ending the program.
void ReportFailedWrites();

}  // namespace quillet
