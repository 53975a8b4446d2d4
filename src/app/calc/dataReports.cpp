// The reports for programs: CSV and JSON.
#include <algorithm>

#include <nlohmann/json.hpp>

#include "app/calc/Report.h"
#include "app/calc/columns.h"

namespace quillet {
namespace {

void AppendQuotedForCsv(std::string_view sText, std::string& sOut) {
  const bool bPlain = std::none_of(sText.begin(), sText.end(), [](char c) {
    return c == ',' || c == '"' || c == '\r' || c == '\n';
  });
  if (bPlain) {
    sOut += sText;
    return;
  }
  sOut += '"';
  for (const char c : sText) {
    sOut.append(c == '"' ? 2 : 1, c);
  }
  sOut += '"';
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
      sOut += &oColumn == m_aoColumns.data() ? "" : ",";
      m_sCell.clear();
      oColumn.fnRead(oResult, m_sCell);
      AppendQuotedForCsv(m_sCell, sOut);
    }
    sOut += '\n';
  }

 private:
  std::vector<Column> m_aoColumns;
  std::string m_sCell;
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
