// The sections and the summary of one view, and the routine by which a change reaches them.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "engine/clsCalculate.h"
#include "sections/ctlAuctionType.h"
#include "sections/ctlOutlay.h"
#include "sections/ctlPayPal.h"
#include "sections/ctlPostage.h"
#include "sections/ctlSaleFees.h"
#include "sections/ctlSellingCosts.h"
#include "sections/ctlSellingFeatures.h"

namespace quillet {

class SectionSet {
 public:
  /// Makes the controls as children of the view, which owns them and must outlive the set.
  /// Each calculation calls `fnChanged` with whether the auction is dirty, and `fnShown` when it
  /// has been shown or has failed.
  SectionSet(QWidget& oView, std::function<void(bool bDirty)> fnChanged,
             std::function<void()> fnShown);

  // Both calculate an auction and show it in the summary. A call from within does nothing; a
  // Failure ends the routine silently.

  /// Shows an auction: with `bUpdateControlDisplays` its models are pushed into the sections, which
  /// changes neither it nor the auction shown before, nor their flags. Both must outlive the set.
  void RefreshSums(clsCalculate& oDocument, bool bUpdateControlDisplays);

  /// Shows the auction after its inputs were changed elsewhere than in its sections. With `bReact`
  /// the sections react as to a change in one of them.
  void ShowChanged(clsCalculate& oDocument, bool bReact);

  /// The user has changed the auction shown: its models are pushed into the sections once, so that
  /// they react, and features that it can't have any more are removed from it.
  void FollowChange(clsCalculate& oDocument);

  [[nodiscard]] bool IsRefreshing() const { return m_bRefreshing; }

  /// Another fee schedule may be in use: drops everything taken from the old one, and has the new
  /// one's sections on view.
  void FollowSchedule();

  /// The sections on view: the sale fees only with a schedule of today's fees.
  [[nodiscard]] std::vector<SectionPanel*> Sections() const;
  [[nodiscard]] bool IsOnView(const SectionPanel& oSection) const;

  /// Outlay, sale fees, selling features, auction type, PayPal, postage.
  [[nodiscard]] std::array<SectionPanel*, 6> AllSections() const;

  ctlSellingCosts& ctlSellingCostsSection;
  ctlOutlay& ctlOutlaySection;
  ctlSaleFees& ctlSaleFeesSection;
  ctlSellingFeatures& ctlSellingFeaturesSection;
  ctlAuctionType& ctlAuctionTypeSection;
  ctlPayPal& ctlPayPalSection;
  ctlPostage& ctlPostageSection;

 private:
  using Push = void (SectionSet::*)(clsCalculate& oDocument);

  void Refresh(clsCalculate& oDocument, Push pPush);
  void ShowAndPush(clsCalculate& oDocument, Push pPush);
  void ShowSums(clsCalculate& oDocument);
  void BringOnView(clsCalculate& oDocument);
  void PushChange(clsCalculate& oDocument);
  void PushModels(clsCalculate& oDocument);
  void ShowKeptInsurance(clsCalculate& oDocument);

  std::function<void(bool)> m_fnChanged;
  std::function<void()> m_fnShown;
  bool m_bRefreshing = false;
  bool m_bFeesOfToday;  ///< of the latest schedule that was followed
};

}  // namespace quillet
