// quillet-calc: the figures of auctions on a terminal.
#include "app/calc/CalcHost.h"
#include "app/calc/Options.h"
#include "app/calc/Status.h"
#include "app/calc/checkFile.h"
#include "app/calc/run.h"
#include "app/calc/schedules.h"
#include "platform/StandardStreams.h"

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
  if (oOptions->sCheck) {
    return CheckScheduleFile(*oOptions->sCheck);
  }
  if (oOptions->bSchedules) {
    return ListSchedules();
  }
  nStatus = LoadSchedule(*oOptions);
  return nStatus == kEveryAuctionCalculated ? RunAuctions(*oOptions) : nStatus;
}

}  // namespace
}  // namespace quillet

int main(int nArguments, char** asArguments) {
  try {
    return quillet::Run(nArguments, asArguments);
  } catch (...) {
    return quillet::StatusOfCaught();
  }
}
