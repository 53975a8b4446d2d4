// Standard output.
#pragma once

#include <string_view>
#include <system_error>

namespace quillet {

/// Standard output can't be written. A broken pipe isn't worth a complaint: the reader has seen
/// enough.
class OutputFailure : public std::system_error {
 public:
  using std::system_error::system_error;
  [[nodiscard]] bool IsBrokenPipe() const { return code() == std::errc::broken_pipe; }
};

/// Throws an OutputFailure if that can't be done.
void WriteOut(std::string_view sText);

}  // namespace quillet
