// A copy of an auction to try things on.
#pragma once

#include "answers/Change.h"
#include "engine/clsCalculate.h"

namespace quillet {

/// The copy is made model by model, so that it gives exactly the auction's figures: the text keeps
/// only seven digits of an amount, and no price that the schedule has lost since. The auction must
/// live as long as the trial, and isn't changed.
class Trial {
 public:
  explicit Trial(const clsCalculate& oAuction) : m_oAuction(oAuction) { Reset(); }

  /// The auction with a change, calculated; valid until the next call.
  const clsCalculate& With(const Change& oChange);

  /// The latest one at another price, calculated.
  const clsCalculate& AtPrice(Cents nPrice);

  [[nodiscard]] const clsCalculate& Latest() const { return m_oCopy; }

 private:
  void Reset();

  const clsCalculate& m_oAuction;
  clsCalculate m_oCopy;
};

}  // namespace quillet
