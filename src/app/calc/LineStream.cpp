#include "app/calc/LineStream.h"

#include "platform/Descriptors.h"

namespace quillet {

bool LineStream::Fill() {
  std::size_t nRead = 0;
  m_oError = ReadSome(m_nHandle, m_acBlock.data(), m_acBlock.size(), nRead);
  m_sLeft = std::string_view(m_acBlock.data(), m_oError ? 0 : nRead);
  return !m_sLeft.empty();
}

bool LineStream::TakePiece(std::string& sLine, bool& bOverlong) {
  const std::size_t nEnd = m_sLeft.find('\n');
  const std::string_view sPiece = m_sLeft.substr(0, nEnd);
  bOverlong = bOverlong || sLine.size() + sPiece.size() > kLongestAuction;
  if (bOverlong) {
    sLine.clear();
  } else {
    sLine.append(sPiece);
  }
  m_sLeft.remove_prefix(nEnd == std::string_view::npos ? m_sLeft.size() : nEnd + 1);
  return nEnd != std::string_view::npos;
}

}  // namespace quillet
