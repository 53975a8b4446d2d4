#include "prices/checkTiers.h"

#include <algorithm>
#include <cmath>

#include "base/FormatNumber.h"
#include "base/Single.h"
#include "base/conversions.h"
#include "prices/clsPriceRange.h"

namespace quillet {
namespace {

struct WrittenTier {
  std::int32_t nNumber = 0;
  const ScheduleEntry* pStart = nullptr;
  const ScheduleEntry* pEnd = nullptr;
  double fStart = 0;
  double fEnd = 0;

  [[nodiscard]] bool IsEndless() const { return fEnd == clsPriceRange::kNoUpperLimit; }
  [[nodiscard]] std::string Name() const { return "tier " + std::to_string(nNumber); }
};

/// A number of items at a price in whole cents.
struct Lot {
  std::int32_t nQuantity = 0;
  Single fPrice;

  [[nodiscard]] Single Total() const { return fPrice * nQuantity; }
  [[nodiscard]] std::string Name() const {
    return std::to_string(nQuantity) + " x " + FormatNumber(fPrice, "0.00");
  }
};

/// A lot whose total, as used to look up the fee, is between two others.
std::optional<Lot> LotBetween(Single fEnd, Single fStart) {
  constexpr std::int32_t kMostItems = 10'000;
  for (std::int32_t nQuantity = 1; nQuantity <= kMostItems; ++nQuantity) {
    const double fCents = std::max(0.0, std::floor(fEnd * 100 / nQuantity));
    for (const double fOther : {fCents, fCents + 1}) {
      const Lot oLot{.nQuantity = nQuantity, .fPrice = fOther / 100};
      if (oLot.Total() > fEnd && oLot.Total() < fStart) {
        return oLot;
      }
    }
  }
  return std::nullopt;
}

class TierCheck {
 public:
  TierCheck(Schedule& oSchedule, const CatalogueKey& oTable)
      : m_oSchedule(oSchedule), m_oTable(oTable) {}

  void Run() {
    const ScheduleEntry* const pCount = m_oSchedule.Ask(m_oTable.sName + "Ranges");
    const std::int32_t nCount = pCount != nullptr ? CountOf(*pCount) : kUnknown;
    if (pCount == nullptr) {
      m_oSchedule.ReportNoPrice(m_oSchedule.LastLine(),
                                Quoted(m_oTable.sName + "Ranges") + " is missing");
    }
    for (std::int32_t nTier = 1; nTier <= nCount; ++nTier) {
      ReadTier(nTier, *pCount);
    }
    ReportMissingRun(nCount + 1, pCount);
    AskForTheRest(nCount, pCount);
    if (m_oTable.eKind == KeyKind::BandTiers && nCount != kUnknown) {
      CheckBands();
    }
  }

 private:
  static constexpr std::int32_t kUnknown = -1;

  void Report(std::size_t nLine, const std::string& sText) {
    m_oSchedule.Report(nLine, Quoted(m_oTable.sName) + ": " + sText);
  }

  std::int32_t CountOf(const ScheduleEntry& oEntry) {
    const auto nCount = ToInteger(oEntry.sValue);
    if (!nCount || *nCount < 0) {
      m_oSchedule.ReportNoPrice(
          oEntry.nLine, Quoted(oEntry.sKey) + " isn't a number of tiers: " + Quoted(oEntry.sValue));
      return kUnknown;
    }
    return *nCount;
  }

  void ReadTier(std::int32_t nTier, const ScheduleEntry& oCount) {
    WrittenTier oTier{.nNumber = nTier};
    const std::string sNumber = std::to_string(nTier);
    const std::string sStart = m_oTable.sName + "RangeStart" + sNumber;
    const std::string sEnd = m_oTable.sName + "RangeEnd" + sNumber;
    const std::string sValue = m_oTable.sName + "RangeValue" + sNumber;
    oTier.pStart = m_oSchedule.Ask(sStart);
    oTier.pEnd = m_oSchedule.Ask(sEnd);
    const bool bValue = m_oSchedule.Ask(sValue) != nullptr;
    if (oTier.pStart == nullptr && oTier.pEnd == nullptr && !bValue) {
      m_nFirstMissing = m_nFirstMissing == 0 ? nTier : m_nFirstMissing;
      return;
    }
    ReportMissingRun(nTier, &oCount);
    const auto fnReportMissing = [&](bool bThere, const std::string& sKey) {
      if (!bThere) {
        m_oSchedule.ReportNoPrice(oCount.nLine, Quoted(sKey) + " is missing");
      }
    };
    fnReportMissing(oTier.pStart != nullptr, sStart);
    fnReportMissing(oTier.pEnd != nullptr, sEnd);
    fnReportMissing(bValue, sValue);
    CheckValue(nTier, sValue);
    const auto fStart = AskNumber(m_oSchedule, sStart);
    const auto fEnd = AskNumber(m_oSchedule, sEnd);
    if (fStart && fEnd) {
      oTier.fStart = *fStart;
      oTier.fEnd = *fEnd;
      CheckTier(oTier);
    }
  }

  void CheckValue(std::int32_t nTier, const std::string& sKey) {
    const auto fValue = AskNumber(m_oSchedule, sKey);
    if (fValue && *fValue < 0 && m_oTable.IsPercentage(nTier)) {
      const ScheduleEntry& oEntry = *m_oSchedule.Ask(sKey);
      m_oSchedule.Report(oEntry.nLine, Quoted(sKey) + " is a percentage below 0: " + oEntry.sValue);
    }
  }

