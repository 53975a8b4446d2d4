#include "app/calc/checkFile.h"

#include <system_error>

#include "app/calc/Output.h"
#include "base/text.h"
#include "platform/Files.h"
#include "prices/checkSchedule.h"
#include "prices/clsPrices.h"

namespace quillet {

Status CheckScheduleFile(const std::string& sPath) {
  std::string sBytes;
  if (const std::error_code oError = ReadWholeFile(sPath, clsPrices::kLargestFile, sBytes)) {
    Complain(sPath + ": " + oError.message());
    return kUnusable;
  }
  Output oOutput;
  const std::vector<Finding> aoFindings = CheckSchedule(DecodeText(std::move(sBytes)));
  for (const Finding& oFinding : aoFindings) {
    oOutput.Text() += sPath + ":" + std::to_string(oFinding.nLine) + ": " + oFinding.sText + "\n";
    oOutput.FlushIfLarge();
  }
  oOutput.Flush();
  return aoFindings.empty() ? kEveryAuctionCalculated : kSomeFailed;
}

}  // namespace quillet
