// The forms in which results are printed.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "app/calc/Options.h"
#include "app/calc/Result.h"

namespace quillet {

class Report {
 public:
  virtual ~Report() = default;

  /// The text before the first result.
  [[nodiscard]] virtual std::string Header() const { return {}; }

  /// The text between two results. Add puts it before each.
  [[nodiscard]] virtual std::string_view Separator() const { return {}; }

  virtual void Add(const Result& oResult, std::string& sOut) = 0;

  /// True if every result names its message and error itself.
  [[nodiscard]] virtual bool HoldsMessages() const { return true; }
};

// The options must live as long as their report.

/// A report in the form that the options name, which must not be the automatic one.
[[nodiscard]] std::unique_ptr<Report> MakeReport(const Options& oOptions);

/// A table for people: the labels and figures of the summary, in colour if wanted, and the
/// requested prices.
[[nodiscard]] std::unique_ptr<Report> MakeTableReport(const Options& oOptions, bool bColour);

// For programs, with the same columns: figures in the shortest form that reads back as the same
// 32-bit float, with a point.
/// With a header line; a cell may be empty, and a price that doesn't exist is "none".
[[nodiscard]] std::unique_ptr<Report> MakeCsvReport(const Options& oOptions);
/// One object per line; null where there is no value.
[[nodiscard]] std::unique_ptr<Report> MakeJsonReport(const Options& oOptions);

}  // namespace quillet
