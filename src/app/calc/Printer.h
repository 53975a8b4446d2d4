// Prints the results of batches, and the complaints about them.
#pragma once

#include <cstddef>
#include <string_view>

#include "app/calc/Batch.h"
#include "app/calc/Progress.h"
#include "app/calc/Report.h"
#include "app/calc/Status.h"

namespace quillet {

class Printer {
 public:
  /// Prints the report's header.
  explicit Printer(const Report& oReport);

  /// Prints the next batch; throws an OutputFailure if its results can't be written.
  void Print(const Batch& oBatch);

  [[nodiscard]] Status HowItWent() const { return m_eStatus; }

 private:
  void Write(std::string_view sResults);

  std::size_t m_nToSkip;  ///< of the next results
  Progress m_oProgress;
  Status m_eStatus = kEveryAuctionCalculated;
};

}  // namespace quillet
