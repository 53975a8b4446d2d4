// The host of the terminal program: it keeps what loading an auction reports for the results.
#pragma once

#include <optional>
#include <string>

#include "platform/TerminalHost.h"

namespace quillet {

class CalcHost : public TerminalHost {
 public:
  CalcHost() : TerminalHost({}, UserDecimalSeparator()) {}

  Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) override;

  /// The message shown on this thread since the last call, if there was one.
  [[nodiscard]] static std::optional<std::string> TakeMessage();
};

}  // namespace quillet
