// Puts out the results of batches, and what there is to complain about in them.
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
  /// Prints what stands before the first result of such a report.
  explicit Printer(const Report& oReport);

  /// The next batch; an OutputFailure if its results can't be written.
  void Print(const Batch& oBatch);

  [[nodiscard]] Status HowItWent() const { return m_eStatus; }

 private:
  void Write(std::string_view sResults);

  std::size_t m_nToSkip;  ///< of the next results
  Progress m_oProgress;
  Status m_eStatus = kEveryAuctionCalculated;
};

}  // namespace quillet
