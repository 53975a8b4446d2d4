// The text of an update file: if it can't be loaded, the check finds something.
#include <string>

#include "base/failure.h"
#include "prices/checkSchedule.h"
#include "prices/clsPrices.h"
#include "support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
  using namespace quillet;
  const std::string sText(TakeSettings(pData, nSize));
  const auto aoFindings = CheckSchedule(sText);
  try {
    clsPrices().LoadText(sText);
  } catch (const Failure&) {
    Require(!aoFindings.empty());
  }
  return 0;
}
