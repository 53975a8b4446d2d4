#include "app/calc/Batch.h"

namespace quillet {

void Batch::Clear() {
  asFiles = {};
  sLines.clear();
  bOverlong = false;
  sFailure.clear();
  sResults.clear();
  aoComplaints.clear();
  nAuctions = 0;
  bFailed = false;
}

}  // namespace quillet
