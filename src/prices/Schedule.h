// An update file as its maintainer sees it: entries with their lines.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "prices/Catalogue.h"

namespace quillet {

struct Finding {
  std::size_t nLine = 0;  ///< from 1
  std::string sText;
  bool bNoPrice = false;  ///< some sale can't be priced
};

/// FILE:LINE: text, without control characters.
[[nodiscard]] std::string FindingLine(const std::string& sFile, const Finding& oFinding);

struct ScheduleEntry {
  std::string sKey;
  std::string sValue;
  std::size_t nLine = 0;
  bool bAsked = false;  ///< this key is looked up
};

class Schedule {
 public:
  /// Splits the text into lines and entries, and reports duplicate keys and lines that look like
  /// entries but aren't.
  Schedule(std::string_view sText, const Catalogue& oCatalogue);

  /// The entry of a key, now marked as asked for; null if there is none.
  [[nodiscard]] const ScheduleEntry* Ask(const std::string& sKey);

  [[nodiscard]] std::vector<ScheduleEntry>& Entries() { return m_aoEntries; }
  [[nodiscard]] std::size_t LastLine() const { return m_nLines == 0 ? 1 : m_nLines; }

  void Report(std::size_t nLine, std::string sText);
  void ReportNoPrice(std::size_t nLine, std::string sText);

  /// Every finding, by line.
  [[nodiscard]] std::vector<Finding> Findings() const;

 private:
  void AddLine(std::string_view sLine, const Catalogue& oCatalogue);
  void AddEntry(const std::string& sKey, const std::string& sValue);
  void ReportInert(std::string_view sLine, std::int32_t nFields, const Catalogue& oCatalogue);

  std::vector<ScheduleEntry> m_aoEntries;
  std::map<std::string, std::size_t> m_anByKey;  ///< from upper case to the place of the entry
  std::vector<Finding> m_aoFindings;
  std::size_t m_nLines = 0;
};

/// The text in quotation marks, cut short if it is long.
[[nodiscard]] std::string Quoted(std::string_view sText);

}  // namespace quillet
