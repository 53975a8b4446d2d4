#include "answers/Alternatives.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "answers/Breakdown.h"
#include "answers/Trial.h"
#include "base/failure.h"
#include "base/regionControls.h"
#include "base/text.h"
#include "engine/featureNames.h"
#include "prices/money.h"

namespace quillet {
namespace {

struct Duration {
  std::int32_t eShop;
  const char* sOption;  ///< the control that a region may lack
  const char* sName;
};

constexpr std::array<Duration, 5> kDurations = {{
    {kShop30Days, "optShop30Days", "Shop inventory, 30 days"},
    {kShop60Days, "optShop60Days", "Shop inventory, 60 days"},
    {kShop90Days, "optShop90Days", "Shop inventory, 90 days"},
    {kShop120Days, "optShop120Days", "Shop inventory, 120 days"},
    {kShopGoodTillCancelled, "optShopGoodTillCancelled", "Shop inventory, good till cancelled"},
}};

constexpr std::array<const char*, 4> kAuctions = {
    "Standard auction", "Motor auction", "Real estate auction", "Business & industrial auction"};
constexpr const char* kFixedPrice = "Fixed price";
constexpr const char* kShop = "Shop inventory";

constexpr std::array<int, 4> kAdvertising = {0, 2, 5, 10};  // percent
constexpr std::array<int, 4> kPercentsLess = {5, 10, 15, 20};

std::string AuctionName(const clsAuctionType& oType) {
  const auto nKind = static_cast<std::size_t>(oType.m_eAuctionType);
  return nKind < kAuctions.size() ? kAuctions.at(nKind) : "Auction";
}

std::string ListingName(const clsAuctionType& oType) {
  if (oType.m_bShopInventory && oType.m_oSaleFees != nullptr) {
    return kShop;
  }
  if (oType.m_bShopInventory) {
    const auto* const pDuration =
        std::find_if(kDurations.begin(), kDurations.end(),
                     [&](const Duration& o) { return o.eShop == oType.m_eShopDuration; });
    return pDuration != kDurations.end() ? pDuration->sName : kShop;
  }
  return oType.m_bBuyItNowOnly ? kFixedPrice : AuctionName(oType);
}

class Collector {
 public:
  explicit Collector(const clsCalculate& oAuction) : m_oAuction(oAuction), m_oTrial(oAuction) {
    const clsCalculate& oAsItIs = m_oTrial.With(NoChange());
    m_bToday = oAsItIs.m_oAuctionType.m_oSaleFees != nullptr;
    m_bPaysSaleFees = oAsItIs.m_oAuctionType.HasPaidSaleFees();
    m_sAsItIs = ListingName(oAsItIs.m_oAuctionType);
    m_fProfitAsItIs = oAsItIs.m_fProfit;
    std::string sName = m_sAsItIs;
    sName.front() = LowerCase(sName.front());
    AddFrom(oAsItIs, AlternativeKind::AsItIs, "As it is: " + sName, NoChange());
  }

  void AddListings() {
    AddListing(AuctionName(m_oAuction.m_oAuctionType), ListAsAuction());
    AddListing(kFixedPrice, ListAtFixedPrice());
    if (m_oAuction.m_oAuctionType.m_eAuctionType == kAuctionStandard) {
      AddShop();
    }
    std::stable_sort(
        m_aoFound.begin(), m_aoFound.end(),
        [](const Alternative& a, const Alternative& b) { return a.fProfit > b.fProfit; });
  }

  void AddPayPal() {
    const bool bTaken = m_oAuction.m_oPayPal.m_bEnabled;
    if (m_bPaysSaleFees && !bTaken) {
      return;  // a sale on eBay doesn't go through it
    }
    Add(AlternativeKind::PayPal, bTaken ? "Without PayPal" : "With PayPal", TakePayPal(!bTaken));
  }

