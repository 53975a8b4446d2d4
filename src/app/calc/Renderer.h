// Turns the auctions of a batch into the text of its results.
#pragma once

#include <memory>
#include <string>

#include "app/calc/Batch.h"
#include "app/calc/Options.h"
#include "app/calc/Report.h"
#include "app/calc/Result.h"

namespace quillet {

/// Each thread has its own.
class Renderer {
 public:
  /// The options must live as long as this; their form must not be the automatic one.
  explicit Renderer(const Options& oOptions)
      : m_oOptions(oOptions), m_oReport(MakeReport(oOptions)) {}

  /// Fills the output fields of `oBatch`.
  void Render(Batch& oBatch);

 private:
  void RenderLines(Batch& oBatch);
  void RenderFiles(Batch& oBatch);
  void Add(Batch& oBatch);
  void Complain(Batch& oBatch, const std::string& sText) const;

  const Options& m_oOptions;
  std::unique_ptr<Report> m_oReport;
  Result m_oResult;
  std::string m_sText;
};

}  // namespace quillet
