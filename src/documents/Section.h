// One section of an auction's text: its marker, its values with "|" between them, the marker again.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Single.h"

namespace quillet {

/// Appends a section to a text, field by field.
class SectionWriter {
 public:
  SectionWriter(std::string& sData, std::string_view sMarker);

  void Amount(Single fField);
  void Switch(bool bField);
  void Byte(std::int32_t nField, std::size_t nDigits = 1);  ///< with leading zeros
  void Integer(std::int32_t nField) { Byte(nField); }
  void Long(std::int32_t nField) { Byte(nField); }

  void Close();

 private:
  std::string& m_sData;
  std::string_view m_sMarker;
};

/// Reads a section's fields in the order in which they were written. A field that is missing, or
/// whose text doesn't convert, stays as it was; empty values are skipped.
class SectionReader {
 public:
  /// Throws a Failure, "Failure loading section " and the marker, unless both markers are there. A
  /// section too long to split leaves every field as it was.
  SectionReader(std::string_view sData, std::string_view sMarker);

  void Amount(Single& fField);
  void Switch(bool& bField);
  void Byte(std::int32_t& nField, std::size_t nDigits = 1);  ///< 0 to 255
  void Integer(std::int32_t& nField);                        ///< 16 bits, widened
  void Long(std::int32_t& nField);                           ///< 32 bits

 private:
  [[nodiscard]] std::string_view Take();

  std::string_view m_sLeft;
};

/// Writes or reads a section from one list of its fields: `fnFields` takes a writer or a reader.
template <typename Fields>
void SerializeSection(std::string& sData, bool bSave, std::string_view sMarker, Fields&& fnFields) {
  if (bSave) {
    SectionWriter oSection(sData, sMarker);
    fnFields(oSection);
    oSection.Close();
  } else {
    SectionReader oSection(sData, sMarker);
    fnFields(oSection);
  }
}

}  // namespace quillet
