#include "prices/replacement.h"

#include "base/basCommon.h"
#include "base/failure.h"
#include "base/region.h"
#include "prices/Catalogue.h"

namespace quillet {

void RequireFees(const clsPrices& oPrices) {
  if (!Catalogue::Of(RegionCode()).HoldsAnyOf(oPrices.Table())) {
    throw Failure(FailureNumber::TypeMismatch, "It holds no fees for " + EditionName() + ".");
  }
}

void RequireReplacement(const clsPrices& oPrices, const std::string& sPresent) {
  RequireFees(oPrices);
  clsPrices oPresent;
  IgnoreFailure([&] { oPresent.LoadFile(sPresent); });  // an unreadable file has nothing to lose
  for (const CatalogueKey& oKey : Catalogue::Of(RegionCode()).Keys()) {
    const std::string sCount = oKey.sName + std::string(kCountWord.Text());
    if (oKey.IsTable() && oPresent.Table().Find(sCount) && !oPrices.Table().Find(sCount)) {
      throw Failure(FailureNumber::TypeMismatch, "Its \"" + sCount + "\" is missing.");
    }
  }
}

}  // namespace quillet
