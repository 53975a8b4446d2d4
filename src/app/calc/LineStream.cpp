#include "app/calc/LineStream.h"

#include "platform/StandardStreams.h"

namespace quillet {

bool LineStream::IsReady() {
  if (m_eState == State::Taken) {
    m_sLine.clear();
    m_bOverlong = false;
    m_eState = State::Nothing;
  }
  if (m_eState != State::Whole && !m_sLeft.empty()) {
    TakePiece();
  }
  return m_eState == State::Whole;
}

bool LineStream::Await() {
  while (!IsReady()) {
    if (!Fill()) {
      m_eState = m_eState == State::Begun ? State::Whole : State::Nothing;
      break;
    }
  }
  return m_eState == State::Whole;
}

bool LineStream::AwaitSecond() {
  return Await() && (!m_sLeft.empty() || Fill());
}

std::string_view LineStream::Take(bool& bOverlong) {
  m_eState = State::Taken;
  bOverlong = m_bOverlong;
  std::string_view sLine = m_sLine;
  if (sLine.ends_with('\r')) {
    sLine.remove_suffix(1);
  }
  return sLine;
}

bool LineStream::Fill() {
  if (!m_bEnded) {
    std::size_t nRead = 0;
    m_oError = ReadStandardInput(m_acBlock.data(), m_acBlock.size(), nRead);
    m_sLeft = std::string_view(m_acBlock.data(), m_oError ? 0 : nRead);
    m_bEnded = m_sLeft.empty();
  }
  return !m_bEnded;
}

void LineStream::TakePiece() {
  const std::size_t nEnd = m_sLeft.find('\n');
  const std::string_view sPiece = m_sLeft.substr(0, nEnd);
  m_bOverlong = m_bOverlong || m_sLine.size() + sPiece.size() > kLongestAuction;
  if (m_bOverlong) {
    m_sLine.clear();
  } else {
    m_sLine.append(sPiece);
  }
  const bool bEnded = nEnd != std::string_view::npos;
  m_sLeft.remove_prefix(bEnded ? nEnd + 1 : m_sLeft.size());
  m_eState = bEnded ? State::Whole : State::Begun;
}

}  // namespace quillet
