#include "prices/clsPrices.h"

#include <algorithm>
#include <system_error>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Files.h"
#include "platform/UserData.h"
#include "prices/checkSchedule.h"
#include "prices/clsTokeniser.h"
#include "prices/lines.h"
#include "prices/replacement.h"

namespace quillet {
namespace {

constexpr int kAttempts = 5;
constexpr int kWaitAfterAttempt = 100;  // milliseconds

std::unique_ptr<clsPrices> g_oPrices;

[[noreturn]] void RaiseFileFailure(const std::string& sPath, const std::string& sReason) {
  throw Failure(FailureNumber::FileAccess, sPath + ": " + sReason);
}

/// The file's text; throws a Failure if the last of `nAttempts` still couldn't read it.
std::string ReadUpdateFile(const std::string& sPath, int nAttempts) {
  std::string sBytes;
  std::error_code oError;
  for (int nTries = 0; nTries < nAttempts; ++nTries) {
    oError = ReadWholeFile(sPath, clsPrices::kLargestFile, sBytes);
    if (!oError) {
      return DecodeText(std::move(sBytes));
    }
    if (nAttempts > 1) {
      WaitMilliseconds(kWaitAfterAttempt);
    }
  }
  RaiseFileFailure(sPath, oError.message());
}

/// One number of all tiers: in order, each once.
std::vector<Single> AllOf(TierPart ePart, const std::vector<Tier>& aoTiers) {
  std::vector<Single> afNumbers(aoTiers.size());
  std::transform(aoTiers.begin(), aoTiers.end(), afNumbers.begin(),
                 [ePart](const Tier& oTier) { return oTier[ePart]; });
  std::sort(afNumbers.begin(), afNumbers.end());
  afNumbers.erase(std::unique(afNumbers.begin(), afNumbers.end()), afNumbers.end());
  return afNumbers;
}

/// A tier table of the schedule, which may be missing.
class TierReader {
 public:
  TierReader(const PriceTable& oTable, const KeyText& oName, std::int32_t nShop)
      : m_oTable(oTable), m_oName(oName) {
    m_oName.Append(ShopSuffix(nShop));
    const KeyBranch oBranch(m_oName);
    m_pTiers = m_oTable.FindTiers(m_oName.Append(kCountWord));
  }

  [[nodiscard]] bool IsThere() const { return m_pTiers != nullptr; }

  /// Throws a Failure if the text is missing or isn't a 16-bit integer.
  [[nodiscard]] std::int16_t Count() const {
    if (m_pTiers == nullptr || !m_pTiers->nCount) {
      RaiseNoCount();
    }
    return *m_pTiers->nCount;
  }

  /// Fills in tier `nTier`, from 1, of a table that is there; false if it lacks a number.
  bool Read(std::int32_t nTier, clsPriceRange& oRange) const {
    const Tier oTier = m_oTable.TierOf(m_oName, *m_pTiers, nTier);
    oRange.m_fStart = oTier[TierPart::Start];
    oRange.m_fEnd = oTier[TierPart::End];
    oRange.m_fValue = oTier[TierPart::Value];
    return oTier.bComplete;
  }

 private:
  [[noreturn]] void RaiseNoCount() const {
    const PriceKey oKey = PriceKey(m_oName).Append(kCountWord);
    const std::string sKey = "\"" + std::string(oKey.Text()) + "\"";
    const auto sCount = m_oTable.Find(oKey);
    throw Failure(FailureNumber::TypeMismatch, sCount ? "The fee schedule's " + sKey +
                                                            " isn't a number of tiers: \"" +
                                                            std::string(*sCount) + "\"."
                                                      : "The fee schedule has no " + sKey + ".");
  }

