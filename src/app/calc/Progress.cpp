#include "app/calc/Progress.h"

#include <iostream>

#include "platform/Descriptors.h"
#include "platform/Host.h"

namespace quillet {
namespace {
constexpr std::int64_t kPatience = 1000;  // milliseconds before the first line
constexpr std::int64_t kPause = 200;      // milliseconds between two
}  // namespace

Progress::Progress()
    : m_bWatched(IsTerminal(kStandardError) && !IsTerminal(kStandardOutput)),
      m_nStart(TheHost().TickCount()),
      m_nNextShow(m_nStart + kPatience) {}

Progress::~Progress() {
  if (m_bShown) {
    std::cerr << "\r\033[K" << std::flush;
  }
}

void Progress::Advance() {
  constexpr std::int64_t kLooksAtClock = 64;  // auctions between two looks
  ++m_nDone;
  if (m_bWatched && m_nDone % kLooksAtClock == 0) {
    const std::int64_t nNow = TheHost().TickCount();
    if (nNow >= m_nNextShow) {
      Show(nNow);
    }
  }
}

void Progress::Show(std::int64_t nNow) {
  std::cerr << "\r\033[K" << m_nDone << " auctions, " << m_nDone * 1000 / (nNow - m_nStart)
            << " a second" << std::flush;
  m_bShown = true;
  m_nNextShow = nNow + kPause;
}

}  // namespace quillet
