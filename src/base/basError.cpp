#include "base/basError.h"

#include <array>
#include <ctime>

#include "base/version.h"
#include "platform/Files.h"
#include "platform/Host.h"
#include "platform/UserData.h"

namespace quillet {
namespace {

std::string Header() {
  return std::string("Quillet diagnostic log\n") +
         "----------------------\n"
         "\n"
         "When requested, please e-mail this file to support@quillet.example\n"
         "Version: " +
         kVersion +
         "\n"
         "\n"
         "Date       Time      Comment\n";
}

std::string TimeStamp() {
  const std::time_t nNow = std::time(nullptr);
  const std::tm* const pNow = std::localtime(&nNow);  // NOLINT(concurrency-mt-unsafe): one thread
  std::array<char, 32> acText{};
  const std::size_t nLength =
      std::strftime(acText.data(), acText.size(), "%Y-%m-%d %H:%M:%S  ", pNow);
  return {acText.data(), nLength};
}

}  // namespace

bool g_bDebug = false;

void ParseCommandLine(const std::string& sCommandLine) {
  g_bDebug = sCommandLine.find("DEBUG=TRUE") != std::string::npos;
}

void WriteLog(const std::string& sComment) {
  if (!g_bDebug) {
    return;
  }
  const std::string sFolder = TheHost().DataFolder();
  (void)MakeFolder(sFolder);
  (void)AppendToFile(sFolder + NativePath("\\QlDebug.log"), TimeStamp() + sComment + "\n",
                     Header());
}

}  // namespace quillet
