// The time limit for a whole pass of Internet calls.
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>

#include "platform/Host.h"

namespace quillet {

/// Uses the host's clock. A pass that hasn't begun is never over.
class PassTime {
 public:
  /// How long a pass runs before the user can cut it short.
  static constexpr std::chrono::milliseconds kPatience{3'000};

  explicit PassTime(std::chrono::milliseconds oLength) : m_oLength(oLength) {}

  void Begin() {
    m_nHeardFrom = TheHost().TickCount() + kPatience.count();
    m_nEnd = TheHost().TickCount() + m_oLength.count();
  }

  /// The user wants to go on: ends the pass if kPatience is over.
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
