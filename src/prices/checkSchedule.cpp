#include "prices/checkSchedule.h"

#include <algorithm>

#include "base/basCommon.h"
#include "base/conversions.h"
#include "base/region.h"
#include "base/text.h"
#include "prices/Schedule.h"
#include "prices/checkSaleFees.h"
#include "prices/checkTiers.h"

namespace quillet {
namespace {

/// True unless the schedule says that there are none.
bool HasFirstClassTiers(Schedule& oSchedule) {
  const ScheduleEntry* const pCount = oSchedule.Ask("FirstClassRanges");
  return pCount == nullptr || ToInteger(pCount->sValue).value_or(1) > 0;
}

void ReportMissing(Schedule& oSchedule, const CatalogueKey& oKey) {
  const std::string sMissing = Quoted(oKey.sName) + " is missing";
  if (oKey.IsNeeded()) {
    oSchedule.ReportNoPrice(oSchedule.LastLine(), sMissing);
  } else if (!oKey.IsOptional()) {
    oSchedule.Report(oSchedule.LastLine(), sMissing);
  }
}

void CheckKey(Schedule& oSchedule, const CatalogueKey& oKey) {
  if (oKey.IsTable()) {
    CheckTiers(oSchedule, oKey);
  } else if (oKey.eKind == KeyKind::OverWeightNumber && !HasFirstClassTiers(oSchedule)) {
    return;
  } else if (oSchedule.Ask(oKey.sName) == nullptr) {
    ReportMissing(oSchedule, oKey);
  } else if (oKey.eKind > KeyKind::Text) {
    (void)AskNumber(oSchedule, oKey.sName);
  }
}

void CheckKeys(Schedule& oSchedule, const Catalogue& oCatalogue) {
  const FeeModel eModel = AskFeeModel(oSchedule);
  for (const CatalogueKey& oKey : oCatalogue.Keys()) {
    if (oKey.IsOf(eModel)) {
      CheckKey(oSchedule, oKey);
    }
  }
  if (eModel == FeeModel::OfToday) {
    CheckSaleFees(oSchedule);
  }
}

/// True if most keys that only one of the two editions looks up are the other one's.
bool IsOfTheOtherEdition(Schedule& oSchedule, const Catalogue& oCatalogue) {
  const Catalogue& oOther = Catalogue::Of(RegionCode() == 1 ? 0 : 1);
  int nLead = 0;
  for (const ScheduleEntry& oEntry : oSchedule.Entries()) {
    nLead += (oOther.Holds(oEntry.sKey) ? 1 : 0) - (oCatalogue.Holds(oEntry.sKey) ? 1 : 0);
  }
  return nLead > 0;
}

void ReportUnasked(Schedule& oSchedule, const Catalogue& oCatalogue) {
  for (const ScheduleEntry& oEntry : oSchedule.Entries()) {
    if (!oEntry.bAsked) {
      const std::string_view sTrimmed = Trim(oEntry.sKey);
      const bool bBlanks = sTrimmed != oEntry.sKey && oCatalogue.Holds(sTrimmed);
      oSchedule.Report(oEntry.nLine, EditionName() + " has no use for " + Quoted(oEntry.sKey) +
                                         (bBlanks ? "; its blanks are part of the key" : ""));
    }
  }
}

}  // namespace

std::vector<Finding> CheckSchedule(std::string_view sText) {
  const Catalogue& oCatalogue = Catalogue::Of(RegionCode());
  Schedule oSchedule(sText, oCatalogue);
  CheckKeys(oSchedule, oCatalogue);
  ReportUnasked(oSchedule, oCatalogue);
  std::vector<Finding> aoFindings = oSchedule.Findings();
  if (IsOfTheOtherEdition(oSchedule, oCatalogue)) {
    aoFindings.insert(
        aoFindings.begin(),
        {1, "this is the schedule of the other edition, not of " + EditionName(), false});
  }
  return aoFindings;
}

std::optional<Finding> FirstMissingPrice(std::string_view sText) {
  const Catalogue& oCatalogue = Catalogue::Of(RegionCode());
  Schedule oSchedule(sText, oCatalogue);
  CheckKeys(oSchedule, oCatalogue);
  const std::vector<Finding> aoFindings = oSchedule.Findings();
  const auto pFirst = std::find_if(aoFindings.begin(), aoFindings.end(),
                                   [](const Finding& oFinding) { return oFinding.bNoPrice; });
  return pFirst == aoFindings.end() ? std::nullopt : std::optional(*pFirst);
}

}  // namespace quillet
