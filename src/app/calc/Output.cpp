#include "app/calc/Output.h"

#include "platform/Descriptors.h"

namespace quillet {

void WriteOut(std::string_view sText) {
  if (const std::error_code oError = WriteAll(kStandardOutput, sText)) {
    throw OutputFailure(oError);
  }
}

}  // namespace quillet
