#include "platform/posix/TerminalHost.h"

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <thread>

#include <langinfo.h>

#include "platform/UserData.h"

namespace quillet {

Answer TerminalHost::ShowMessage(const std::string& sPrompt, int nButtons,
                                 const std::string& /*sTitle*/) {
  std::cerr << sPrompt << '\n';
  return nButtons == kMessageQuestion ? Answer::Cancel : Answer::Ok;
}

std::optional<std::string> TerminalHost::ChooseFile(const FileDialog& /*oDialog*/) {
  return std::nullopt;
}

void TerminalHost::PumpEvents() {
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

std::int64_t TerminalHost::TickCount() const {
  const auto oNow = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(oNow).count();
}

std::string TerminalHost::ProgramFolder() const {
  std::error_code oError;
  const auto oProgram = std::filesystem::read_symlink("/proc/self/exe", oError);
  return oError ? "." : oProgram.parent_path().string();
}

std::string TerminalHost::DataFolder() const {
  return FolderForChanges(ProgramFolder());
}

std::string TerminalHost::DocumentsFolder() const {
  const char* const pHome = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe): one thread
  return pHome != nullptr ? pHome : "";
}

void TerminalHost::OpenLink(const std::string& sTarget) {
  std::cerr << sTarget << '\n';
}

std::string UserDecimalSeparator() {
  const locale_t oUser = ::newlocale(LC_ALL_MASK, "", nullptr);
  if (oUser == nullptr) {
    return ".";
  }
  std::string sSeparator = ::nl_langinfo_l(RADIXCHAR, oUser);
  ::freelocale(oUser);
  return sSeparator.empty() ? "." : sSeparator;
}

}  // namespace quillet
