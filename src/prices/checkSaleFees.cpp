#include "prices/checkSaleFees.h"

#include <set>

#include "base/conversions.h"
#include "base/text.h"
#include "prices/SaleRates.h"
#include "prices/checkTiers.h"

namespace quillet {
namespace {

class SaleCheck {
 public:
  explicit SaleCheck(Schedule& oSchedule) : m_oSchedule(oSchedule) {}

  void Run() {
    (void)AskCount("FinalBase", 1, 3);
    CheckSwitch("ReserveWhenSold");
    const std::int32_t nCategories = AskCount("CategoryCount", 1, kMostCategories);
    for (std::int32_t i = 1; i <= nCategories; ++i) {
      CheckCategory("Category" + std::to_string(i));
    }
    const std::int32_t nExtras = AskCount("ExtraPercentCount", 0, SaleRates::kMostExtras);
    for (std::int32_t i = 1; i <= nExtras; ++i) {
      const std::string sExtra = "ExtraPercent" + std::to_string(i);
      (void)AskNeeded(sExtra + "Name");
      (void)AskNeeded(sExtra + "Value");
      (void)AskNumber(m_oSchedule, sExtra + "Value");
    }
    CheckOptionalTable({"ShopOpening", KeyKind::LotTiers});
    CheckOptionalTable({"ShopOrderFee", KeyKind::ProgressiveTiers});
    CheckOptionalTable({"ReserveRealEstate", KeyKind::PriceTiers, 3});
    CheckOptionalTable({"FeatureItemSubtitle", KeyKind::PriceTiers});
    CheckOptionalTable({"FixedFeatureItemSubtitle", KeyKind::PriceTiers});
  }

 private:
  static constexpr std::int32_t kMostCategories = 999;

  const ScheduleEntry* AskNeeded(const std::string& sKey) {
    const ScheduleEntry* const pEntry = m_oSchedule.Ask(sKey);
    if (pEntry == nullptr) {
      m_oSchedule.ReportNoPrice(m_oSchedule.LastLine(), Quoted(sKey) + " is missing");
    }
    return pEntry;
  }

  /// 0 if it is missing, which the catalogue's check reports, or out of bounds.
  std::int32_t AskCount(const std::string& sKey, std::int32_t nLeast, std::int32_t nMost) {
    const ScheduleEntry* const pEntry = m_oSchedule.Ask(sKey);
    if (pEntry == nullptr) {
      return 0;
    }
    const std::int32_t nCount = ToInteger(pEntry->sValue).value_or(-1);
    if (nCount >= nLeast && nCount <= nMost) {
      return nCount;
    }
    m_oSchedule.ReportNoPrice(
        pEntry->nLine, Quoted(pEntry->sKey) + " isn't a number from " + std::to_string(nLeast) +
                           " to " + std::to_string(nMost) + ": " + Quoted(pEntry->sValue));
    return 0;
  }

  void CheckSwitch(const std::string& sKey) {
    const ScheduleEntry* const pEntry = m_oSchedule.Ask(sKey);
    if (pEntry != nullptr && !ToBoolean(pEntry->sValue)) {
      m_oSchedule.Report(pEntry->nLine, Quoted(pEntry->sKey) + " is neither True nor False: " +
                                            Quoted(pEntry->sValue));
    }
  }

  void CheckCategory(const std::string& sCategory) {
    (void)AskNeeded(sCategory + "Name");
    CheckSwitch(sCategory + "Whole");
    CheckSwitch(sCategory + "ByPrice");
    (void)AskNumber(m_oSchedule, sCategory + "Insertion");
    (void)AskNumber(m_oSchedule, sCategory + "FreeFrom");
    const ScheduleEntry* const pTable = AskNeeded(sCategory + "Tiers");
    if (pTable != nullptr && m_asChecked.insert(UpperCase(pTable->sValue)).second) {
      const std::string sTable = pTable->sValue;
      CheckTiers(m_oSchedule, RatesOf(sTable));
      CheckOptionalTable(RatesOf("Shop" + sTable));
    }
  }

  static CatalogueKey RatesOf(const std::string& sTable) {
    return {sTable, KeyKind::ProgressiveTiers, CatalogueKey::kEveryTier};
  }

  void CheckOptionalTable(const CatalogueKey& oTable) {
    if (m_oSchedule.Ask(oTable.sName + "Ranges") != nullptr) {
      CheckTiers(m_oSchedule, oTable);
    }
  }

  Schedule& m_oSchedule;
  std::set<std::string> m_asChecked;  ///< tables, in upper case
};

}  // namespace

FeeModel AskFeeModel(Schedule& oSchedule) {
  const ScheduleEntry* const pModel = oSchedule.Ask("FeeModel");
  const std::int32_t nModel = pModel != nullptr ? ToInteger(pModel->sValue).value_or(0) : 1;
  if (nModel != 1 && nModel != 2) {
    oSchedule.ReportNoPrice(
        pModel->nLine, Quoted(pModel->sKey) + " is neither 1 nor 2: " + Quoted(pModel->sValue));
  }
  return nModel == 2 ? FeeModel::OfToday : FeeModel::Of2007;
}

void CheckSaleFees(Schedule& oSchedule) {
  SaleCheck(oSchedule).Run();
}

}  // namespace quillet
