#include "app/calc/Status.h"

#include <exception>
#include <iostream>
#include <string>

#include "app/calc/Output.h"
#include "base/region.h"
#include "base/text.h"

namespace quillet {

void Complain(std::string_view sText) {
  std::cerr << ProgramName() << ": " << ShowControls(sText) << '\n';
}

Status StatusOfCaught() {
  try {
    throw;
  } catch (const OutputFailure& oFailure) {
    if (oFailure.IsBrokenPipe()) {
      return kEveryAuctionCalculated;
    }
    Complain("the results can't be written: " + oFailure.code().message());
  } catch (const std::exception& oError) {
    Complain(oError.what());
  }
  return kSomeFailed;
}

std::string_view ProgramName() {
  return RegionCode() == 1 ? "quillet-calc" : "quillet-calc-uk";
}

}  // namespace quillet
