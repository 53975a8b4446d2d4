#include "prices/clsTokeniser.h"

#include <algorithm>

#include "base/failure.h"
#include "base/text.h"

namespace quillet {
namespace {

constexpr std::int32_t kGrowth = 50;
constexpr std::size_t kRoomAtFirst = 16;  // more than any line of a schedule has

const std::string& EmptyText() {
  static const std::string sEmpty;
  return sEmpty;
}

}  // namespace

std::int32_t clsTokeniser::Tokenise(std::string_view sData, std::string_view sToken) {
  if (Utf16Length(sData) > kLongestText) {
    throw Failure(FailureNumber::Overflow, "A line is longer than 32766 characters.");
  }
  m_sToken = sToken;
  m_lCount = 0;
  m_lUpperBound = kFirstUpperBound;

  // Positions count from 1. A separator of several characters makes the first search skip all but
  // one of that many characters; a separator at the very end yields no further field.
  std::size_t nPosition = 0;
  do {
    const std::size_t nStart = nPosition + sToken.size();
    const std::size_t nFrom = std::min(std::max<std::size_t>(nStart, 1) - 1, sData.size());
    const std::size_t nFound = sToken.empty() ? nFrom : sData.find(sToken, nFrom);
    nPosition = nFound == std::string_view::npos ? sData.size() + 1 : nFound + 1;
    AddToArray(sData.substr(nFrom, nPosition - 1 - nFrom));
    if (sToken.empty()) {
      break;
    }
  } while (nPosition < sData.size());

  m_lUpperBound = std::max(m_lCount, 1) - 1;
  return m_lCount;
}

const std::string& clsTokeniser::Element(std::int32_t lElementIdx) const {
  if (lElementIdx < 0 || lElementIdx > m_lUpperBound) {
    throw Failure(FailureNumber::SubscriptOutOfRange, "A value is missing from the text.");
  }
  return lElementIdx < m_lCount ? m_asElements[static_cast<std::size_t>(lElementIdx)] : EmptyText();
}

void clsTokeniser::AddToArray(std::string_view sElement) {
  if (sElement.empty()) {
    m_bParsedBlank = true;
    return;
  }
  if (m_lCount >= m_lUpperBound) {
    m_lUpperBound += kGrowth;
  }
  const auto nIndex = static_cast<std::size_t>(m_lCount++);
  if (nIndex < m_asElements.size()) {
    m_asElements[nIndex] = sElement;
  } else {
    if (nIndex == 0) {
      m_asElements.reserve(kRoomAtFirst);
    }
    m_asElements.emplace_back(sElement);
  }
}

std::string clsTokeniser::GetFlattenedSegments(std::int32_t lFrom) const {
  std::string sFlattened;
  for (std::int32_t i = lFrom; i <= m_lUpperBound; ++i) {
    if (!sFlattened.empty()) {
      sFlattened += m_sToken;
    }
    sFlattened += Element(i);
  }
  return sFlattened;
}

std::int32_t clsTokeniser::Find(std::string_view sElement, bool bFindSimilar) const {
  for (std::int32_t i = 0; i <= m_lUpperBound; ++i) {
    const std::string& sPlace = Element(i);
    if (sPlace == sElement || (bFindSimilar && sPlace.find(sElement) != std::string::npos)) {
      return i;
    }
  }
  return -1;
}

bool clsTokeniser::Exists(std::string_view sElement, bool bFindSimilar) const {
  return Find(sElement, bFindSimilar) != -1;
}

}  // namespace quillet
