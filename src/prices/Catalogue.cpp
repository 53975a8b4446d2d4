#include "prices/Catalogue.h"

#include <array>
#include <charconv>

#include "base/text.h"

namespace quillet {
namespace {

enum Regions : unsigned { kUk = 1, kUs = 2, kBoth = 3 };

struct Row {
  unsigned nRegions;
  KeyKind eKind;
  std::string_view sPattern;  ///< "{a,b}" means a or b, and the name of a set means the set
  std::int32_t nPercentTier = 0;
};

constexpr std::int32_t kEveryTier = CatalogueKey::kEveryTier;

struct Set {
  std::string_view sName;
  std::string_view sChoices;
};

constexpr std::array<Set, 4> kSets = {{
    {"shop", ",30,60,90,120,GTC"},
    {"vehicle", "Passenger,Motorcycle,Powersports,PocketBikes,Other"},
    {"listing", "Motor,MotorParts,MotorPoketBikes,RealEstate"},
    {"feature",
     "HomePage,HomePageMulti,Plus,Highlight,ItemSubtitle,Bold,Gallery,FeaturedGallery,BuyItNow,"
     "ScheduledListings,ListIn2Categories,ListingDesigner,SlideShow,SupersizePictures,ExtraImage,"
     "FeaturedInSearch,10DayDuration,GiftServices,PreviewPicture,Border,ListingItem,CarAd"},
}};

constexpr std::array<Row, 39> kRows = {{
    {kBoth, KeyKind::OptionalText, "ScheduleName"},
    {kBoth, KeyKind::Text, "Currency{Symbol,Format}"},
    {kBoth, KeyKind::Number, "LocalTax"},
    {kBoth, KeyKind::LotTiers, "Opening"},
    {kBoth, KeyKind::Number, "ShopInsertion{Fee,Surcharge}{shop}"},
    {kUk, KeyKind::Number, "AuctionType{Motor,RealEstate}"},
    {kUs, KeyKind::Number, "{AuctionType,TransactionFee}Motor{vehicle}"},
    {kUs, KeyKind::Number, "AuctionTypeRealEstate{Timeshare,Other}{Auction10,Auction30,Ad30,Ad90}"},
    {kUs, KeyKind::Number, "AuctionTypeBusiness"},
    {kUk, KeyKind::PriceTiers, "Reserve", 2},
    {kUs, KeyKind::PriceTiers, "Reserve{,RealEstate}", 3},
    {kUs, KeyKind::Number, "Reserve{,RealEstate}Max"},
    {kUk, KeyKind::Number, "Reserve{Motor,RealEstate}"},
    {kUs, KeyKind::Number,
     "ReserveMotor{Passenger,Motorbike,Powersports,PocketBikes,Other}"},  // Motorbike: only here
    {kUs, KeyKind::Number, "ReserveBusiness"},
    {kBoth, KeyKind::ProgressiveTiers, "{,Shop}Final", kEveryTier},
    {kUk, KeyKind::PriceTiers, "FinalMotor", 2},
    {kUk, KeyKind::Number, "FinalRealEstate"},
    {kUs, KeyKind::Number, "FinalRealEstate{Timeshare,Other}"},
    {kUs, KeyKind::Number, "FinalBusiness{,Max}"},
    {kBoth, KeyKind::Number, "Feature{feature}{shop}"},
    {kUs, KeyKind::Number, "Feature{listing}{feature}{shop}"},
    {kUs, KeyKind::PriceTiers, "FeatureBuyItNow"},
    {kUs, KeyKind::PriceTiers, "Feature{listing}BuyItNow"},
    {kBoth, KeyKind::PictureTiers, "FeaturePicturePack{shop}"},
    {kUs, KeyKind::PictureTiers, "Feature{listing}PicturePack{shop}"},
    {kBoth, KeyKind::PictureTiers, "PicturePack"},
    {kBoth, KeyKind::Number, "PersonalRatePounds{%,Fixed}"},
    {kBoth, KeyKind::Text, "BusinessRateBand{1,2,3,4,5}Name"},
    {kBoth, KeyKind::BandNumber, "BusinessRateBand{1,2,3,4,5}Value"},
    {kBoth, KeyKind::BandTiers, "BusinessRatePounds%", kEveryTier},
    {kBoth, KeyKind::BandTiers, "BusinessRatePoundsFixed"},
    {kBoth, KeyKind::Text, "UsePostTitle"},
    {kBoth, KeyKind::WeightTiers, "{FirstClass,SecondClass,Parcel}"},
    {kBoth, KeyKind::OverWeightNumber, "FirstClassOverWeightStep{,Value}"},
    {kBoth, KeyKind::Text, "InsuranceBandName{1,2,3,4}"},
    {kBoth, KeyKind::Number, "InsuranceBandValue{1,2,3,4}"},
    {kBoth, KeyKind::Number, "RecordedSignedFor"},
    {kBoth, KeyKind::Number, "ProofOfDelivery"},
}};

std::string_view ChoicesOf(std::string_view sBraced) {
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
      m_aoKeys.push_back({sName, oRow.eKind, oRow.nPercentTier});
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
