#include "prices/scheduleChoice.h"

#include <algorithm>
#include <compare>
#include <memory>
#include <set>
#include <tuple>
#include <utility>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/clsRegistryAccess.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Files.h"
#include "platform/UserData.h"
#include "prices/clsPrices.h"
#include "prices/replacement.h"

namespace quillet {
namespace {

std::set<std::string> FilesOnOffer() {
  std::set<std::string> asFiles;
  for (const std::string& sFolder : {TheHost().ProgramFolder(), TheHost().DataFolder()}) {
    for (const std::string& sName : NamesIn(sFolder)) {
      if (IsUpdateFileName(sName)) {
        asFiles.insert(sName);
      }
    }
  }
  return asFiles;
}

/// The user's copy, unless the program's file would replace it.
std::string PathOfFile(const std::string& sFile) {
  const std::string sShipped = TheHost().ProgramFolder() + NativePath("\\" + sFile);
  const std::string sOwn = TheHost().DataFolder() + NativePath("\\" + sFile);
  return WantsSeed(sShipped, sOwn) ? sShipped : sOwn;
}

/// What comes before a fault is still read.
OfferedSchedule ReadOffered(const std::string& sFile) {
  OfferedSchedule oOffered{sFile, PathOfFile(sFile), sFile, {}, {}};
  std::string sText;
  if (const auto oError = ReadWholeFile(oOffered.sPath, clsPrices::kLargestFile, sText)) {
    oOffered.sFault = oError.message();
    return oOffered;
  }
  sText = DecodeText(std::move(sText));
  oOffered.oDate = DateOf(sText, sFile);
  clsPrices oPrices;
  try {
    oPrices.LoadText(sText);
    RequireFees(oPrices);
  } catch (const Failure& oFailure) {
    oOffered.sFault = oFailure.what();
  }
  if (std::string_view sName; oPrices.GetData("ScheduleName", sName)) {
    oOffered.sName = sName;
  }
  return oOffered;
}

bool ComesBefore(const OfferedSchedule& oLeft, const OfferedSchedule& oRight) {
  const std::string sDefault = DefaultUpdateFileName();
  if (const auto eOrder = oLeft.oDate <=> oRight.oDate; std::is_neq(eOrder)) {
    return std::is_gt(eOrder);
  }
  return std::tuple(oLeft.sFile != sDefault, oLeft.sName, oLeft.sFile) <
         std::tuple(oRight.sFile != sDefault, oRight.sName, oRight.sFile);
}

}  // namespace

std::vector<OfferedSchedule> SchedulesOnOffer() {
  std::vector<OfferedSchedule> aoOffered;
  for (const std::string& sFile : FilesOnOffer()) {
    aoOffered.push_back(ReadOffered(sFile));
  }
  std::sort(aoOffered.begin(), aoOffered.end(), ComesBefore);
  std::set<std::string> asTaken;
  for (OfferedSchedule& oOffered : aoOffered) {
    if (!asTaken.insert(UpperCase(oOffered.sName)).second) {
      oOffered.sName = oOffered.sFile;
    }
  }
  return aoOffered;
}

void ChooseSchedule(const std::string& sFile) {
  const std::string sBefore = UpdateFileName(true);
  auto oPrices = std::make_unique<clsPrices>();
  ChooseUpdateFile(sFile);
  try {
    oPrices->LoadUpdateFileOrFail();
  } catch (const Failure&) {
    ChooseUpdateFile(sBefore);
    throw;
  }
  UsePrices(std::move(oPrices));
  Registry().Set(settings::kSchedule, sFile);
  WriteLog("Fee schedule " + sFile);
}

}  // namespace quillet
