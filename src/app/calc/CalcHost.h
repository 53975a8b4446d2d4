// The host of the terminal program: it keeps what loading an auction reports for the results.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/TerminalHost.h"

namespace quillet {

class CalcHost : public TerminalHost {
 public:
  CalcHost() : TerminalHost({}, UserDecimalSeparator()) {}

  Answer ShowMessage(const std::string& sPrompt, int /*nButtons*/,
                     const std::string& /*sTitle*/) override {
    m_sMessage = sPrompt;
    return Answer::Ok;
  }

  /// The message shown on this thread since the last call, if there was one.
  [[nodiscard]] static std::optional<std::string> TakeMessage() {
    return std::exchange(m_sMessage, std::nullopt);
  }

 private:
  inline static thread_local std::optional<std::string> m_sMessage;
};

}  // namespace quillet
