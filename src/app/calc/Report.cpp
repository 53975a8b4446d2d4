#include "app/calc/Report.h"

#include <cstdlib>

#include "platform/StandardStreams.h"

namespace quillet {
namespace {

bool WantsColour() {
  const auto fnVariable = [](const char* sName) {
    const char* const pValue = std::getenv(sName);  // NOLINT(concurrency-mt-unsafe): none is set
    return std::string_view(pValue != nullptr ? pValue : "");
  };
  return IsTerminal(StandardStream::Output) && fnVariable("NO_COLOR").empty() &&
         fnVariable("TERM") != "dumb";
}

}  // namespace

std::unique_ptr<Report> MakeReport(const Options& oOptions) {
  switch (oOptions.eFormat) {
    case Format::Csv:
      return MakeCsvReport(oOptions);
    case Format::Json:
      return MakeJsonReport(oOptions);
    default:
      return MakeTableReport(oOptions, WantsColour());
  }
}

}  // namespace quillet
