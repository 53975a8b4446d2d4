// One line on standard error that shows how far a long run has got.
#pragma once

#include <cstdint>

namespace quillet {

/// Shows itself only if standard error is a terminal, the results go elsewhere, and the work has
/// taken a second.
class Progress {
 public:
  Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// Counts more auctions as done.
  void Advance(std::int64_t nAuctions);

 private:
  void Show(std::int64_t nNow);

  bool m_bWatched;
  bool m_bShown = false;
  std::int64_t m_nDone = 0;
  std::int64_t m_nStart = 0;     ///< milliseconds
  std::int64_t m_nNextShow = 0;  ///< milliseconds
};

}  // namespace quillet
