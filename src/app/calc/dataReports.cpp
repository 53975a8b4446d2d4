// The reports for programs: CSV and JSON.
#include <nlohmann/json.hpp>

#include "app/calc/Report.h"
#include "app/calc/columns.h"

namespace quillet {
namespace {

/// Looks at every character: without an early end the compiler takes many at a time.
bool NeedsQuotes(std::string_view sCell) {
  unsigned char nNeeds = 0;
  for (const char c : sCell) {
    nNeeds |= static_cast<unsigned char>(c == ',' || c == '"' || c == '\r' || c == '\n');
  }
  return nNeeds != 0;
}

/// Quotes the last cell of a line, which begins at `nCell`, if it needs that.
void QuoteForCsv(std::string& sLine, std::size_t nCell) {
  if (!NeedsQuotes(std::string_view(sLine).substr(nCell))) {
    return;
  }
  const std::string sCell = sLine.substr(nCell);
  sLine.resize(nCell);
  sLine += '"';
  for (const char c : sCell) {
    sLine.append(c == '"' ? 2 : 1, c);
  }
  sLine += '"';
}

class CsvReport : public Report {
 public:
  explicit CsvReport(const Options& oOptions) : m_aoColumns(ColumnsFor(oOptions)) {}

  [[nodiscard]] std::string Header() const override {
    std::string sOut;
    for (const Column& oColumn : m_aoColumns) {
      sOut.append(&oColumn == m_aoColumns.data() ? "" : ",").append(oColumn.sName);
    }
    return sOut + '\n';
  }

  void Add(const Result& oResult, std::string& sOut) override {
    for (const Column& oColumn : m_aoColumns) {
      const std::size_t nCell = sOut.size();
      if (oColumn.fnRead(oResult, sOut) == Cell::Text) {
        QuoteForCsv(sOut, nCell);
      }
      sOut += ',';
    }
    sOut.back() = '\n';
  }

 private:
  std::vector<Column> m_aoColumns;
};

class JsonReport : public Report {
 public:
  explicit JsonReport(const Options& oOptions) : m_aoColumns(ColumnsFor(oOptions)) {}

  void Add(const Result& oResult, std::string& sOut) override {
    for (const Column& oColumn : m_aoColumns) {
      sOut.append(&oColumn == m_aoColumns.data() ? "{\"" : ",\"")
          .append(oColumn.sName)
          .append("\":");
      m_sCell.clear();
      switch (oColumn.fnRead(oResult, m_sCell)) {
        case Cell::None:
          sOut += "null";
          break;
        case Cell::Number:
          sOut += m_sCell;
          break;
        case Cell::Text:
          sOut += nlohmann::json(m_sCell).dump(-1, ' ', false,
                                               nlohmann::json::error_handler_t::replace);
          break;
      }
    }
    sOut += "}\n";
  }

 private:
  std::vector<Column> m_aoColumns;
  std::string m_sCell;
};

}  // namespace

std::unique_ptr<Report> MakeCsvReport(const Options& oOptions) {
  return std::make_unique<CsvReport>(oOptions);
}

std::unique_ptr<Report> MakeJsonReport(const Options& oOptions) {
  return std::make_unique<JsonReport>(oOptions);
}

}  // namespace quillet
