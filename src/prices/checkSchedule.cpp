#include "prices/checkSchedule.h"

#include "base/basCommon.h"
#include "base/region.h"
#include "base/text.h"
#include "prices/Schedule.h"
#include "prices/checkTiers.h"

namespace quillet {
namespace {

void CheckPlainKey(Schedule& oSchedule, const CatalogueKey& oKey) {
  if (oSchedule.Ask(oKey.sName) == nullptr) {
    oSchedule.Report(oSchedule.LastLine(), Quoted(oKey.sName) + " is missing");
  } else if (oKey.eKind == KeyKind::Number) {
    (void)AskNumber(oSchedule, oKey.sName);
  }
}

void ReportUnasked(Schedule& oSchedule, const Catalogue& oCatalogue) {
  for (const ScheduleEntry& oEntry : oSchedule.Entries()) {
    if (!oEntry.bAsked) {
      const bool bBlanks = oCatalogue.Holds(Trim(oEntry.sKey));
      oSchedule.Report(oEntry.nLine, "nothing in " + EditionName() + " asks for " +
                                         Quoted(oEntry.sKey) +
                                         (bBlanks ? "; the blanks count" : ""));
    }
  }
}

}  // namespace

std::vector<Finding> CheckSchedule(std::string_view sText) {
  const Catalogue oCatalogue(RegionCode());
  Schedule oSchedule(sText, oCatalogue);
  for (const CatalogueKey& oKey : oCatalogue.Keys()) {
    if (oKey.IsTable()) {
      CheckTiers(oSchedule, oKey);
    } else {
      CheckPlainKey(oSchedule, oKey);
    }
  }
  ReportUnasked(oSchedule, oCatalogue);
  return oSchedule.Findings();
}

}  // namespace quillet
