#include "prices/SaleRates.h"

#include <algorithm>
#include <cmath>

#include "base/conversions.h"
#include "base/failure.h"
#include "prices/clsPriceRange.h"

namespace quillet {
namespace {

constexpr std::int16_t kModelOfToday = 2;

class Reader {
 public:
  explicit Reader(const PriceTable& oTable) : m_oTable(oTable) {}

  [[nodiscard]] SaleRates Read() const {
    SaleRates oRates;
    ReadCategories(oRates);
    ReadExtras(oRates);
    oRates.oOrderFee = TablesOf("OrderFee", FineAmountOf);
    const std::int32_t nBase = Count("FinalBase");
    oRates.bWithPostage = nBase >= 2;
    oRates.bWithTax = nBase >= 3;
    oRates.nAlways = RateOf(Number("AlwaysPercent").value_or(0));
    oRates.nFeeTax = RateOf(Number("FeeTax").value_or(0));
    oRates.sFeeTaxName = Text("FeeTaxName");
    oRates.bReserveWhenSold = Switch("ReserveWhenSold");
    return oRates;
  }

  /// A whole number; 0 if the text isn't one.
  [[nodiscard]] std::int16_t Count(const KeyText& oKey) const {
    return ToInteger(Text(oKey)).value_or(0);
  }

 private:
  using Value = std::int64_t (*)(double fNumber);

  [[nodiscard]] std::string_view Text(const KeyText& oKey) const {
    return m_oTable.Find(oKey).value_or(std::string_view{});
  }
  [[nodiscard]] std::optional<double> Number(const KeyText& oKey) const {
    return ToFileDouble(Text(oKey));
  }
  [[nodiscard]] bool Switch(const KeyText& oKey) const {
    return ToBoolean(Text(oKey)).value_or(false);
  }

  void ReadCategories(SaleRates& oRates) const {
    const std::int32_t nCount = Count("CategoryCount");
    for (std::int32_t i = 1; i <= nCount; ++i) {
      const PriceKey oKey = PriceKey("Category").Append(i);
      const auto fnKey = [&](const KeyText& oWord) { return PriceKey(oKey).Append(oWord); };
      const std::string_view sTable = Text(fnKey("Tiers"));
      if (sTable.empty()) {
        return;
      }
      oRates.aoCategories.push_back({.sName = std::string(Text(fnKey("Name"))),
                                     .oRates = TablesOf(sTable, RateOf),
                                     .bWhole = Switch(fnKey("Whole")),
                                     .bByPrice = Switch(fnKey("ByPrice")),
                                     .fInsertion = m_oTable.FindNumber(fnKey("Insertion")),
                                     .fFreeFrom = m_oTable.FindNumber(fnKey("FreeFrom"))});
    }
  }

  void ReadExtras(SaleRates& oRates) const {
    const std::int32_t nCount = std::min(Count("ExtraPercentCount"), SaleRates::kMostExtras);
    for (std::int32_t i = 1; i <= nCount; ++i) {
      const PriceKey oKey = PriceKey("ExtraPercent").Append(i);
      oRates.aoExtras.push_back({std::string(Text(PriceKey(oKey).Append("Name"))),
                                 RateOf(Number(PriceKey(oKey).Append("Value")).value_or(0))});
    }
  }

  [[nodiscard]] SaleTables TablesOf(std::string_view sName, Value fnValue) const {
    return {TableOf(PriceKey(sName), fnValue), TableOf(PriceKey("Shop").Append(sName), fnValue)};
  }

  [[nodiscard]] SaleTable TableOf(const PriceKey& oName, Value fnValue) const {
    const PriceKey oCountKey = PriceKey(oName).Append(kCountWord);
    const auto nCount = ToInteger(Text(oCountKey));
    SaleTable oTable{std::string(oCountKey.Text()), nCount.has_value(), {}};
    for (std::int32_t nTier = 1; nTier <= nCount.value_or(0); ++nTier) {
      const auto fnNumber = [&](TierPart ePart) {
        return Number(
            PriceKey(oName).Append(kTierWords[static_cast<std::size_t>(ePart)]).Append(nTier));
      };
      const auto fStart = fnNumber(TierPart::Start);
      const auto fEnd = fnNumber(TierPart::End);
      const auto fTierValue = fnNumber(TierPart::Value);
      if (!fStart || !fEnd || !fTierValue) {
        break;
      }
      oTable.aoTiers.push_back(
          {FineAmountOf(*fStart),
           *fEnd == clsPriceRange::kNoUpperLimit ? SaleTier::kNoUpperLimit : FineAmountOf(*fEnd),
           fnValue(*fTierValue)});
    }
    return oTable;
  }

  const PriceTable& m_oTable;
};

std::int64_t Scaled(double fValue, double fLimit, double fScale) {
  return std::llround(std::clamp(fValue, -fLimit, fLimit) * fScale);
}

}  // namespace

Rate RateOf(double fPercent) {
  return Scaled(fPercent, 1e3, 1e4);
}

FineAmount FineAmountOf(double fAmount) {
  return Scaled(fAmount, 1e9, 1e8);
}

const SaleTable& SaleTables::For(bool bShop) const {
  const SaleTable& oTable = bShop && oShop.bThere ? oShop : oPlain;
  if (!oTable.bThere) {
    throw Failure(FailureNumber::TypeMismatch,
                  "The fee schedule has no \"" + oTable.sCountKey + "\".");
  }
  return oTable;
}

const SaleCategory* SaleRates::Category(std::int32_t nCategory) const {
  const auto nAt = static_cast<std::size_t>(nCategory) - 1;
  return nCategory > 0 && nAt < aoCategories.size() ? &aoCategories[nAt] : nullptr;
}

std::optional<SaleRates> ReadSaleRates(const PriceTable& oTable) {
  const Reader oReader(oTable);
  return oReader.Count("FeeModel") == kModelOfToday ? std::optional(oReader.Read()) : std::nullopt;
}

}  // namespace quillet
