#include "base/basCommon.h"

#include <algorithm>

#include "base/conversions.h"
#include "base/region.h"
#include "base/text.h"
#include "platform/Files.h"
#include "platform/UserData.h"

namespace quillet {
namespace {

bool IsPrintableToken(char cToken) {
  const char cUpper = UpperCase(std::string(1, cToken)).front();
  return cUpper >= 48 && cUpper <= 90;
}

/// Here a tab is a control character, not a blank.
std::string_view TrimSpaces(std::string_view sText) {
  const std::size_t nFirst = std::min(sText.find_first_not_of(' '), sText.size());
  return sText.substr(nFirst, sText.find_last_not_of(' ') + 1 - nFirst);
}

bool IsControlCharacter(char cToken) {
  return static_cast<unsigned char>(cToken) < 32;
}

std::string g_sChosenFile;  // empty for the default

}  // namespace

std::string EditionName() {
  std::string sTitle = "Quillet";
  switch (RegionCode()) {
    case 0:
      return sTitle + " UK";
    case 1:
      return sTitle + " US";
    default:
      return sTitle;
  }
}

std::string RegistryRoot() {
  return "Software\\Velmor\\" + EditionName();
}

std::string UpdateFileName(bool bNameOnly) {
  std::string sName = g_sChosenFile.empty() ? DefaultUpdateFileName() : g_sChosenFile;
  if (bNameOnly) {
    return sName;
  }
  std::string sShipped = ShippedUpdateFileName();
  std::string sOwn = TheHost().DataFolder() + NativePath("\\" + sName);
  if (sOwn == sShipped) {
    return sShipped;
  }
  (void)SeedFile(sShipped, sOwn);
  return FileExists(sOwn) ? sOwn : sShipped;
}

std::string ShippedUpdateFileName() {
  return TheHost().ProgramFolder() + NativePath("\\" + UpdateFileName(true));
}

std::string DefaultUpdateFileName() {
  return RegionCode() == 1 ? "UpdateUS_v0101.dat" : "UpdateUK_v0101.dat";
}

bool IsUpdateFileName(std::string_view sName) {
  const std::string sDefault = DefaultUpdateFileName();
  return sName.starts_with(sDefault.substr(0, sDefault.find('_') + 1)) && sName.ends_with(".dat") &&
         sName.find_first_of("/\\:") == std::string_view::npos;
}

void ChooseUpdateFile(const std::string& sName) {
  g_sChosenFile = IsUpdateFileName(sName) ? sName : "";
}

std::int32_t MaxLong(std::int32_t nLeft, std::int32_t nRight) {
  return std::max(nLeft, nRight);
}

Single MinSingle(Single fLeft, Single fRight) {
  return fLeft < fRight ? fLeft : fRight;
}

Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) {
  return TheHost().ShowMessage(sPrompt, nButtons, sTitle);
}

void WaitMilliseconds(std::int64_t nMilliseconds) {
  const std::int64_t nEnd = TheHost().TickCount() + nMilliseconds;
  while (TheHost().TickCount() < nEnd) {
    TheHost().PumpEvents();
  }
}

std::string FormKeyName(const std::string& sName) {
  return sName.starts_with("frm") ? sName.substr(3) : sName;
}

std::string CleanString(const std::string& sText) {
  std::string sClean(TrimSpaces(sText));
  std::size_t nCut = 0;
  for (auto i = sClean.rbegin(); i != sClean.rend() && !IsPrintableToken(*i); ++i) {
    nCut += IsControlCharacter(*i) ? 1U : 0U;
  }
  sClean.resize(sClean.size() - nCut);
  return std::string(TrimSpaces(sClean));
}

}  // namespace quillet
