#include "app/calc/Output.h"

#include "platform/Descriptors.h"

namespace quillet {

void Output::Flush() {
  const std::error_code oError = WriteAll(kStandardOutput, m_sText);
  m_sText.clear();
  if (oError) {
    throw OutputFailure(oError);
  }
}

void Output::FlushIfLarge() {
  constexpr std::size_t kLarge = std::size_t{1} << 16U;
  if (m_sText.size() >= kLarge) {
    Flush();
  }
}

}  // namespace quillet
