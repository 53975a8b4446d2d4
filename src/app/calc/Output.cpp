#include "app/calc/Output.h"

#include "platform/StandardStreams.h"

namespace quillet {

void WriteOut(std::string_view sText) {
  if (const std::error_code oError = WriteStandardOutput(sText)) {
    throw OutputFailure(oError);
  }
}

}  // namespace quillet
