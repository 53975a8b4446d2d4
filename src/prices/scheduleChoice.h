// The fee schedules that there are to choose from, and the choice.
#pragma once

#include <string>
#include <vector>

#include "prices/scheduleDate.h"

namespace quillet {

struct OfferedSchedule {
  std::string sFile;  ///< its bare name
  std::string sPath;  ///< where it is read from
  std::string sName;  ///< what people call it; no two on offer have the same
  ScheduleDate oDate;
  std::string sFault;  ///< why it can't be used; empty for one that can
};

/// Every file of the region's name in the program's folder and in that of the user's copies, each
/// name once and the copy where it counts: the newest first, and of one month the default first,
/// then by name. One that is damaged is among them. A schedule without a name is called by its
/// file's, and so is one whose name is taken.
[[nodiscard]] std::vector<OfferedSchedule> SchedulesOnOffer();

/// Loads the schedule of that bare file name into the program's table and stores the choice. A
/// Failure that says what is wrong with it leaves everything as it was.
void ChooseSchedule(const std::string& sFile);

}  // namespace quillet
