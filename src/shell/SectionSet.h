// The five sections and the summary of one view, and the routine by which a change reaches them.
#pragma once

#include <array>
#include <functional>

#include "engine/clsCalculate.h"
#include "sections/ctlAuctionType.h"
#include "sections/ctlOutlay.h"
#include "sections/ctlPayPal.h"
#include "sections/ctlPostage.h"
#include "sections/ctlSellingCosts.h"
#include "sections/ctlSellingFeatures.h"

namespace quillet {

class SectionSet {
 public:
  /// Makes the controls as children of the view, which owns them and must outlive the set.
  explicit SectionSet(QWidget& oView);

  /// Calculates an auction and shows it in the summary, tells `fnChanged` whether it is dirty, and
  /// with `bUpdateControlDisplays` pushes its models into the sections; that alone never makes the
  /// auction dirty. A call from within does nothing; a Failure ends the routine silently.
  void RefreshSums(clsCalculate& oDocument, bool bUpdateControlDisplays,
                   const std::function<void(bool)>& fnChanged);

  [[nodiscard]] bool IsRefreshing() const { return m_bRefreshing; }

  /// Outlay, selling features, auction type, PayPal, postage.
  [[nodiscard]] std::array<SectionPanel*, 5> Sections() const;

  ctlSellingCosts& ctlSellingCostsSection;
  ctlOutlay& ctlOutlaySection;
  ctlSellingFeatures& ctlSellingFeaturesSection;
  ctlAuctionType& ctlAuctionTypeSection;
  ctlPayPal& ctlPayPalSection;
  ctlPostage& ctlPostageSection;

 private:
  void PushModels(clsCalculate& oDocument);

  bool m_bRefreshing = false;
};

}  // namespace quillet
