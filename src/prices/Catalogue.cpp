#include "prices/Catalogue.h"

#include <array>
#include <charconv>

#include "base/text.h"
#include "prices/FeaturePrices.h"

namespace quillet {
namespace {

enum Regions : unsigned { kUk = 1, kUs = 2, kBoth = 3 };
enum Models : unsigned {
  k2007 = static_cast<unsigned>(FeeModel::Of2007),
  kToday = static_cast<unsigned>(FeeModel::OfToday),
  kAlways = k2007 | kToday,
};

struct Row {
  unsigned nRegions;
  unsigned nModels;
  KeyKind eKind;
  std::string_view sPattern;  ///< "{a,b}" means a or b, and the name of a set means the set
  std::int32_t nPercentTier = 0;
};

constexpr std::int32_t kEveryTier = CatalogueKey::kEveryTier;

struct Set {
  std::string_view sName;
  std::string_view sChoices;
};

constexpr std::array<Set, 3> kSets = {{
    {"shop", ",30,60,90,120,GTC"},
    {"vehicle", "Passenger,Motorcycle,Powersports,PocketBikes,Other"},
    {"listing", "Motor,MotorParts,MotorPoketBikes,RealEstate"},
}};

constexpr std::array<Row, 58> kRows = {{
    {kBoth, kAlways, KeyKind::OptionalText, "ScheduleName"},
    {kBoth, kAlways, KeyKind::Text, "Currency{Symbol,Format}"},
    {kBoth, kAlways, KeyKind::Number, "LocalTax"},
    {kBoth, kAlways, KeyKind::LotTiers, "Opening"},
    {kBoth, k2007, KeyKind::Number, "ShopInsertion{Fee,Surcharge}{shop}"},
    {kUk, k2007, KeyKind::Number, "AuctionType{Motor,RealEstate}"},
    {kUs, k2007, KeyKind::Number, "{AuctionType,TransactionFee}Motor{vehicle}"},
    {kUs, k2007, KeyKind::Number,
     "AuctionTypeRealEstate{Timeshare,Other}{Auction10,Auction30,Ad30,Ad90}"},
    {kUs, k2007, KeyKind::Number, "AuctionTypeBusiness"},
    {kUk, kAlways, KeyKind::PriceTiers, "Reserve", 2},
    {kUs, k2007, KeyKind::PriceTiers, "Reserve{,RealEstate}", 3},
    {kUs, k2007, KeyKind::Number, "Reserve{,RealEstate}Max"},
    {kUk, k2007, KeyKind::Number, "Reserve{Motor,RealEstate}"},
    {kUs, k2007, KeyKind::Number,
     "ReserveMotor{Passenger,Motorbike,Powersports,PocketBikes,Other}"},  // Motorbike: only here
    {kUs, k2007, KeyKind::Number, "ReserveBusiness"},
    {kBoth, k2007, KeyKind::ProgressiveTiers, "{,Shop}Final", kEveryTier},
    {kUk, k2007, KeyKind::PriceTiers, "FinalMotor", 2},
    {kUk, k2007, KeyKind::Number, "FinalRealEstate"},
    {kUs, k2007, KeyKind::Number, "FinalRealEstate{Timeshare,Other}"},
    {kUs, k2007, KeyKind::Number, "FinalBusiness{,Max}"},
    {kBoth, k2007, KeyKind::Number, "Feature{feature}{shop}"},
    {kUs, k2007, KeyKind::Number, "Feature{listing}{feature}{shop}"},
    {kUs, k2007, KeyKind::PriceTiers, "FeatureBuyItNow"},
    {kUs, k2007, KeyKind::PriceTiers, "Feature{listing}BuyItNow"},
    {kBoth, k2007, KeyKind::PictureTiers, "FeaturePicturePack{shop}"},
    {kUs, k2007, KeyKind::PictureTiers, "Feature{listing}PicturePack{shop}"},
    {kBoth, kAlways, KeyKind::PictureTiers, "PicturePack"},
    {kBoth, kAlways, KeyKind::Number, "PersonalRatePounds{%,Fixed}"},
    {kBoth, kAlways, KeyKind::Text, "BusinessRateBand{1,2,3,4,5}Name"},
    {kBoth, kAlways, KeyKind::BandNumber, "BusinessRateBand{1,2,3,4,5}Value"},
    {kBoth, kAlways, KeyKind::BandTiers, "BusinessRatePounds%", kEveryTier},
    {kBoth, kAlways, KeyKind::BandTiers, "BusinessRatePoundsFixed"},
    {kBoth, kAlways, KeyKind::Text, "UsePostTitle"},
    {kBoth, kAlways, KeyKind::WeightTiers, "{FirstClass,SecondClass,Parcel}"},
    {kBoth, kAlways, KeyKind::OverWeightNumber, "FirstClassOverWeightStep{,Value}"},
    {kBoth, kAlways, KeyKind::Text, "InsuranceBandName{1,2,3,4}"},
    {kBoth, kAlways, KeyKind::Number, "InsuranceBandValue{1,2,3,4}"},
    {kBoth, kAlways, KeyKind::Number, "RecordedSignedFor"},
    {kBoth, kAlways, KeyKind::Number, "ProofOfDelivery"},
    {kBoth, kAlways, KeyKind::OptionalText, "FeeModel"},
    {kBoth, kToday, KeyKind::Number, "FinalBase"},
    {kBoth, kToday, KeyKind::Number, "CategoryCount"},
    {kBoth, kToday, KeyKind::ProgressiveTiers, "OrderFee"},
    {kBoth, kToday, KeyKind::Number, "AlwaysPercent"},
    {kBoth, kToday, KeyKind::Number, "ExtraPercentCount"},
    {kBoth, kToday, KeyKind::Number, "FeeTax"},
    {kBoth, kToday, KeyKind::Text, "{FeeTaxName,ReserveWhenSold}"},
    {kUs, kToday, KeyKind::PriceTiers, "Reserve", 3},
    {kUs, kToday, KeyKind::Number, "ReserveMax"},
    {kUk, kToday, KeyKind::OptionalNumber, "{AuctionType,Reserve}{Motor,RealEstate}"},
    {kUk, kToday, KeyKind::OptionalNumber, "FinalRealEstate"},
    {kUs, kToday, KeyKind::OptionalNumber, "{AuctionType,TransactionFee}Motor{vehicle}"},
    {kUs, kToday, KeyKind::OptionalNumber,
     "AuctionTypeRealEstate{Timeshare,Other}{Auction10,Auction30,Ad30,Ad90}"},
    {kUs, kToday, KeyKind::OptionalNumber, "FinalRealEstate{Timeshare,Other}"},
    {kUs, kToday, KeyKind::OptionalNumber, "ReserveRealEstateMax"},
    {kBoth, kToday, KeyKind::Number, "Feature{feature}"},
    {kBoth, kToday, KeyKind::OptionalNumber, "FixedFeature{feature}"},
    {kBoth, kToday, KeyKind::PictureTiers, "FeaturePicturePack"},
}};

/// As in the sets.
std::string FeatureChoices() {
  std::string sChoices;
  for (const KeyText& oKey : kFeatureKeys) {
    sChoices.append(",").append(oKey.Text());
  }
  return sChoices.substr(1);
}

std::string_view ChoicesOf(std::string_view sBraced) {
  static const std::string sFeatures = FeatureChoices();
  if (sBraced == "feature") {
    return sFeatures;
  }
  for (const Set& oSet : kSets) {
    if (oSet.sName == sBraced) {
      return oSet.sChoices;
    }
  }
  return sBraced;
}

/// Calls `fnName` with `sBefore` followed by each text that the pattern stands for.
template <typename Function>
void Expand(const std::string& sBefore, std::string_view sPattern, const Function& fnName) {
  const std::size_t nOpen = sPattern.find('{');
  const std::string sStart = sBefore + std::string(sPattern.substr(0, nOpen));
  if (nOpen == std::string_view::npos) {
    fnName(sStart);
    return;
  }
  const std::size_t nClose = sPattern.find('}', nOpen);
  std::string_view sChoices = ChoicesOf(sPattern.substr(nOpen + 1, nClose - nOpen - 1));
  while (true) {
    const std::size_t nComma = sChoices.find(',');
    Expand(sStart + std::string(sChoices.substr(0, nComma)), sPattern.substr(nClose + 1), fnName);
    if (nComma == std::string_view::npos) {
      break;
    }
    sChoices.remove_prefix(nComma + 1);
  }
}

/// True, and the suffix is removed, if the text ends with it.
bool TakeSuffix(std::string_view& sText, std::string_view sSuffix) {
  const bool bEnds = sText.ends_with(sSuffix);
  sText.remove_suffix(bEnds ? sSuffix.size() : 0);
  return bEnds;
}

}  // namespace

const Catalogue& Catalogue::Of(std::int32_t nRegion) {
  static const Catalogue oUk(0);
  static const Catalogue oUs(1);
  return nRegion == 1 ? oUs : oUk;
}

Catalogue::Catalogue(std::int32_t nRegion) {
  for (const Row& oRow : kRows) {
    if ((oRow.nRegions & (nRegion == 1 ? kUs : kUk)) == 0) {
      continue;
    }
    Expand("", oRow.sPattern, [&](const std::string& sName) {
      m_aoKeys.push_back({sName, oRow.eKind, oRow.nPercentTier, oRow.nModels});
      (m_aoKeys.back().IsTable() ? m_asTables : m_asPlain).insert(UpperCase(sName));
    });
  }
}

bool Catalogue::Holds(std::string_view sKey) const {
  const std::string sUpper = UpperCase(std::string(sKey));
  if (m_asPlain.contains(sUpper)) {
    return true;
  }
  std::string_view sTable = sUpper;
  if (!TakeSuffix(sTable, "RANGES")) {
    sTable = sTable.substr(0, sTable.find_last_not_of("0123456789") + 1);
    if (!TakeSuffix(sTable, "RANGESTART") && !TakeSuffix(sTable, "RANGEEND") &&
        !TakeSuffix(sTable, "RANGEVALUE")) {
      return false;
    }
  }
  return m_asTables.contains(sTable);
}

bool Catalogue::HoldsAnyOf(const PriceTable& oTable) const {
  std::size_t nEntry = 0;
  while (nEntry < oTable.Size() && !Holds(oTable.KeyAt(nEntry))) {
    ++nEntry;
  }
  return nEntry < oTable.Size();
}

std::int32_t TierOfKey(std::string_view sKey, std::string_view sTable) {
  if (!EqualIgnoringCase(sKey.substr(0, sTable.size()), sTable)) {
    return 0;
  }
  sKey.remove_prefix(sTable.size());
  for (const KeyText& oWord : kTierWords) {
    const std::string_view sWord = oWord.Text();
    if (!EqualIgnoringCase(sKey.substr(0, sWord.size()), sWord)) {
      continue;
    }
    const std::string_view sNumber = sKey.substr(sWord.size());
    std::int32_t nTier = 0;
    const auto oResult = std::from_chars(sNumber.data(), sNumber.data() + sNumber.size(), nTier);
    const bool bPlain = oResult.ec == std::errc{} &&
                        oResult.ptr == sNumber.data() + sNumber.size() && nTier > 0 &&
                        sNumber.front() != '0';
    return bPlain ? nTier : 0;
  }
  return 0;
}

}  // namespace quillet
