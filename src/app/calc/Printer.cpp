#include "app/calc/Printer.h"

#include <algorithm>
#include <utility>

#include "app/calc/Output.h"

namespace quillet {

Printer::Printer(const Report& oReport) : m_nToSkip(oReport.Separator().size()) {
  WriteOut(oReport.Header());
}

void Printer::Print(const Batch& oBatch) {
  std::size_t nWritten = 0;
  for (const Complaint& oComplaint : oBatch.aoComplaints) {
    Write(std::string_view(oBatch.sResults).substr(nWritten, oComplaint.nAt - nWritten));
    nWritten = oComplaint.nAt;
    Complain(oComplaint.sText);
  }
  Write(std::string_view(oBatch.sResults).substr(nWritten));
  m_eStatus = oBatch.bFailed ? kSomeFailed : m_eStatus;
  m_oProgress.Advance(oBatch.nAuctions);
}

/// The first result needs no separator.
void Printer::Write(std::string_view sResults) {
  if (!sResults.empty()) {
    sResults.remove_prefix(std::exchange(m_nToSkip, 0));
    WriteOut(sResults);
  }
}

}  // namespace quillet
