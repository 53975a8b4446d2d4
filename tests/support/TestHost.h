// A host that answers prompts from a list and records what was shown.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/Host.h"

namespace quillet {

struct ShownMessage {
  std::string sPrompt;
  int nButtons = 0;
  std::string sTitle;
  bool operator==(const ShownMessage&) const = default;
};

class TestHost : public Host {
 public:
  Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) override {
    aoShown.push_back({sPrompt, nButtons, sTitle});
    if (aeAnswers.empty()) {
      return nButtons == kMessageQuestion ? Answer::Cancel : Answer::Ok;
    }
    const Answer eAnswer = aeAnswers.front();
    aeAnswers.pop_front();
    return eAnswer;
  }
  std::optional<std::string> ChooseFile(const FileDialog& oDialog) override {
    aoDialogs.push_back(oDialog);
    if (asChoices.empty()) {
      return std::nullopt;
    }
    const std::optional<std::string> sChoice = asChoices.front();
    asChoices.pop_front();
    return sChoice;
  }
  void PumpEvents() override {
    ++nTicks;
    ++nPumped;
    if (fnOnPump) {
      fnOnPump();
    }
  }
  std::int64_t TickCount() const override { return nTicks; }
  std::string CommandLine() const override { return sCommandLine; }
  std::string ProgramFolder() const override { return sProgramFolder; }
  std::string DocumentsFolder() const override { return sDocumentsFolder; }
  void OpenLink(const std::string& sTarget) override { asLinks.push_back(sTarget); }
  const std::string& DecimalSeparator() const override { return sDecimalSeparator; }
  const NumberStyle& Numbers() const override { return oNumbers; }

  std::deque<Answer> aeAnswers;                      ///< for the next message boxes
  std::deque<std::optional<std::string>> asChoices;  ///< for the next file dialogs
  std::vector<ShownMessage> aoShown;
  std::vector<FileDialog> aoDialogs;
  std::vector<std::string> asLinks;
  std::int64_t nTicks = 0;  ///< one millisecond per pump
  int nPumped = 0;
  std::function<void()> fnOnPump;  ///< called on each pump
  std::string sCommandLine;
  std::string sProgramFolder = ".";
  std::string sDocumentsFolder = ".";
  std::string sDecimalSeparator = ".";
  NumberStyle oNumbers{.sGroup = ","};
};

/// A TestHost that is installed as the host while it exists.
class ScopedHost : public TestHost {
 public:
  ScopedHost() : m_oBefore(TheHost()) { SetHost(*this); }
  ScopedHost(const ScopedHost&) = delete;
  ScopedHost& operator=(const ScopedHost&) = delete;
  ~ScopedHost() override { SetHost(m_oBefore); }

 private:
  Host& m_oBefore;
};

/// A temporary folder, removed at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device oRandom;
    do {
      const std::string sName = "quillet-" + std::to_string(oRandom());
      sPath = (std::filesystem::temp_directory_path() / sName).string();
    } while (!std::filesystem::create_directory(sPath));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code oIgnored;
    std::filesystem::remove_all(sPath, oIgnored);
  }
  std::string operator/(const std::string& sName) const { return NativePath(sPath + "\\" + sName); }

  std::string sPath;
};

}  // namespace quillet
