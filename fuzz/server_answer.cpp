// An answer of the update servers: whatever it is, and whatever the size of its pieces, it is read
// to the end and gives an action word or none, and a message that can be shown.
#include <string>
#include <utility>

#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/text.h"
#include "online/downloads.h"
#include "support.h"
#include "support/FakeInternet.h"
#include "support/MemoryHive.h"

namespace quillet {
namespace {

struct Outcome {
  std::int32_t lFlags;
  std::string sMessage;
  std::string sAbout;
  bool operator==(const Outcome&) const = default;
};

/// Skips empty fields and a line end after the last one.
std::string FirstField(std::string sAnswer) {
  sAnswer = DecodeText(std::move(sAnswer));
  sAnswer.erase(sAnswer.find_last_not_of("\r\n") + 1);
  sAnswer.erase(0, sAnswer.find_first_not_of(','));
  return sAnswer.substr(0, sAnswer.find(','));
}

/// Runs the steps of a pass that read an answer.
Outcome Fetch(const std::string& sAnswer, std::size_t nFirstPiece, std::size_t nNextPiece) {
  FakeInternet oInternet;
  oInternet.asAnswers = {{"getAction.asp", sAnswer}, {"getAbout.asp", sAnswer}};
  g_lActionFlags = 0;
  g_sActionMessage.clear();
  g_sAboutText.clear();
  Downloads oDownloads(oInternet, [] { return 46340.5; });
  Require(oDownloads.OpenConnection());
  for (void (Downloads::*const fnStep)() : {&Downloads::FetchActions, &Downloads::FetchAboutText}) {
    oInternet.nPiece = nFirstPiece;
    oInternet.nNextPiece = nNextPiece;
    (oDownloads.*fnStep)();
  }
  oDownloads.CloseConnection();
  Require(oInternet.StillOpen() == 0);
  return {g_lActionFlags, g_sActionMessage, g_sAboutText};
}

}  // namespace
}  // namespace quillet

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  static MemoryHive oHive;
  SetRegistryHive(oHive);
  std::string sAnswer(TakeSettings(pData, nSize));
  if (sAnswer.empty()) {
    return 0;
  }
  const auto nPiece = static_cast<std::size_t>(static_cast<unsigned char>(sAnswer[0])) + 1;
  sAnswer.erase(0, 1);
  const Outcome oOutcome = Fetch(sAnswer, nPiece, nPiece);
  Require(IsValidUtf8(oOutcome.sMessage) && IsValidUtf8(oOutcome.sAbout));
  Require((oOutcome.lFlags & kActionAboutText) != 0 || oOutcome.sAbout.empty());
  if (sAnswer.find('\0') == std::string::npos) {  // a NUL ends its piece
    Require(oOutcome.lFlags == 0 || IsNumeric(FirstField(sAnswer)));
    Require(oOutcome == Fetch(sAnswer, nPiece, 1) || nPiece == 1);
  }
  return 0;
}