  /// Reports the tiers that have no key at all, up to the one before `nTier`.
  void ReportMissingRun(std::int32_t nTier, const ScheduleEntry* pCount) {
    if (m_nFirstMissing != 0) {
      const std::int32_t nLast = nTier - 1;
      const std::string sFirst = std::to_string(m_nFirstMissing);
      const std::string sMissing =
          nLast == m_nFirstMissing
              ? "tier " + sFirst + " is missing"
              : "tiers " + sFirst + " to " + std::to_string(nLast) + " are missing";
      m_oSchedule.ReportNoPrice(pCount->nLine, Quoted(m_oTable.sName) + ": " + sMissing);
      m_nFirstMissing = 0;
    }
  }

  /// What is wrong with a tier by itself and after the one before it.
  void CheckTier(const WrittenTier& oTier) {
    if (!oTier.IsEndless() && oTier.fEnd < oTier.fStart) {
      Report(oTier.pEnd->nLine, oTier.Name() + " ends at " + oTier.pEnd->sValue +
                                    ", before it starts at " + oTier.pStart->sValue);
    } else if (!m_aoTiers.empty() && m_aoTiers.back().nNumber == oTier.nNumber - 1) {
      CheckSeam(m_aoTiers.back(), oTier);
    }
    m_aoTiers.push_back(oTier);
  }

  void CheckSeam(const WrittenTier& oBefore, const WrittenTier& oTier) {
    const std::size_t nLine = oTier.pStart->nLine;
    const std::string sBetween = oBefore.Name() + " to " + oBefore.pEnd->sValue + " and " +
                                 oTier.Name() + " from " + oTier.pStart->sValue;
    if (oBefore.IsEndless()) {
      Report(nLine, oTier.Name() + " overlaps " + oBefore.Name() + ", which has no upper limit");
    } else if (oTier.fStart < oBefore.fEnd) {
      Report(nLine, "overlap between " + sBetween);
    } else if (m_oTable.eKind == KeyKind::LotTiers) {
      if (const auto oLot = LotBetween(oBefore.fEnd, oTier.fStart)) {
        Report(nLine, "gap between " + sBetween + ": " + oLot->Name() + " falls into it");
      }
    } else if (IsGap(oBefore.fEnd, oTier.fStart)) {
      Report(nLine, "gap between " + sBetween);
    }
  }

  /// A gap is one that a value could fall into, given the smallest step of the looked-up value.
  [[nodiscard]] bool IsGap(double fEnd, double fStart) const {
    constexpr double kCent = 0.01;
    constexpr double kGram = 0.001;
    constexpr double kTolerance = 1.001;  // decimal fractions aren't exact in binary
    switch (m_oTable.eKind) {
      case KeyKind::PriceTiers:
        return fStart - fEnd > kCent * kTolerance;
      case KeyKind::WeightTiers:
        return fStart - fEnd > kGram * kTolerance;
      case KeyKind::PictureTiers:
      case KeyKind::BandTiers:
        return fStart - fEnd > kTolerance;
      default:
        return fStart != fEnd;
    }
  }

  /// Marks the table's other keys as asked for, and reports those beyond its count.
  void AskForTheRest(std::int32_t nCount, const ScheduleEntry* pCount) {
    for (ScheduleEntry& oEntry : m_oSchedule.Entries()) {
      const std::int32_t nTier = oEntry.bAsked ? 0 : TierOfKey(oEntry.sKey, m_oTable.sName);
      if (nTier == 0) {
        continue;
      }
      oEntry.bAsked = true;
      if (nCount != kUnknown) {
        m_oSchedule.Report(oEntry.nLine, Quoted(oEntry.sKey) + " is beyond the " +
                                             std::to_string(nCount) + " tiers counted on line " +
                                             std::to_string(pCount->nLine));
      }
    }
  }

  /// Every merchant-rate band must find its rate here.
  void CheckBands() {
    for (const char* const sBand : {"1", "2", "3", "4", "5"}) {
      const ScheduleEntry* const pValue =
          m_oSchedule.Ask(std::string("BusinessRateBand") + sBand + "Value");
      const auto fValue = pValue != nullptr ? ToFileDouble(pValue->sValue) : std::nullopt;
      if (fValue && !IsInATier(*fValue)) {
        Report(pValue->nLine,
               "no tier covers the " + pValue->sValue + " of " + Quoted(pValue->sKey));
      }
    }
  }

  [[nodiscard]] bool IsInATier(double fValue) const {
    return std::any_of(m_aoTiers.begin(), m_aoTiers.end(), [fValue](const WrittenTier& oTier) {
      return fValue >= oTier.fStart && (oTier.IsEndless() || fValue <= oTier.fEnd);
    });
  }

  Schedule& m_oSchedule;
  const CatalogueKey& m_oTable;
  std::vector<WrittenTier> m_aoTiers;
  std::int32_t m_nFirstMissing = 0;
};

}  // namespace

void CheckTiers(Schedule& oSchedule, const CatalogueKey& oTable) {
  TierCheck(oSchedule, oTable).Run();
}

std::optional<double> AskNumber(Schedule& oSchedule, const std::string& sKey) {
  const ScheduleEntry* const pEntry = oSchedule.Ask(sKey);
  if (pEntry == nullptr) {
    return std::nullopt;
  }
  if (!ToFileSingle(pEntry->sValue)) {
    oSchedule.ReportNoPrice(pEntry->nLine,
                            Quoted(pEntry->sKey) + " isn't a number: " + Quoted(pEntry->sValue));
    return std::nullopt;
  }
  return ToFileDouble(pEntry->sValue);
}

}  // namespace quillet
