#include "app/calc/run.h"

#include <memory>

#include "app/calc/Auctions.h"
#include "app/calc/Jobs.h"
#include "app/calc/Printer.h"
#include "app/calc/Report.h"
#include "app/calc/checkFile.h"
#include "app/calc/schedules.h"
#include "base/basCommon.h"
#include "base/failure.h"
#include "prices/clsPrices.h"

namespace quillet {

Status LoadSchedule(const Options& oOptions) {
  std::string sPath;
  auto oPrices = std::make_unique<clsPrices>();
  try {
    sPath = oOptions.sPrices ? ScheduleFileOf(*oOptions.sPrices) : UpdateFileName(false);
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

Status RunAuctions(Options oOptions) {
  Auctions oAuctions(oOptions.asFiles);
  if (oOptions.eFormat == Format::Automatic) {
    oOptions.eFormat = oAuctions.AreSeveral() ? Format::Csv : Format::Table;
  }
  Printer oPrinter(*MakeReport(oOptions));
  Jobs(oOptions, oAuctions, oPrinter).Run();
  return oPrinter.HowItWent();
}

}  // namespace quillet