  const PriceTable& m_oTable;
  PriceKey m_oName;
  const PriceTable::Tiers* m_pTiers = nullptr;
};

}  // namespace

void clsPrices::LoadUpdateFile() {
  const std::string sPath = UpdateFileName(false);
  try {
    LoadUpdateFileOrFail(kAttempts);
  } catch (const Failure& oFailure) {
    if (UpdateFileName(true) != DefaultUpdateFileName()) {
      return LoadDefaultInstead(oFailure.what());
    }
    // One route for a file that can't be opened and for one that can't be read to its end.
    ShowMessage("Error opening file " + sPath + "\n\n" + EditionName() + " must close.",
                kMessageCritical, EditionName());
    CloseApplication();
  }
}

/// A file that the user has chosen must hold some fee.
void clsPrices::LoadUpdateFileOrFail(int nAttempts) {
  const std::string sPath = UpdateFileName(false);
  if (sPath != ShippedUpdateFileName()) {
    LoadUsersCopy(sPath, nAttempts);
  } else {
    LoadFile(sPath, nAttempts);
  }
  if (UpdateFileName(true) != DefaultUpdateFileName()) {
    RequireFees(*this);
  }
  m_oMissingPrice = FirstMissingPrice(ReadUpdateFile(UpdateFileName(false), 1));
}

/// An unusable copy makes way for the program's file, if there is one.
void clsPrices::LoadUsersCopy(const std::string& sPath, int nAttempts) {
  try {
    LoadFile(sPath, nAttempts);
    RequireReplacement(*this, ShippedUpdateFileName());
  } catch (const Failure& oFailure) {
    const std::string sAside = sPath + ".bad";
    if (!FileExists(ShippedUpdateFileName()) || PutAside(sPath, sAside)) {
      throw;
    }
    LoadFile(UpdateFileName(false), nAttempts);
    ShowMessage("Your copy of the fee schedule can't be used:\n\n" + std::string(oFailure.what()) +
                    "\n\nIt is kept as " + sAside + ". " + EditionName() +
                    " now uses the fees that it came with.",
                kMessageWarning, EditionName());
  }
}

/// A choice whose file can't be used is dropped.
void clsPrices::LoadDefaultInstead(const std::string& sReason) {
  ShowMessage("The fee schedule that you chose, " + UpdateFileName(true) + ", can't be used:\n\n" +
                  sReason + "\n\n" + EditionName() + " now uses the fees that it came with.",
              kMessageWarning, EditionName());
  ChooseUpdateFile("");
  Registry().Set(settings::kSchedule, "");
  LoadUpdateFile();
}

void clsPrices::LoadFile(const std::string& sPath) {
  LoadFile(sPath, 1);
}

void clsPrices::LoadFile(const std::string& sPath, int nAttempts) {
  const std::string sText = ReadUpdateFile(sPath, nAttempts);
  m_oTable.Clear();
  try {
    LoadText(sText);
  } catch (const Failure& oFailure) {
    RaiseFileFailure(sPath, oFailure.what());
  }
}

void clsPrices::LoadText(std::string_view sText) {
  try {
    AddEntries(sText);
  } catch (const Failure&) {
    EndLoad();  // what came before it can be used
    throw;
  }
  EndLoad();
}

void clsPrices::EndLoad() {
  m_oTable.LinkTiers();
  m_oFeatures.Read(m_oTable);
  m_oSaleRates = ReadSaleRates(m_oTable);
}

void clsPrices::AddEntries(std::string_view sText) {
  m_oTable.Reserve(sText.size());
  clsTokeniser oFields;
  std::string_view sLine;
  while (TakeLine(sText, sLine)) {
    if (oFields.Tokenise(sLine, ",") == 2 &&
        !m_oTable.Add(oFields.Element(0), oFields.Element(1))) {
      throw Failure(FailureNumber::TypeMismatch,
                    "It has the key \"" + oFields.Element(0) + "\" twice.");
    }
  }
}

bool clsPrices::GetData(const KeyText& oName, std::string_view& sData) const {
  const auto sFound = m_oTable.Find(oName);
  sData = sFound.value_or(std::string_view{});
  return sFound.has_value();
}

bool clsPrices::GetPrice(const KeyText& oName, Single& fValue, std::int32_t nShop) const {
  const auto fFound = nShop == kShopNone
                          ? m_oTable.FindNumber(oName)
                          : m_oTable.FindNumber(PriceKey(oName).Append(ShopSuffix(nShop)));
  fValue = fFound.value_or(fValue);
  return fFound.has_value();
}

bool clsPrices::GetRange(const KeyText& oName, std::int16_t nRangeNumber, clsPriceRange& oRange,
                         std::int32_t nShop) const {
  const TierReader oTiers(m_oTable, oName, nShop);
  if (!oTiers.IsThere()) {
    return false;
  }
  oRange.m_nCount = oTiers.Count();
  oRange.m_nIndex = nRangeNumber;
  return oTiers.Read(nRangeNumber, oRange);
}

bool clsPrices::HitTestRanges(const KeyText& oName, Single fHitTestValue, clsPriceRange& oRange,
                              std::int32_t nShop) const {
  const TierReader oTiers(m_oTable, oName, nShop);
  oRange.m_nCount = oTiers.Count();
  for (std::int32_t nTier = 1; nTier <= oRange.m_nCount; ++nTier) {
    oTiers.Read(nTier, oRange);
    if (fHitTestValue >= oRange.m_fStart &&
        (fHitTestValue <= oRange.m_fEnd || oRange.m_fEnd == clsPriceRange::kNoUpperLimit)) {
      oRange.m_nIndex = static_cast<std::int16_t>(nTier);
      return true;
    }
  }
  oRange.m_nIndex = 0;
  return false;
}

bool clsPrices::HasTiers(const KeyText& oName) const {
  return m_oTable.FindTiers(PriceKey(oName).Append(kCountWord)) != nullptr;
}

clsPrices::TierEdges clsPrices::Edges() const {
  const std::vector<Tier>& aoTiers = m_oTable.AllTiers();
  TierEdges oEdges{AllOf(TierPart::Start, aoTiers), AllOf(TierPart::End, aoTiers)};
  std::erase(oEdges.afEnds, Single(clsPriceRange::kNoUpperLimit));
  return oEdges;
}

clsPrices& Prices() {
  if (!g_oPrices) {
    g_oPrices = std::make_unique<clsPrices>();
    g_oPrices->LoadUpdateFile();
  }
  return *g_oPrices;
}

bool AreFeesOfToday() {
  return g_oPrices && g_oPrices->Sale() != nullptr;
}

void UsePrices(std::unique_ptr<clsPrices> oPrices) {
  g_oPrices = std::move(oPrices);
}

}  // namespace quillet
