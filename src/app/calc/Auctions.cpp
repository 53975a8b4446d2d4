#include "app/calc/Auctions.h"

#include <algorithm>

#include "app/calc/Options.h"

namespace quillet {

bool Auctions::AreSeveral() {
  const auto nStreams = std::ranges::count(m_asFiles, kStandardInputName);
  const auto nFiles = std::ssize(m_asFiles) - nStreams;
  if (nStreams == 0 || nFiles > 1) {
    return nFiles > 1;
  }
  return nFiles == 1 ? m_oLines.Await() : m_oLines.AwaitSecond();
}

bool Auctions::Take(Batch& oBatch) {
  if (m_asFiles.empty()) {
    return false;
  }
  oBatch.Clear();
  if (IsStreamNext()) {
    TakeLines(oBatch);
  } else {
    TakeFiles(oBatch);
  }
  return true;
}

bool Auctions::IsStreamNext() const {
  return m_asFiles.front() == kStandardInputName;
}

void Auctions::TakeFiles(Batch& oBatch) {
  constexpr std::ptrdiff_t kMost = 8;
  const auto oEnd = m_asFiles.begin() + std::min(std::ssize(m_asFiles), kMost);
  oBatch.asFiles = {m_asFiles.begin(), std::find(m_asFiles.begin(), oEnd, kStandardInputName)};
  m_asFiles = m_asFiles.subspan(oBatch.asFiles.size());
}

void Auctions::TakeLines(Batch& oBatch) {
  constexpr std::int64_t kMost = 128;
  oBatch.nFirstLine = m_nLines + 1;
  if (!m_oLines.Await()) {
    EndStream(oBatch);
    return;
  }
  do {
    ++m_nLines;
    oBatch.sLines.append(m_oLines.Take(oBatch.bOverlong)).append("\n");
  } while (m_nLines - oBatch.nFirstLine + 1 < kMost && !oBatch.bOverlong && m_oLines.IsReady());
}

void Auctions::EndStream(Batch& oBatch) {
  if (m_oLines.Error()) {
    oBatch.sFailure = "standard input can't be read: " + m_oLines.Error().message();
  }
  m_asFiles = m_asFiles.subspan(1);
  m_oLines = LineStream();
  m_nLines = 0;
}

}  // namespace quillet
