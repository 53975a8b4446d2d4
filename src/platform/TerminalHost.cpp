#include "platform/TerminalHost.h"

#include <chrono>
#include <iostream>
#include <thread>

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

std::string TerminalHost::DataFolder() const {
  return FolderForChanges(ProgramFolder());
}

void TerminalHost::OpenLink(const std::string& sTarget) {
  std::cerr << sTarget << '\n';
}

}  // namespace quillet
