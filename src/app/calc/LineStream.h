// Lines from a pipe or file of any length, in memory of a fixed size.
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
  enum class Taken { Line, OverlongLine, End };

  explicit LineStream(int nHandle) : m_nHandle(nHandle) {}

  /// Fills `sLine` with the next line, without its end (LF or CR LF; the last line needs none). Of
  /// a line that is longer than kLongestAuction nothing is kept. Error() tells if the end came
  /// early. Before it waits for more input it calls `fnBeforeWait`.
  template <typename BeforeWait>
  [[nodiscard]] Taken Take(std::string& sLine, BeforeWait&& fnBeforeWait);

  [[nodiscard]] const std::error_code& Error() const { return m_oError; }

 private:
  /// Replaces what is left by more input; false at the end.
  bool Fill();
  /// Moves what is left of the current line to `sLine`; true if the line ended there.
  bool TakePiece(std::string& sLine, bool& bOverlong);

  int m_nHandle;
  std::vector<char> m_acBlock = std::vector<char>(std::size_t{1} << 16U);
  std::string_view m_sLeft;  ///< what is left of the block
  std::error_code m_oError;
};

template <typename BeforeWait>
LineStream::Taken LineStream::Take(std::string& sLine, BeforeWait&& fnBeforeWait) {
  sLine.clear();
  bool bOverlong = false;
  bool bStarted = false;
  bool bEnded = false;
  while (!bEnded) {
    if (m_sLeft.empty()) {
      fnBeforeWait();
      if (!Fill()) {
        break;
      }
    }
    bStarted = true;
    bEnded = TakePiece(sLine, bOverlong);
  }
  if (!bStarted) {
    return Taken::End;
  }
  if (sLine.ends_with('\r')) {
    sLine.pop_back();
  }
  return bOverlong ? Taken::OverlongLine : Taken::Line;
}

}  // namespace quillet
