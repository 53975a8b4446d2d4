#include "app/calc/checkFile.h"

#include <system_error>

#include "app/calc/Output.h"
#include "base/basCommon.h"
#include "base/failure.h"
#include "base/region.h"
#include "base/text.h"
#include "platform/Files.h"
#include "prices/Catalogue.h"
#include "prices/checkSchedule.h"

namespace quillet {

bool HoldsAPrice(const clsPrices& oPrices, const std::string& sPath) {
  const bool bHolds = Catalogue::Of(RegionCode()).HoldsAnyOf(oPrices.Table());
  if (!bHolds) {
    Complain(sPath + ": It has no prices for " + EditionName() + ".");
  }
  return bHolds;
}

Status CheckScheduleFile(const std::string& sPath) {
  std::string sBytes;
  if (const std::error_code oError = ReadWholeFile(sPath, clsPrices::kLargestFile, sBytes)) {
    Complain(sPath + ": " + oError.message());
    return kUnusable;
  }
  const std::string sText = DecodeText(std::move(sBytes));
  clsPrices oPrices;
  IgnoreFailure([&] { oPrices.LoadText(sText); });  // the findings say why it ends early
  if (!HoldsAPrice(oPrices, sPath)) {
    return kUnusable;
  }
  std::string sLines;
  const std::vector<Finding> aoFindings = CheckSchedule(sText);
  for (const Finding& oFinding : aoFindings) {
    sLines += FindingLine(sPath, oFinding) + "\n";
  }
  WriteOut(sLines);
  return aoFindings.empty() ? kEveryAuctionCalculated : kSomeFailed;
}

}  // namespace quillet
