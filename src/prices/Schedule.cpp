#include "prices/Schedule.h"

#include <algorithm>

#include "base/failure.h"
#include "base/text.h"
#include "prices/clsTokeniser.h"
#include "prices/lines.h"

namespace quillet {

Schedule::Schedule(std::string_view sText, const Catalogue& oCatalogue) {
  std::string_view sLine;
  while (TakeLine(sText, sLine)) {
    ++m_nLines;
    AddLine(sLine, oCatalogue);
  }
}

void Schedule::AddLine(std::string_view sLine, const Catalogue& oCatalogue) {
  clsTokeniser oFields;
  try {
    oFields.Tokenise(sLine, ",");
  } catch (const Failure&) {
    Report(m_nLines, "the line is longer than 32766 characters; loading stops here");
    return;
  }
  if (oFields.Count() == 2) {
    AddEntry(oFields.Element(0), oFields.Element(1));
  } else {
    ReportInert(sLine, oFields.Count(), oCatalogue);
  }
}

void Schedule::AddEntry(const std::string& sKey, const std::string& sValue) {
  const auto [oPlace, bNew] = m_anByKey.emplace(UpperCase(sKey), m_aoEntries.size());
  if (bNew) {
    m_aoEntries.push_back({sKey, sValue, m_nLines});
    return;
  }
  Report(m_nLines, Quoted(sKey) + " is already on line " +
                       std::to_string(m_aoEntries[oPlace->second].nLine) + "; loading stops here");
}

void Schedule::ReportInert(std::string_view sLine, std::int32_t nFields,
                           const Catalogue& oCatalogue) {
  sLine = Trim(sLine);
  if (sLine.starts_with('#')) {
    return;  // a heading, whatever it holds
  }
  const std::string_view sFirst = sLine.substr(0, sLine.find_first_of(", \t=:;|"));
  if (sLine.find(',') == std::string_view::npos) {
    if (oCatalogue.Holds(sFirst)) {
      Report(m_nLines,
             "the line is ignored: there is no comma between " + Quoted(sFirst) + " and a value");
    }
  } else if (nFields >= 3) {
    Report(m_nLines, "the line is ignored: it has " + std::to_string(nFields) +
                         " fields, not a key and a value");
  } else {
    Report(m_nLines, nFields == 1 ? "the line is ignored: it has a key or a value, but not both"
                                  : "the line is ignored: it holds nothing but commas");
  }
}

const ScheduleEntry* Schedule::Ask(const std::string& sKey) {
  const auto oPlace = m_anByKey.find(UpperCase(sKey));
  if (oPlace == m_anByKey.end()) {
    return nullptr;
  }
  ScheduleEntry& oEntry = m_aoEntries[oPlace->second];
  oEntry.bAsked = true;
  return &oEntry;
}

void Schedule::Report(std::size_t nLine, std::string sText) {
  m_aoFindings.push_back({nLine, std::move(sText), false});
}

void Schedule::ReportNoPrice(std::size_t nLine, std::string sText) {
  m_aoFindings.push_back({nLine, std::move(sText), true});
}

std::vector<Finding> Schedule::Findings() const {
  std::vector<Finding> aoSorted = m_aoFindings;
  std::stable_sort(
      aoSorted.begin(), aoSorted.end(),
      [](const Finding& oLeft, const Finding& oRight) { return oLeft.nLine < oRight.nLine; });
  return aoSorted;
}

std::string FindingLine(const std::string& sFile, const Finding& oFinding) {
  return ShowControls(sFile + ":" + std::to_string(oFinding.nLine) + ": " + oFinding.sText);
}

std::string Quoted(std::string_view sText) {
  constexpr std::size_t kLongest = 60;
  if (sText.size() <= kLongest) {
    return "\"" + std::string(sText) + "\"";
  }
  std::size_t nLength = kLongest;
  while (nLength > 0 && (static_cast<unsigned char>(sText[nLength]) & 0xC0U) == 0x80) {
    --nLength;  // no character is cut in two
  }
  return "\"" + std::string(sText.substr(0, nLength)) + "...\"";
}

}  // namespace quillet
