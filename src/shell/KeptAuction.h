// A copy of an auction, to undo what pushing it into sections may write into it.
#pragma once

#include <string>

#include "engine/clsCalculate.h"

namespace quillet {

class KeptAuction {
 public:
  /// Copies the models, since the text keeps only seven digits of an amount. `oAuction` must
  /// outlive this.
  explicit KeptAuction(clsCalculate& oAuction);

  /// Whether the auction's text is the same as before.
  [[nodiscard]] bool IsUnchanged() const;

  /// Restores the models, with their flags and the results of their latest calculation.
  void PutBack();

 private:
  clsCalculate& m_oAuction;
  // They refer to the models of the auction that they are put back into, never to one another.
  clsAuctionType m_oAuctionType;
  clsOutlay m_oOutlay;
  clsPayPal m_oPayPal;
  clsSellingFeatures m_oSellingFeatures;
  clsPostage m_oPostage;
  clsSaleFees m_oSaleFees;
  std::string m_sText;
};

}  // namespace quillet