  void AddFeatures() {
    for (const FeatureName& oFeature : kFeatureNames) {
      if (m_oAuction.m_oSellingFeatures.HasFeature(oFeature.eBit)) {
        Add(AlternativeKind::Feature, std::string("Without ") + oFeature.sName,
            DropFeature(oFeature.eBit));
      }
    }
  }

  void AddAdvertising() {
    const double fPresent = m_oAuction.m_oSaleFees.m_oInputs.fAdvertising;
    for (const int nPercent : kAdvertising) {
      if (m_bPaysSaleFees && nPercent != fPresent) {
        Add(AlternativeKind::Advertising,
            nPercent == 0 ? "Without advertising"
                          : "With advertising of " + std::to_string(nPercent) + " %",
            AdvertiseAt(nPercent * 10));
      }
    }
  }

  void AddOffers() {
    const Single fPrice = m_oAuction.m_oOutlay.m_fEstimatedEndPrice;
    if (m_oAuction.m_oOutlay.m_lQuantity < 1 || fPrice <= 0 || fPrice > PriceOf(kHighestPrice)) {
      return;
    }
    const std::int64_t nPrice = std::llround(fPrice * 100);
    for (const int nPercent : kPercentsLess) {
      const auto nOffer = static_cast<Cents>((nPrice * (100 - nPercent) + 50) / 100);
      Add(AlternativeKind::Offer,
          "Offer of " + std::to_string(nPercent) + " % less: " + FormatMoney(PriceOf(nOffer)),
          SellFor(nOffer));
    }
  }

  void AddUnsold() {
    if (m_oAuction.m_oOutlay.m_lQuantity != 0) {
      Add(AlternativeKind::Unsold, "Unsold", Sell(0));
    }
  }

  std::vector<Alternative> Take() { return std::move(m_aoFound); }

 private:
  void AddShop() {
    if (m_bToday) {
      AddListing(kShop, ListInShop(kShop30Days));  // all durations cost the same
      return;
    }
    for (const Duration& oDuration : kDurations) {
      if (RegionAllowsControl(oDuration.sOption)) {
        AddListing(oDuration.sName, ListInShop(oDuration.eShop));
      }
    }
  }

  void AddListing(const std::string& sName, const Change& oChange) {
    if (sName != m_sAsItIs) {
      Add(AlternativeKind::Listing, sName, oChange);
    }
  }

  void Add(AlternativeKind eKind, const std::string& sName, const Change& oChange) {
    IgnoreFailure([&] {
      const clsCalculate& oOther = m_oTrial.With(oChange);
      if (eKind != AlternativeKind::Listing || HasAllFeatures(oOther.m_oSellingFeatures)) {
        AddFrom(oOther, eKind, sName, oChange);
      }
    });
  }

  [[nodiscard]] bool HasAllFeatures(const clsSellingFeatures& oFeatures) const {
    return oFeatures.HasFeature(m_oAuction.m_oSellingFeatures.Features()) &&
           oFeatures.HasOnlyWhatIsOnOffer();
  }

  void AddFrom(const clsCalculate& oOther, AlternativeKind eKind, std::string sName,
               const Change& oChange) {
    m_aoFound.push_back({eKind, std::move(sName), oChange, BreakDown(oOther).fFees,
                         oOther.m_fProfit, oOther.m_fProfit - m_fProfitAsItIs});
  }

  const clsCalculate& m_oAuction;
  Trial m_oTrial;
  std::string m_sAsItIs;
  bool m_bToday = false;
  bool m_bPaysSaleFees = false;
  Single m_fProfitAsItIs;
  std::vector<Alternative> m_aoFound;
};

}  // namespace

std::vector<Alternative> Alternatives(const clsCalculate& oAuction) {
  Collector oCollector(oAuction);
  oCollector.AddListings();
  oCollector.AddPayPal();
  oCollector.AddFeatures();
  oCollector.AddAdvertising();
  oCollector.AddOffers();
  oCollector.AddUnsold();
  return oCollector.Take();
}

}  // namespace quillet
