#include "prices/replacement.h"

#include "base/basCommon.h"
#include "base/failure.h"
#include "base/region.h"
#include "prices/Catalogue.h"

namespace quillet {
namespace {

void RequireKey(const clsPrices& oPrices, const std::string& sKey) {
  if (!oPrices.Table().Find(sKey)) {
    throw Failure(FailureNumber::TypeMismatch, "Its \"" + sKey + "\" is missing.");
  }
}

}  // namespace

void RequireFees(const clsPrices& oPrices) {
  if (!Catalogue::Of(RegionCode()).HoldsAnyOf(oPrices.Table())) {
    throw Failure(FailureNumber::TypeMismatch, "It holds no fees for " + EditionName() + ".");
  }
}

void RequireReplacement(const clsPrices& oPrices, const std::string& sPresent) {
  RequireFees(oPrices);
  clsPrices oPresent;
  IgnoreFailure([&] { oPresent.LoadFile(sPresent); });  // an unreadable file has nothing to lose
  const SaleRates* const pSale = oPrices.Sale();
  const FeeModel eModel = pSale != nullptr ? FeeModel::OfToday : FeeModel::Of2007;
  for (const CatalogueKey& oKey : Catalogue::Of(RegionCode()).Keys()) {
    const std::string sCount = oKey.sName + std::string(kCountWord.Text());
    if (oKey.IsTable() && oKey.IsOf(eModel) && oPresent.Table().Find(sCount)) {
      RequireKey(oPrices, sCount);
    }
  }
  if (pSale != nullptr) {
    for (const SaleCategory& oCategory : pSale->aoCategories) {
      RequireKey(oPrices, oCategory.oRates.oPlain.sCountKey);
    }
  }
}

}  // namespace quillet
