#include "prices/clsPrices.h"

#include <system_error>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Files.h"
#include "prices/clsTokeniser.h"
#include "prices/lines.h"

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

}  // namespace

void clsPrices::LoadUpdateFile() {
  const std::string sPath = UpdateFileName(false);
  try {
    const std::string sText = ReadUpdateFile(sPath, kAttempts);
    m_oTable.Clear();
    LoadText(sText);
  } catch (const Failure&) {
    // One route for a file that can't be opened and for one that can't be read to its end.
    ShowMessage("Error opening file " + sPath + "\n\n" + EditionName() + " must close.",
                kMessageCritical, EditionName());
    CloseApplication();
  }
}

void clsPrices::LoadFile(const std::string& sPath) {
  const std::string sText = ReadUpdateFile(sPath, 1);
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
}

bool clsPrices::GetData(const PriceKey& oName, std::string_view& sData) const {
  const auto sFound = m_oTable.Find(oName.Text());
  sData = sFound.value_or(std::string_view{});
  return sFound.has_value();
}

bool clsPrices::GetPrice(const PriceKey& oName, Single& fValue, std::int32_t nShop) const {
  const std::string_view sSuffix = ShopSuffix(nShop);
  if (sSuffix.empty()) {
    return ReadNumber(oName, fValue);
  }
  PriceKey oKey = oName;
  return ReadNumber(oKey.Append(sSuffix), fValue);
}

bool clsPrices::ReadNumber(const PriceKey& oKey, Single& fValue) const {
  const auto sFound = m_oTable.Find(oKey.Text());
  return sFound && ReadSingle(*sFound, fValue);
}

bool clsPrices::GetRange(const PriceKey& oName, std::int16_t nRangeNumber, clsPriceRange& oRange,
                         std::int32_t nShop) const {
  PriceKey oKey = oName;
  oKey.Append(ShopSuffix(nShop));
  PriceKey oCountKey = oKey;
  std::string_view sCount;
  if (!GetData(oCountKey.Append("Ranges"), sCount)) {
    return false;
  }
  oRange.m_nCount = TierCount(oKey);
  return ReadTier(oKey, nRangeNumber, oRange);
}

bool clsPrices::HitTestRanges(const PriceKey& oName, Single fHitTestValue, clsPriceRange& oRange,
                              std::int32_t nShop) const {
  PriceKey oKey = oName;
  oKey.Append(ShopSuffix(nShop));
  oRange.m_nCount = TierCount(oKey);
  for (std::int16_t i = 1; i <= oRange.m_nCount; ++i) {
    ReadTier(oKey, i, oRange);
    if (fHitTestValue >= oRange.m_fStart &&
        (fHitTestValue <= oRange.m_fEnd || oRange.m_fEnd == clsPriceRange::kNoUpperLimit)) {
      return true;
    }
    if (i == oRange.m_nCount) {
      break;  // the count may be the largest that its type holds
    }
  }
  oRange.m_nIndex = 0;
  return false;
}

std::int16_t clsPrices::TierCount(PriceKey oName) const {
  std::string_view sCount;
  const bool bFound = GetData(oName.Append("Ranges"), sCount);
  const auto nCount = ToInteger(sCount);
  if (!nCount) {
    throw Failure(FailureNumber::TypeMismatch,
                  bFound ? "The fee schedule's \"" + std::string(oName.Text()) +
                               "\" isn't a number of tiers: \"" + std::string(sCount) + "\"."
                         : "The fee schedule has no \"" + std::string(oName.Text()) + "\".");
  }
  return *nCount;
}

/// False if one of the tier's three numbers is missing, which then reads as 0.
bool clsPrices::ReadTier(PriceKey& oName, std::int16_t nTier, clsPriceRange& oRange) const {
  const std::size_t nNameLength = oName.Text().size();
  const auto fnRead = [&](std::string_view sPart, Single& fValue) {
    fValue = 0;
    oName.Append(sPart).Append(nTier);
    const bool bFound = ReadNumber(oName, fValue);
    oName.Truncate(nNameLength);
    return bFound;
  };
  oRange.m_nIndex = nTier;
  const bool bStart = fnRead("RangeStart", oRange.m_fStart);
  const bool bEnd = fnRead("RangeEnd", oRange.m_fEnd);
  const bool bValue = fnRead("RangeValue", oRange.m_fValue);
  return bStart && bEnd && bValue;
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
