// One auction: its six models, and the totals that they add up to.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "engine/clsAuctionType.h"
#include "engine/clsOutlay.h"
#include "engine/clsPayPal.h"
#include "engine/clsPostage.h"
#include "engine/clsSaleFees.h"
#include "engine/clsSellingFeatures.h"

namespace quillet {

class clsCalculate {
 public:
  clsCalculate() = default;
  explicit clsCalculate(std::string sName) : m_sName(std::move(sName)) {}
  clsCalculate(const clsCalculate&) = delete;  // the models keep references to one another
  clsCalculate& operator=(const clsCalculate&) = delete;
  ~clsCalculate() = default;

  void SetDirty(bool bDirty);
  /// True if any model has changed since last saved.
  [[nodiscard]] bool IsDirty() const;

  /// Works out all totals. A Failure of a look-up passes through, and leaves the totals after it as
  /// they were.
  void DoCalc();

  /// How often the buyers pay: once for each item if they are sent individually, or else once.
  [[nodiscard]] std::int32_t Orders() const {
    return m_oPostage.m_bSendIndividually ? m_oOutlay.m_lQuantity : 1;
  }

  /// The whole text of the auction (docs/auction-file.md): appended to `sData`, or read from there.
  /// A missing section ends the reading with a message box; what was read before it stays, and the
  /// routine returns false.
  bool Serialize(std::string& sData, bool bSave);

  /// Copies another auction's inputs through its text: not its name, nor its totals.
  void Copy(clsCalculate& oSourceAuction);

  /// Resets all six models. The totals stay until the next DoCalc.
  void Clear();

  std::string m_sName;
  Single m_fProfit;         ///< income less all costs
  Single m_fSellCost;       ///< outlay and all selling fees
  Single m_fPostageCost;    ///< what the postage comes to
  Single m_fPostageProfit;  ///< profit on postage
  Single m_fFinalValueFee;  ///< final value fee shown
  Single m_fListingCost;    ///< listing fee
  Single m_fReserveCost;    ///< reserve fee
  Single m_fPayPayCost;     ///< PayPal fee
  clsAuctionType m_oAuctionType;
  clsOutlay m_oOutlay;
  clsPayPal m_oPayPal;
  clsSellingFeatures m_oSellingFeatures;
  clsPostage m_oPostage;
  clsSaleFees m_oSaleFees;

 private:
  void SerializeSaleFees(std::string& sData, bool bSave);
};

/// The auction on screen; made on first use and never replaced.
[[nodiscard]] clsCalculate& WorkingAuction();

/// The template for new auctions; made on first use and never replaced.
[[nodiscard]] clsCalculate& DefaultAuction();

}  // namespace quillet
