// The lines of standard input, of any number, in memory of a fixed size.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quillet {

/// No auction is longer, in a stream or in a file of its own.
inline constexpr std::size_t kLongestAuction = std::size_t{1} << 20U;

class LineStream {
 public:
  /// True if the next line is there, without waiting.
  [[nodiscard]] bool IsReady();

  /// Waits for the next line; false if there is none. Error() says whether the stream ended early.
  [[nodiscard]] bool Await();

  /// Waits until it is clear whether another line follows the next one.
  [[nodiscard]] bool AwaitSecond();

  /// The next line, which must be there, without its end (LF or CR LF; the last line needs none).
  /// Valid until the next call. A line longer than kLongestAuction is dropped, and sets
  /// `bOverlong`.
  [[nodiscard]] std::string_view Take(bool& bOverlong);

  [[nodiscard]] const std::error_code& Error() const { return m_oError; }

 private:
  enum class State { Nothing, Begun, Whole, Taken };

  /// Replaces what is left with more input; false at the end.
  bool Fill();
  /// Moves what is left of the current line to m_sLine.
  void TakePiece();

  std::vector<char> m_acBlock = std::vector<char>(std::size_t{1} << 16U);
  std::string_view m_sLeft;  ///< what is left of the block
  std::string m_sLine;       ///< the next line, as far as it has been read
  State m_eState = State::Nothing;
  bool m_bOverlong = false;
  bool m_bEnded = false;
  std::error_code m_oError;
};

}  // namespace quillet
