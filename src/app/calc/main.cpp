// quillet-calc: the figures of auctions on a terminal.
#include <exception>

#include "app/calc/CalcHost.h"
#include "app/calc/Options.h"
#include "app/calc/Output.h"
#include "app/calc/checkFile.h"
#include "app/calc/run.h"
#include "platform/Descriptors.h"

namespace quillet {
namespace {

int Run(int nArguments, char** asArguments) {
  ReportFailedWrites();
  CalcHost oHost;
  SetHost(oHost);
  int nStatus = kEveryAuctionCalculated;
  const std::optional<Options> oOptions = ReadOptions(nArguments, asArguments, nStatus);
  if (!oOptions) {
    return nStatus;
  }
  try {
    if (oOptions->sCheck) {
      return CheckScheduleFile(*oOptions->sCheck);
    }
    nStatus = LoadSchedule(*oOptions);
    return nStatus == kEveryAuctionCalculated ? RunAuctions(*oOptions, oHost) : nStatus;
  } catch (const OutputFailure& oFailure) {
    if (oFailure.IsBrokenPipe()) {
      return kEveryAuctionCalculated;
    }
    Complain("the results can't be written: " + oFailure.code().message());
    return kSomeFailed;
  }
}

}  // namespace
}  // namespace quillet

int main(int nArguments, char** asArguments) {
  try {
    return quillet::Run(nArguments, asArguments);
  } catch (const std::exception& oError) {
    quillet::Complain(oError.what());
    return quillet::kSomeFailed;
  }
}
