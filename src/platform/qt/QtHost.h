// The desktop as the program's host.
#pragma once

#include <QElapsedTimer>
#include <string>

#include "platform/Host.h"

namespace quillet {

/// Made after the QApplication. Its windows belong to the window that is active when they open.
class QtHost : public Host {
 public:
  QtHost();

  /// The prompt is shown as it is, markup included. Enter presses the first button; Escape and
  /// closing the box mean Cancel, or OK if that is the only button.
  Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) override;

  /// Asks before a file is replaced. On saving, a name without any extension gets the pattern's.
  std::optional<std::string> ChooseFile(const FileDialog& oDialog) override;

  void PumpEvents() override;
  [[nodiscard]] std::int64_t TickCount() const override { return m_oClock.elapsed(); }
  [[nodiscard]] std::string CommandLine() const override;
  [[nodiscard]] std::string ProgramFolder() const override;
  [[nodiscard]] std::string DataFolder() const override;
  [[nodiscard]] std::string DocumentsFolder() const override;
  void OpenLink(const std::string& sTarget) override;
  [[nodiscard]] const std::string& DecimalSeparator() const override { return m_sDecimalSeparator; }
  [[nodiscard]] const NumberStyle& Numbers() const override { return m_oNumbers; }

 private:
  QElapsedTimer m_oClock;
  std::string m_sDecimalSeparator;
  NumberStyle m_oNumbers;
};

}  // namespace quillet
