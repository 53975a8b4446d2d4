#include "answers/Change.h"

#include "engine/featureNames.h"
#include "engine/featureOffers.h"

namespace quillet {
namespace {

/// What the sections ensure after any change: only real estate is binding, and what isn't on offer
/// doesn't stay chosen.
void Settle(clsCalculate& oAuction) {
  clsAuctionType& oType = oAuction.m_oAuctionType;
  oType.m_bRealEstateBinding &= oType.m_eAuctionType == kAuctionRealEstate;
  static_cast<void>(oAuction.m_oSellingFeatures.DoCalc(&oType, &oAuction.m_oOutlay));
  DropWhatIsNotOnOffer(oAuction.m_oSellingFeatures, oType);
}

/// `fnWrite` writes into the listing. Without a shop there is no duration.
template <typename Write>
Change OfListing(Write fnWrite) {
  return [fnWrite](clsCalculate& oAuction) {
    clsAuctionType& oType = oAuction.m_oAuctionType;
    fnWrite(oType);
    if (!oType.m_bShopInventory) {
      oType.m_eShopDuration = kShopNone;
    }
    oType.m_bDirty = true;
    Settle(oAuction);
  };
}

template <typename Write>
Change OfFeatures(Write fnWrite) {
  return [fnWrite](clsCalculate& oAuction) {
    fnWrite(oAuction.m_oSellingFeatures);
    oAuction.m_oSellingFeatures.m_bDirty = true;
    Settle(oAuction);
  };
}

}  // namespace

Change NoChange() {
  return [](clsCalculate&) {};
}

Change SellFor(Cents nPrice) {
  return [nPrice](clsCalculate& oAuction) {
    oAuction.m_oOutlay.m_fEstimatedEndPrice = PriceOf(nPrice);
    oAuction.m_oOutlay.m_bDirty = true;
  };
}

Change Sell(std::int32_t lQuantity) {
  return [lQuantity](clsCalculate& oAuction) {
    oAuction.m_oOutlay.m_lQuantity = lQuantity;
    oAuction.m_oOutlay.m_bDirty = true;
  };
}

Change TakePayPal(bool bTake) {
  return [bTake](clsCalculate& oAuction) {
    oAuction.m_oPayPal.m_bEnabled = bTake;
    oAuction.m_oPayPal.m_bDirty = true;
  };
}

Change ListAsAuction() {
  return OfListing([](clsAuctionType& oType) {
    oType.m_bBuyItNowOnly = false;
    oType.m_bShopInventory = false;
  });
}

Change ListAtFixedPrice() {
  return OfListing([](clsAuctionType& oType) {
    oType.m_bBuyItNowOnly = true;
    oType.m_bShopInventory = false;
  });
}

Change ListInShop(std::int32_t eShopDuration) {
  return OfListing([eShopDuration](clsAuctionType& oType) {
    oType.m_eAuctionType = kAuctionStandard;
    oType.m_bBuyItNowOnly = false;
    oType.m_bShopInventory = true;
    oType.m_eShopDuration = eShopDuration;
  });
}

Change ListAs(std::int32_t eAuctionType) {
  return OfListing([eAuctionType](clsAuctionType& oType) {
    oType.m_eAuctionType = eAuctionType;
    oType.m_bShopInventory &= eAuctionType == kAuctionStandard;
    if (eAuctionType == kAuctionMotor) {
      oType.TakeVehicleOnOffer();
    }
  });
}

Change ListWith(std::int32_t clsAuctionType::*lField, std::int32_t nCode) {
  return OfListing([lField, nCode](clsAuctionType& oType) { oType.*lField = nCode; });
}

Change BindTheBid(bool bBinding) {
  return OfListing([bBinding](clsAuctionType& oType) { oType.m_bRealEstateBinding = bBinding; });
}

Change DropFeature(std::int32_t lFeature) {
  return OfFeatures([lFeature](clsSellingFeatures& o) { o.RemoveFeature(lFeature); });
}

Change ChooseFeatures(std::int32_t lFeatures, std::int32_t lExtraPictures) {
  return OfFeatures([lFeatures, lExtraPictures](clsSellingFeatures& oFeatures) {
    for (const FeatureName& oFeature : kFeatureNames) {
      oFeatures.SetFeature(oFeature.eBit, (lFeatures & oFeature.eBit) != 0);
    }
    oFeatures.m_lExtraImageCount = lExtraPictures;
  });
}

Change AdvertiseAt(std::int32_t nTenths) {
  return [nTenths](clsCalculate& oAuction) {
    oAuction.m_oSaleFees.m_oInputs.fAdvertising = nTenths / 10.0;
    oAuction.m_oSaleFees.m_bDirty = true;
  };
}

}  // namespace quillet
