#include "prices/clsPrices.h"

#include <system_error>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/plainNumber.h"
#include "base/text.h"
#include "platform/Files.h"
#include "platform/UserData.h"
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

/// The file's text; a Failure if the last of `nAttempts` still couldn't read it.
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

/// One tier table of the schedule.
class TierReader {
 public:
  TierReader(const PriceTable& oTable, const KeyText& oName, std::int32_t nShop)
      : m_oTable(oTable), m_oKey(oName) {
    m_oKey.Append(ShopSuffix(nShop));
    const KeyBranch oBranch(m_oKey);
    m_oTiers = m_oTable.FindTiers(m_oKey.Append(kCountWord));
  }

  [[nodiscard]] bool IsThere() const { return m_oTiers.has_value(); }

  /// A Failure if the text isn't a 16-bit integer, or isn't there.
  [[nodiscard]] std::int16_t Count() const {
    const auto nCount = m_oTiers ? ToInteger(m_oTiers->sCount) : std::nullopt;
    if (!nCount) {
      RaiseNoCount();
    }
    return *nCount;
  }

  /// False, and 0, if the number is missing.
  bool Read(TierPart ePart, std::int32_t nTier, Single& fValue) {
    fValue = 0;
    if (nTier >= 1 && static_cast<std::uint32_t>(nTier) <= m_oTiers->nLinked) {
      return ReadText(m_oTable.TierText(*m_oTiers, static_cast<std::uint32_t>(nTier), ePart),
                      fValue);
    }
    const KeyBranch oBranch(m_oKey);
    m_oKey.Append(kTierWords[static_cast<std::size_t>(ePart)]).Append(nTier);
    return ReadText(m_oTable.Find(m_oKey).value_or(std::string_view{}), fValue);
  }

 private:
  bool ReadText(std::string_view sText, Single& fValue) const {
    float fPlain = 0;
    if (ReadPlainNumber(sText, kPoint, fPlain)) {
      fValue = Single::OfFinite(fPlain);
      return true;
    }
    return ReadFileSingle(sText, fValue);
  }

  [[noreturn]] void RaiseNoCount() const {
    const std::string sKey = "\"" + std::string(m_oKey.Text()) + "Ranges\"";
    throw Failure(FailureNumber::TypeMismatch, m_oTiers ? "The fee schedule's " + sKey +
                                                              " isn't a number of tiers: \"" +
                                                              std::string(m_oTiers->sCount) + "\"."
                                                        : "The fee schedule has no " + sKey + ".");
  }

  const PriceTable& m_oTable;
  PriceKey m_oKey;
  std::optional<PriceTable::Tiers> m_oTiers;
};

}  // namespace

void clsPrices::LoadUpdateFile() {
  const std::string sPath = UpdateFileName(false);
  try {
    if (sPath != ShippedUpdateFileName()) {
      LoadUsersCopy(sPath);
    } else {
      LoadFile(sPath, kAttempts);
    }
  } catch (const Failure&) {
    // One route for a file that can't be opened and for one that can't be read to its end.
    ShowMessage("Error opening file " + sPath + "\n\n" + EditionName() + " must close.",
                kMessageCritical, EditionName());
    CloseApplication();
  }
}

/// A copy that is no use makes room for the program's file.
void clsPrices::LoadUsersCopy(const std::string& sPath) {
  try {
    LoadFile(sPath, kAttempts);
    RequireReplacement(*this, ShippedUpdateFileName());
  } catch (const Failure& oFailure) {
    const std::string sAside = sPath + ".bad";
    if (PutAside(sPath, sAside)) {
      throw;
    }
    LoadFile(UpdateFileName(false), kAttempts);
    ShowMessage("Your copy of the fee schedule can't be used:\n\n" + std::string(oFailure.what()) +
                    "\n\nIt is kept as " + sAside + ". " + EditionName() +
                    " now uses the fees that it came with.",
                kMessageWarning, EditionName());
  }
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
  clsTokeniser oFields;
  std::string_view sLine;
  while (TakeLine(sText, sLine)) {
    if (oFields.Tokenise(sLine, ",") == 2 &&
        !m_oTable.Add(oFields.Element(0), oFields.Element(1))) {
      throw Failure(FailureNumber::TypeMismatch,
                    "The key \"" + oFields.Element(0) + "\" stands in it twice.");
    }
  }
  m_oTable.LinkTiers();
}

bool clsPrices::GetData(const KeyText& oName, std::string_view& sData) const {
  const auto sFound = m_oTable.Find(oName);
  sData = sFound.value_or(std::string_view{});
  return sFound.has_value();
}

bool clsPrices::GetPrice(const KeyText& oName, Single& fValue, std::int32_t nShop) const {
  return nShop == kShopNone ? ReadNumber(oName, fValue)
                            : ReadNumber(PriceKey(oName).Append(ShopSuffix(nShop)), fValue);
}

bool clsPrices::GetRange(const KeyText& oName, std::int16_t nRangeNumber, clsPriceRange& oRange,
                         std::int32_t nShop) const {
  TierReader oTiers(m_oTable, oName, nShop);
  if (!oTiers.IsThere()) {
    return false;
  }
  oRange.m_nCount = oTiers.Count();
  oRange.m_nIndex = nRangeNumber;
  const bool bStart = oTiers.Read(TierPart::Start, nRangeNumber, oRange.m_fStart);
  const bool bEnd = oTiers.Read(TierPart::End, nRangeNumber, oRange.m_fEnd);
  const bool bValue = oTiers.Read(TierPart::Value, nRangeNumber, oRange.m_fValue);
  return bStart && bEnd && bValue;
}

bool clsPrices::HitTestRanges(const KeyText& oName, Single fHitTestValue, clsPriceRange& oRange,
                              std::int32_t nShop) const {
  TierReader oTiers(m_oTable, oName, nShop);
  oRange.m_nCount = oTiers.Count();
  bool bHit = false;
  std::int32_t nTier = 0;
  // Of a tier that the value lies beyond nothing else is read, as nothing else is ever seen.
  while (nTier < oRange.m_nCount && !bHit) {
    ++nTier;
    oTiers.Read(TierPart::End, nTier, oRange.m_fEnd);
    const bool bBeyond =
        fHitTestValue > oRange.m_fEnd && oRange.m_fEnd != clsPriceRange::kNoUpperLimit;
    if (!bBeyond || nTier == oRange.m_nCount) {
      oTiers.Read(TierPart::Start, nTier, oRange.m_fStart);
      oTiers.Read(TierPart::Value, nTier, oRange.m_fValue);
      bHit = !bBeyond && fHitTestValue >= oRange.m_fStart;
    }
  }
  oRange.m_nIndex = static_cast<std::int16_t>(bHit ? nTier : 0);
  return bHit;
}

bool clsPrices::ReadNumber(const KeyText& oKey, Single& fValue) const {
  const auto sFound = m_oTable.Find(oKey);
  return sFound && ReadFileSingle(*sFound, fValue);
}

clsPrices& Prices() {
  if (!g_oPrices) {
    g_oPrices = std::make_unique<clsPrices>();
    g_oPrices->LoadUpdateFile();
  }
  return *g_oPrices;
}

void UsePrices(std::unique_ptr<clsPrices> oPrices) {
  g_oPrices = std::move(oPrices);
}

}  // namespace quillet
