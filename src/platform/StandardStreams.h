// The program's standard streams.
#pragma once

#include <cstddef>
#include <string_view>
#include <system_error>

namespace quillet {

enum class StandardStream { Input, Output, Error };

/// Reads what is available, at least one byte and at most `nSize`; waits if there is nothing yet.
/// `nRead` is 0 at the end of the input.
[[nodiscard]] std::error_code ReadStandardInput(char* pBuffer, std::size_t nSize,
                                                std::size_t& nRead);

/// Writes all of it.
[[nodiscard]] std::error_code WriteStandardOutput(std::string_view sContent);

[[nodiscard]] bool IsTerminal(StandardStream eStream);

/// From now on, writing to a pipe that nobody reads (broken_pipe), or beyond a file's size limit
/// (file_too_large), returns an error instead of ending the program.
void ReportFailedWrites();

}  // namespace quillet
