// The time that a pass of Internet calls has in all.
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>

#include "platform/Host.h"

namespace quillet {

/// Runs on the host's clock. Before it begins it is never over.
class PassTime {
 public:
  /// A user who wants to go on is heard from here on.
  static constexpr std::chrono::milliseconds kPatience{3'000};

  explicit PassTime(std::chrono::milliseconds oLength) : m_oLength(oLength) {}

  void Begin() {
    m_nHeardFrom = TheHost().TickCount() + kPatience.count();
    m_nEnd = TheHost().TickCount() + m_oLength.count();
  }

  /// The user wants to go on: ends the pass if it has taken long enough for that.
  void Hurry() {
    if (TheHost().TickCount() >= m_nHeardFrom) {
      m_nEnd = m_nHeardFrom;
    }
  }

  [[nodiscard]] bool IsOver() const { return TheHost().TickCount() >= m_nEnd; }

 private:
  static constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

  std::chrono::milliseconds m_oLength;
  std::int64_t m_nHeardFrom = kNever;
  std::int64_t m_nEnd = kNever;
};

}  // namespace quillet
