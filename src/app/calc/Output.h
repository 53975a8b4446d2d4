// Standard output, written in large pieces.
#pragma once

#include <string>
#include <system_error>

namespace quillet {

/// Standard output can't be written. A broken pipe is no complaint: the reader has seen enough.
class OutputFailure : public std::system_error {
 public:
  using std::system_error::system_error;
  [[nodiscard]] bool IsBrokenPipe() const { return code() == std::errc::broken_pipe; }
};

class Output {
 public:
  /// Text put behind this one is written by the next Flush, or FlushIfLarge.
  [[nodiscard]] std::string& Text() { return m_sText; }

  /// Writes what is there; an OutputFailure if that can't be done.
  void Flush();
  void FlushIfLarge();

 private:
  std::string m_sText;
};

}  // namespace quillet
