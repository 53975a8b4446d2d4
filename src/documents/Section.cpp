#include "documents/Section.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "base/conversions.h"
#include "base/failure.h"
#include "base/text.h"

namespace quillet {
namespace {

constexpr char kSeparator = '|';

/// The text between the first marker of this kind and the next.
std::string_view Between(std::string_view sData, std::string_view sMarker) {
  const std::size_t nFirst = sData.find(sMarker);
  const std::size_t nNext =
      nFirst == std::string_view::npos ? nFirst : sData.find(sMarker, nFirst + 1);
  if (nNext == std::string_view::npos) {
    throw Failure(FailureNumber::SectionMissing, "Failure loading section " + std::string(sMarker));
  }
  const std::size_t nStart = nFirst + sMarker.size();
  return sData.substr(nStart, nNext - nStart);
}

template <typename Field, typename Value>
void Assign(Field& oField, const std::optional<Value>& oValue) {
  if (oValue) {
    oField = *oValue;
  }
}

}  // namespace

SectionWriter::SectionWriter(std::string& sData, std::string_view sMarker)
    : m_sData(sData), m_sMarker(sMarker) {
  constexpr std::size_t kUsualSection = 80;  // bytes
  m_sData.reserve(m_sData.size() + kUsualSection);
  m_sData += m_sMarker;
}

void SectionWriter::Amount(Single fField) {
  AppendSingle(m_sData, fField);
  m_sData += kSeparator;
}

void SectionWriter::Switch(bool bField) {
  m_sData.append(BooleanText(bField)) += kSeparator;
}

void SectionWriter::Byte(std::int32_t nField, std::size_t nDigits) {
  std::array<char, 12> acDigits{};
  const auto oEnd = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(), nField);
  const std::string_view sDigits(acDigits.data(), oEnd.ptr);
  for (std::size_t nLength = sDigits.size(); nLength < nDigits; ++nLength) {
    m_sData += '0';
  }
  m_sData.append(sDigits) += kSeparator;
}

void SectionWriter::Close() {
  m_sData.pop_back();  // separators go only between values
  m_sData += m_sMarker;
}

SectionReader::SectionReader(std::string_view sData, std::string_view sMarker)
    : m_sLeft(Between(sData, sMarker)) {
  if (m_sLeft.size() > kLongestText && Utf16Length(m_sLeft) > kLongestText) {
    m_sLeft = {};
  }
}

std::string_view SectionReader::Take() {
  m_sLeft.remove_prefix(std::min(m_sLeft.find_first_not_of(kSeparator), m_sLeft.size()));
  const std::string_view sValue(m_sLeft.begin(),
                                std::find(m_sLeft.begin(), m_sLeft.end(), kSeparator));
  m_sLeft.remove_prefix(sValue.size());
  return sValue;
}

void SectionReader::Amount(Single& fField) {
  Assign(fField, ToFileSingle(Take()));
}

void SectionReader::Switch(bool& bField) {
  Assign(bField, ToBoolean(Take()));
}

void SectionReader::Byte(std::int32_t& nField, std::size_t /*nDigits*/) {
  Assign(nField, ToByte(Take()));
}

void SectionReader::Integer(std::int32_t& nField) {
  Assign(nField, ToInteger(Take()));
}

void SectionReader::Long(std::int32_t& nField) {
  Assign(nField, ToLong(Take()));
}

}  // namespace quillet
