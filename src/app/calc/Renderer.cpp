#include "app/calc/Renderer.h"

#include "app/calc/calculate.h"

namespace quillet {

void Renderer::Render(Batch& oBatch) {
  RenderLines(oBatch);
  RenderFiles(oBatch);
  if (!oBatch.sFailure.empty()) {
    Complain(oBatch, oBatch.sFailure);
    oBatch.bFailed = true;
  }
}

void Renderer::RenderLines(Batch& oBatch) {
  m_oResult.sFile.clear();
  m_oResult.nLine = oBatch.nFirstLine;
  std::string_view sLeft = oBatch.sLines;
  for (; !sLeft.empty(); ++m_oResult.nLine) {
    const std::size_t nLength = sLeft.find('\n');
    m_sText = sLeft.substr(0, nLength);
    sLeft.remove_prefix(nLength + 1);
    if (sLeft.empty() && oBatch.bOverlong) {
      SetError(m_oResult, "The line is too long for an auction.");
    } else {
      Calculate(m_sText, m_oOptions, m_oResult);
    }
    Add(oBatch);
  }
}

void Renderer::RenderFiles(Batch& oBatch) {
  m_oResult.nLine = 0;
  for (const std::string& sFile : oBatch.asFiles) {
    m_oResult.sFile = sFile;
    CalculateFile(m_oOptions, m_oResult);
    Add(oBatch);
  }
}

void Renderer::Add(Batch& oBatch) {
  ++oBatch.nAuctions;
  oBatch.bFailed = oBatch.bFailed || m_oResult.sError || m_oResult.sMessage;
  m_oReport->Add(m_oResult, oBatch.sResults);
  // Complain about a failed file in every form of the results; a stream may have thousands.
  if (m_oResult.sError && (m_oResult.nLine == 0 || !m_oReport->HoldsMessages())) {
    Complain(oBatch, m_oResult.Name() + ": " + *m_oResult.sError);
  }
  if (m_oResult.sMessage && !m_oReport->HoldsMessages()) {
    Complain(oBatch, m_oResult.Name() + ": " + *m_oResult.sMessage);
  }
}

void Renderer::Complain(Batch& oBatch, const std::string& sText) const {
  oBatch.aoComplaints.push_back({oBatch.sResults.size(), sText});
}

}  // namespace quillet
