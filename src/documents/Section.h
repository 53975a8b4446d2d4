// One section of an auction's text: its marker, its values with "|" between them, the marker again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Single.h"
#include "prices/clsTokeniser.h"

namespace quillet {

/// Writes a section onto the end of a text.
class SectionWriter {
 public:
  SectionWriter(std::string& sData, std::string_view sMarker);

  SectionWriter& Add(Single fValue);
  SectionWriter& Add(std::int32_t nValue);
  SectionWriter& Add(bool bValue);
  SectionWriter& AddPadded(std::int32_t nValue, std::size_t nDigits);  ///< with leading zeros

  void Close();

 private:
  void Separate();

  std::string& m_sData;
  std::string_view m_sMarker;
  bool m_bFirst = true;
};

/// Reads a section's values by their place. A place that is missing, or whose text doesn't convert,
/// leaves the field as it was.
class SectionReader {
 public:
  /// A section without both its markers is a Failure, "Failure loading section " and the marker.
  SectionReader(std::string_view sData, std::string_view sMarker);

  void Read(std::int32_t nPlace, Single& fField) const;
  void Read(std::int32_t nPlace, bool& bField) const;
  void ReadLong(std::int32_t nPlace, std::int32_t& nField) const;     ///< 32 bits
  void ReadInteger(std::int32_t nPlace, std::int32_t& nField) const;  ///< 16 bits, widened
  void ReadByte(std::int32_t nPlace, std::int32_t& nField) const;     ///< 0 to 255

 private:
  template <typename Field, typename Converter>
  void ReadAs(std::int32_t nPlace, Field& oField, Converter&& fnConvert) const;

  clsTokeniser m_oValues;
};

}  // namespace quillet
