// An auction as it stands, kept from what pushing it into sections may write into it.
#pragma once

#include <string>

#include "engine/clsCalculate.h"

namespace quillet {

class KeptAuction {
 public:
  /// Copies the models: the text alone has seven digits of an amount. `oAuction` must outlive it.
  explicit KeptAuction(clsCalculate& oAuction);

  /// Whether the auction's text is what it was.
  [[nodiscard]] bool IsUnchanged() const;

  /// Puts the models back, with their flags and what their latest calculation has left in them.
  void PutBack();

 private:
  clsCalculate& m_oAuction;
  // They refer to the models of the auction that they are put back into, never to one another.
  clsAuctionType m_oAuctionType;
  clsOutlay m_oOutlay;
  clsPayPal m_oPayPal;
  clsSellingFeatures m_oSellingFeatures;
  clsPostage m_oPostage;
  std::string m_sText;
};

}  // namespace quillet
