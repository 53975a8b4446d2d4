#include "answers/Change.h"

namespace quillet {
namespace {

/// Fixed price and shop exclude each other, and without a shop there is no duration.
void SetListing(clsAuctionType& oType, bool bFixedPrice, std::int32_t eShopDuration) {
  oType.m_bBuyItNowOnly = bFixedPrice;
  oType.m_bShopInventory = eShopDuration != kShopNone;
  oType.m_eShopDuration = eShopDuration;
  oType.m_bDirty = true;
}

}  // namespace

Change NoChange() {
  return {[](clsCalculate&, std::int32_t) {}};
}

Change SellFor(Cents nPrice) {
  return {[](clsCalculate& oAuction, std::int32_t nValue) {
            oAuction.m_oOutlay.m_fEstimatedEndPrice = PriceOf(nValue);
            oAuction.m_oOutlay.m_bDirty = true;
          },
          nPrice};
}

Change Sell(std::int32_t lQuantity) {
  return {[](clsCalculate& oAuction, std::int32_t nValue) {
            oAuction.m_oOutlay.m_lQuantity = nValue;
            oAuction.m_oOutlay.m_bDirty = true;
          },
          lQuantity};
}

Change ListAsAuction() {
  return {[](clsCalculate& oAuction, std::int32_t) {
    SetListing(oAuction.m_oAuctionType, false, kShopNone);
  }};
}

Change ListAtFixedPrice() {
  return {[](clsCalculate& oAuction, std::int32_t) {
    SetListing(oAuction.m_oAuctionType, true, kShopNone);
  }};
}

Change ListInShop(std::int32_t eShopDuration) {
  return {[](clsCalculate& oAuction, std::int32_t nValue) {
            SetListing(oAuction.m_oAuctionType, false, nValue);
          },
          eShopDuration};
}

Change TakePayPal(bool bTake) {
  return {[](clsCalculate& oAuction, std::int32_t nValue) {
            oAuction.m_oPayPal.m_bEnabled = nValue != 0;
            oAuction.m_oPayPal.m_bDirty = true;
          },
          bTake ? 1 : 0};
}

Change DropFeature(std::int32_t lFeature) {
  return {[](clsCalculate& oAuction, std::int32_t nValue) {
            oAuction.m_oSellingFeatures.RemoveFeature(nValue);
            oAuction.m_oSellingFeatures.m_bDirty = true;
          },
          lFeature};
}

Change AdvertiseAt(std::int32_t nTenths) {
  return {[](clsCalculate& oAuction, std::int32_t nValue) {
            oAuction.m_oSaleFees.m_oInputs.fAdvertising = nValue / 10.0;
            oAuction.m_oSaleFees.m_bDirty = true;
          },
          nTenths};
}

}  // namespace quillet
