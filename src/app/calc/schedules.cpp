#include "app/calc/schedules.h"

#include <algorithm>
#include <vector>

#include "app/calc/Output.h"
#include "base/basCommon.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Files.h"
#include "prices/scheduleChoice.h"

namespace quillet {
namespace {

/// The length of the longest name, in characters.
std::size_t WidestOf(const std::vector<OfferedSchedule>& aoOffered) {
  std::size_t nWidest = 0;
  for (const OfferedSchedule& oOffered : aoOffered) {
    nWidest = std::max(nWidest, Utf16Length(ShowControls(oOffered.sName)));
  }
  return nWidest;
}

std::string LineOf(const OfferedSchedule& oOffered, std::size_t nWidest) {
  const std::string sName = ShowControls(oOffered.sName);
  const std::string sFault = oOffered.sFault.empty() ? "" : ": " + oOffered.sFault;
  return (oOffered.sFile == UpdateFileName(true) ? "* " : "  ") + sName +
         std::string(nWidest - Utf16Length(sName) + 2, ' ') +
         ShowControls(oOffered.sPath + sFault) + "\n";
}

}  // namespace

Status ListSchedules() {
  const std::vector<OfferedSchedule> aoOffered = SchedulesOnOffer();
  if (aoOffered.empty()) {
    Complain("there is no fee schedule in " + TheHost().ProgramFolder());
    return kUnusable;
  }
  std::string sLines;
  for (const OfferedSchedule& oOffered : aoOffered) {
    sLines += LineOf(oOffered, WidestOf(aoOffered));
  }
  WriteOut(sLines);
  return kEveryAuctionCalculated;
}

std::string ScheduleFileOf(const std::string& sPathOrName) {
  if (FileExists(sPathOrName)) {
    return sPathOrName;
  }
  std::string sNames;
  for (const OfferedSchedule& oOffered : SchedulesOnOffer()) {
    if (EqualIgnoringCase(oOffered.sName, sPathOrName)) {
      return oOffered.sPath;
    }
    sNames += (sNames.empty() ? "" : ", ") + ("\"" + oOffered.sName + "\"");
  }
  throw Failure(FailureNumber::FileAccess,
                sPathOrName + ": No such file or directory, and no fee schedule has that name; " +
                    (sNames.empty() ? "none was found" : "available are " + sNames));
}

}  // namespace quillet
