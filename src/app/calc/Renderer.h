// From what a batch holds to the text of its results.
#pragma once

#include <memory>
#include <string>

#include "app/calc/Batch.h"
#include "app/calc/Options.h"
#include "app/calc/Report.h"
#include "app/calc/Result.h"

namespace quillet {

/// Each thread has one of its own.
class Renderer {
 public:
  /// The options, whose form is not the automatic one, must live as long as this.
  explicit Renderer(const Options& oOptions)
      : m_oOptions(oOptions), m_oReport(MakeReport(oOptions)) {}

  /// Fills what comes out in `oBatch`.
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
