#include "online/downloads.h"

#include <random>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/text.h"
#include "prices/clsPrices.h"
#include "prices/clsTokeniser.h"
#include "prices/replacement.h"

namespace quillet {
namespace {

constexpr const char* kFtpUser = "quillet";
constexpr const char* kFtpPassword = "rmk3816";

std::string RandomCode() {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::random_device oRandom;
  std::uniform_int_distribution<std::size_t> oDigit(0, kDigits.size() - 1);
  std::string sCode(32, '0');
  for (char& c : sCode) {
    c = kDigits[oDigit(oRandom)];
  }
  return sCode;
}

std::string Code() {
  std::string sCode = Registry().Get(settings::kCode);
  if (sCode.empty()) {
    sCode = RandomCode();
    Registry().Set(settings::kCode, sCode);
  }
  return sCode;
}

/// Reads "number,message". A missing message throws a Failure, but the number counts all the same.
void ReadActions(std::string sAnswer) {
  g_lActionFlags = 0;
  sAnswer.erase(sAnswer.find_last_not_of("\r\n") + 1);  // a text file ends in a line break
  clsTokeniser oAnswer;
  oAnswer.Tokenise(sAnswer, ",");
  if (const auto fNumber = ToDouble(oAnswer.Element(0))) {
    g_lActionFlags = RoundToLong(*fNumber);
    g_sActionMessage = oAnswer.Element(1);
  }
}

/// Loads `sFetched` into a table of its own, with the routine that will load it later.
void RequireSchedule(const std::string& sFetched, const std::string& sPresent) {
  clsPrices oPrices;
  oPrices.LoadFile(sFetched);
  RequireReplacement(oPrices, sPresent);
}

}  // namespace

std::string Downloads::Ask(const std::string& sRequest) {
  return CutText(m_oHttp.GetHeaderInfo(sRequest), kLongestText);
}

void Downloads::FetchActions() {
  try {
    WriteLog("DL - Special actions 1");
    const std::string sRequest = "getAction.asp?Code=" + Code();
    if (m_oHttp.StartHttpSession(Registry().Get(settings::kWebServer), "", "")) {
      WriteLog("DL - Special actions 2");
      const std::string sAnswer = Ask(sRequest);
      WriteLog("DL - Special actions 3");
      if (!sAnswer.empty()) {
        WriteLog("DL - Special actions 4");
        ReadActions(sAnswer);
        WriteLog("DL - Special actions 5");
      }
    }
    WriteLog("DL - Special actions 6 - okay");
    m_oHttp.CloseHttpSession();
  } catch (const Failure&) {
    WriteLog("DL - Special actions 7 - fail");
  }
}

void Downloads::RequireTime() {
  if (m_oInternet.Pass().IsOver()) {
    WriteLog("DL - Out of time");
    throw Failure(FailureNumber::Internet, "The downloads have taken too long.");
  }
}

void Downloads::FetchUpdateFile() {
  RequireTime();
  try {
    FetchUpdateFileOrFail();
  } catch (const Failure&) {
    WriteLog("DL - Update file 10 - fail");
  }
}

void Downloads::FetchUpdateFileOrFail() {
  WriteLog("DL - Update file 1");
  if ((g_lActionFlags & kActionSkipUpdate) != 0) {
    return;
  }
  WriteLog("DL - Update file 2");
  WriteLog("DL - Update file 3");
  if (IsUpdateSkipped()) {
    WriteLog("DL - Update file 4 - early exit");
    m_oHttp.CloseFtpSession();
    return;
  }
  WriteLog("DL - Update files 5");
  const std::string sLocal = UpdateFileName(false);
  const std::string sRemote = UpdateFileName(true);
  m_oHttp.StartFtpSession(Registry().Get(settings::kFtpServer), kFtpUser, kFtpPassword, "");
  WriteLog("DL - Update file 6");
  if (!m_oHttp.FilesMatch(sLocal, sRemote)) {
    WriteLog("DL - Update file 7");
    m_oHttp.GetFile(sLocal, sRemote, true,
                    [&](const std::string& sFetched) { RequireSchedule(sFetched, sLocal); });
    WriteLog("DL - Update file 8");
  }
  WriteLog("DL - Update file 9 - okay");
  SetUpdateSkip(true);
  m_oHttp.CloseFtpSession();
}

bool Downloads::IsUpdateSkipped() {
  // A text that isn't a moment counts as no mark, so it can't block the update for ever.
  if (const auto fMark = ReadDayNumber(Registry().Get(settings::kFtpSkipFlag))) {
    WriteLog("Found skip date of " + LongTimeAndDate(*fMark));
    if (DaysBetween(*fMark, m_fnNow()) < 1) {
      return true;
    }
  }
  SetUpdateSkip(false);
  return false;
}

void Downloads::SetUpdateSkip(bool bClear) {
  const Setting& oMark = settings::kFtpSkipFlag;
  if (!bClear) {
    Registry().Set(oMark, DayNumberText(m_fnNow()));
    Registry().Flush();  // an attempt that crashes the program counts, too
  } else if (IsUpdateSkipped()) {
    Registry().DeleteValue(oMark.eRoot, oMark.sSection, oMark.sName, false);
  }
}

void Downloads::FetchAboutText() {
  RequireTime();
  try {
    WriteLog("DL - Scrolling message 1");
    WriteLog("DL - Scrolling message 2");
    if ((g_lActionFlags & kActionAboutText) != 0) {
      WriteLog("DL - Scrolling message 3");
      if (m_oHttp.StartHttpSession(Registry().Get(settings::kWebServer), "", "")) {
        WriteLog("DL - Scrolling message 4");
        const std::string sText = Ask("getAbout.asp?Code=" + Code());
        WriteLog("DL - Scrolling message 5");
        if (!sText.empty()) {
          WriteLog("DL - Scrolling message 6");
          g_sAboutText = sText;
          Registry().Set(settings::kAbout, sText);  // may lack permission: then for this run only
          WriteLog("DL - Scrolling message 7");
        }
      }
    }
    WriteLog("DL - Scrolling message 8 - okay");
    m_oHttp.CloseHttpSession();
  } catch (const Failure&) {
    WriteLog("DL - Scrolling message 9 - fail");
  }
}

}  // namespace quillet
