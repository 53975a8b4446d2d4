// The fee schedules on offer, and the choice among them.
#pragma once

#include <string>
#include <vector>

#include "prices/scheduleDate.h"

namespace quillet {

struct OfferedSchedule {
  std::string sFile;  ///< its bare name
  std::string sPath;  ///< where it is read from
  std::string sName;  ///< the name shown; no two on offer have the same
  ScheduleDate oDate;
  std::string sFault;  ///< why it can't be used; empty for one that can
};

/// Every schedule of the region in the program's folder and in that of the user's copies, even if
/// it is damaged. Each file name is there once, with the path that would be read. The newest comes
/// first; within a month the default, then by name. A schedule without a name, or whose name is
/// taken, goes by its file name.
[[nodiscard]] std::vector<OfferedSchedule> SchedulesOnOffer();

/// Loads the schedule of that bare file name into the program's table and stores the choice. If it
/// can't be used, throws a Failure that says why, and leaves everything as it was.
void ChooseSchedule(const std::string& sFile);

}  // namespace quillet
