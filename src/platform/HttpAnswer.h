// The body of an HTTP answer, and how much of it has been read.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

namespace quillet {

class HttpAnswer {
 public:
  HttpAnswer() = default;
  explicit HttpAnswer(std::string sBody) : m_sBody(std::move(sBody)) {}

  /// How many bytes the next Take can give at once; 0 at the end.
  [[nodiscard]] std::size_t Available() const {
    constexpr std::size_t kPiece = 65536;
    return std::min(m_sBody.size() - m_nTaken, kPiece);
  }

  /// Copies at most `nSize` more bytes to `pBuffer`, and returns how many.
  std::size_t Take(char* pBuffer, std::size_t nSize) {
    const std::size_t nTaken = m_sBody.copy(pBuffer, nSize, m_nTaken);
    m_nTaken += nTaken;
    return nTaken;
  }

 private:
  std::string m_sBody;
  std::size_t m_nTaken = 0;
};

}  // namespace quillet
