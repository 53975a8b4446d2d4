#include "app/calc/run.h"

#include <cstdlib>
#include <memory>

#include "app/calc/LineStream.h"
#include "app/calc/Output.h"
#include "app/calc/Progress.h"
#include "app/calc/Report.h"
#include "app/calc/calculate.h"
#include "app/calc/checkFile.h"
#include "base/basCommon.h"
#include "base/failure.h"
#include "platform/Descriptors.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

bool WantsColour() {
  const auto fnVariable = [](const char* sName) {
    const char* const pValue = std::getenv(sName);  // NOLINT(concurrency-mt-unsafe): one thread
    return std::string_view(pValue != nullptr ? pValue : "");
  };
  return IsTerminal(kStandardOutput) && fnVariable("NO_COLOR").empty() &&
         fnVariable("TERM") != "dumb";
}

std::unique_ptr<Report> MakeReport(Format eFormat, const Options& oOptions) {
  switch (eFormat) {
    case Format::Csv:
      return MakeCsvReport(oOptions);
    case Format::Json:
      return MakeJsonReport(oOptions);
    default:
      return MakeTableReport(oOptions, WantsColour());
  }
}

/// Prints results as they come. Without a format asked for, the first one waits for the second:
/// alone it becomes a table, in company CSV.
class Printer {
 public:
  explicit Printer(const Options& oOptions) : m_oOptions(oOptions) {
    if (oOptions.eFormat != Format::Automatic) {
      Start(oOptions.eFormat);
    }
  }

  void Add(const Result& oResult) {
    m_eStatus = oResult.sError || oResult.sMessage ? kSomeFailed : m_eStatus;
    if (m_oReport == nullptr && !m_oHeld) {
      m_oHeld = oResult;
      return;
    }
    if (m_oReport == nullptr) {
      Start(Format::Csv);
      Print(*m_oHeld);
    }
    Print(oResult);
    m_oProgress.Advance();
  }

  [[nodiscard]] Status Finish() {
    if (m_oReport == nullptr && m_oHeld) {
      Start(Format::Table);
      Print(*m_oHeld);
    }
    m_oOutput.Flush();
    return m_eStatus;
  }

  void Flush() { m_oOutput.Flush(); }

  void Fail(const std::string& sText) {
    m_oOutput.Flush();
    Complain(sText);
    m_eStatus = kSomeFailed;
  }

 private:
  void Start(Format eFormat) {
    m_oReport = MakeReport(eFormat, m_oOptions);
    m_oReport->AddHeader(m_oOutput.Text());
  }

  void Print(const Result& oResult) {
    m_oReport->Add(oResult, m_oOutput.Text());
    m_oOutput.FlushIfLarge();
    // A file that failed is worth a word in any form of the results; a stream may hold thousands.
    if (oResult.sError && (oResult.nLine == 0 || !m_oReport->HoldsMessages())) {
      Fail(oResult.Name() + ": " + *oResult.sError);
    }
    if (oResult.sMessage && !m_oReport->HoldsMessages()) {
      m_oOutput.Flush();
      Complain(oResult.Name() + ": " + *oResult.sMessage);
    }
  }

  const Options& m_oOptions;
  Output m_oOutput;
  std::unique_ptr<Report> m_oReport;
  std::optional<Result> m_oHeld;
  Progress m_oProgress;
  Status m_eStatus = kEveryAuctionCalculated;
};

void RunStream(const Options& oOptions, CalcHost& oHost, Printer& oPrinter) {
  LineStream oLines(kStandardInput);
  std::string sText;
  Result oResult;
  const auto fnTake = [&] { return oLines.Take(sText, [&] { oPrinter.Flush(); }); };
  for (auto eTaken = fnTake(); eTaken != LineStream::Taken::End; eTaken = fnTake()) {
    ++oResult.nLine;
    if (eTaken == LineStream::Taken::OverlongLine) {
      SetError(oResult, "The line is too long for an auction.");
    } else {
      Calculate(sText, oOptions, oHost, oResult);
    }
    oPrinter.Add(oResult);
  }
  if (oLines.Error()) {
    oPrinter.Fail("standard input can't be read: " + oLines.Error().message());
  }
}

}  // namespace

Status LoadSchedule(const Options& oOptions) {
  const std::string sPath = oOptions.sPrices.value_or(UpdateFileName(false));
  auto oPrices = std::make_unique<clsPrices>();
  try {
    oPrices->LoadFile(sPath);
  } catch (const Failure& oFailure) {
    Complain(oFailure.what());
    return kUnusable;
  }
  if (!HoldsAPrice(*oPrices, sPath)) {
    return kUnusable;
  }
  UsePrices(std::move(oPrices));
  return kEveryAuctionCalculated;
}

Status RunAuctions(const Options& oOptions, CalcHost& oHost) {
  Printer oPrinter(oOptions);
  for (const std::string& sFile : oOptions.asFiles) {
    if (sFile == kStandardInputName) {
      RunStream(oOptions, oHost, oPrinter);
      continue;
    }
    Result oResult;
    oResult.sFile = sFile;
    CalculateFile(oOptions, oHost, oResult);
    oPrinter.Add(oResult);
  }
  return oPrinter.Finish();
}

}  // namespace quillet
