#include "app/calc/Progress.h"

#include <iostream>

#include "platform/Host.h"
#include "platform/StandardStreams.h"

namespace quillet {
namespace {
constexpr std::int64_t kPatience = 1000;  // milliseconds before the first line
constexpr std::int64_t kPause = 200;      // milliseconds between two
}  // namespace

Progress::Progress()
    : m_bWatched(IsTerminal(StandardStream::Error) && !IsTerminal(StandardStream::Output)),
      m_nStart(TheHost().TickCount()),
      m_nNextShow(m_nStart + kPatience) {}

Progress::~Progress() {
  if (m_bShown) {
    std::cerr << "\r\033[K" << std::flush;
  }
}

void Progress::Advance(std::int64_t nAuctions) {
  m_nDone += nAuctions;
  if (m_bWatched) {
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
