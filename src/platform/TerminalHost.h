// A host for programs without windows: messages go to standard error, and the user is never asked.
#pragma once

#include <string>

#include "platform/Host.h"

namespace quillet {

class TerminalHost : public Host {
 public:
  /// `sDecimalSeparator` is the user's; see UserDecimalSeparator.
  explicit TerminalHost(std::string sCommandLine = {}, std::string sDecimalSeparator = ".")
      : m_sCommandLine(std::move(sCommandLine)),
        m_sDecimalSeparator(std::move(sDecimalSeparator)) {}

  Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) override;
  std::optional<std::string> ChooseFile(const FileDialog& oDialog) override;
  void PumpEvents() override;
  [[nodiscard]] std::int64_t TickCount() const override;
  [[nodiscard]] std::string CommandLine() const override { return m_sCommandLine; }
  [[nodiscard]] std::string ProgramFolder() const override;
  [[nodiscard]] std::string DataFolder() const override;
  [[nodiscard]] std::string DocumentsFolder() const override;
  void OpenLink(const std::string& sTarget) override;
  [[nodiscard]] const std::string& DecimalSeparator() const override { return m_sDecimalSeparator; }

 private:
  std::string m_sCommandLine;
  std::string m_sDecimalSeparator;
};

/// The decimal separator of the locale that the user's environment names.
[[nodiscard]] std::string UserDecimalSeparator();

}  // namespace quillet
