#include "documents/Section.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/conversions.h"
#include "base/failure.h"

namespace quillet {
namespace {

constexpr char kSeparator = '|';

/// What stands between the first marker of its kind in the text and the next.
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

}  // namespace

SectionWriter::SectionWriter(std::string& sData, std::string_view sMarker)
    : m_sData(sData), m_sMarker(sMarker) {
  constexpr std::size_t kUsualSection = 80;  // bytes
  m_sData.reserve(m_sData.size() + kUsualSection);
  m_sData += m_sMarker;
}

SectionWriter& SectionWriter::Add(Single fValue) {
  Separate();
  m_sData += SingleText(fValue);
  return *this;
}

SectionWriter& SectionWriter::Add(std::int32_t nValue) {
  return AddPadded(nValue, 1);
}

SectionWriter& SectionWriter::Add(bool bValue) {
  Separate();
  m_sData += BooleanText(bValue);
  return *this;
}

SectionWriter& SectionWriter::AddPadded(std::int32_t nValue, std::size_t nDigits) {
  Separate();
  if (nDigits == 1 && nValue >= 0 && nValue <= 9) {
    m_sData += static_cast<char>('0' + nValue);  // nearly every one of them
    return *this;
  }
  std::array<char, 12> acDigits{};
  const auto oEnd = std::to_chars(acDigits.data(), acDigits.data() + acDigits.size(), nValue);
  const std::string_view sDigits(acDigits.data(), oEnd.ptr);
  m_sData.append(nDigits - std::min(nDigits, sDigits.size()), '0').append(sDigits);
  return *this;
}

void SectionWriter::Close() {
  m_sData += m_sMarker;
}

void SectionWriter::Separate() {
  if (!m_bFirst) {
    m_sData += kSeparator;
  }
  m_bFirst = false;
}

SectionReader::SectionReader(std::string_view sData, std::string_view sMarker) {
  const std::string_view sValues = Between(sData, sMarker);
  // A section too long to split leaves every field as it was.
  IgnoreFailure([&] { m_oValues.Tokenise(sValues, std::string_view(&kSeparator, 1)); });
}

template <typename Field, typename Converter>
void SectionReader::ReadAs(std::int32_t nPlace, Field& oField, Converter&& fnConvert) const {
  if (nPlace < m_oValues.Count()) {
    const auto oValue = fnConvert(m_oValues.Element(nPlace));
    oField = oValue ? static_cast<Field>(*oValue) : oField;
  }
}

void SectionReader::Read(std::int32_t nPlace, Single& fField) const {
  ReadAs(nPlace, fField, ToFileSingle);
}

void SectionReader::Read(std::int32_t nPlace, bool& bField) const {
  ReadAs(nPlace, bField, ToBoolean);
}

void SectionReader::ReadLong(std::int32_t nPlace, std::int32_t& nField) const {
  ReadAs(nPlace, nField, ToLong);
}

void SectionReader::ReadInteger(std::int32_t nPlace, std::int32_t& nField) const {
  ReadAs(nPlace, nField, ToInteger);
}

void SectionReader::ReadByte(std::int32_t nPlace, std::int32_t& nField) const {
  ReadAs(nPlace, nField, ToByte);
}

}  // namespace quillet
