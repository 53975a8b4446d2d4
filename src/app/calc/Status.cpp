#include "app/calc/Status.h"

#include <iostream>

#include "base/region.h"
#include "base/text.h"

namespace quillet {

void Complain(std::string_view sText) {
  std::cerr << ProgramName() << ": " << ShowControls(sText) << '\n';
}

std::string_view ProgramName() {
  return RegionCode() == 1 ? "quillet-calc" : "quillet-calc-uk";
}

}  // namespace quillet
