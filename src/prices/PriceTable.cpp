#include "prices/PriceTable.h"

#include <algorithm>
#include <cstring>

#include "base/conversions.h"
#include "base/text.h"

namespace quillet {
namespace {

constexpr std::size_t kFirstSlots = 4096;

std::uint32_t SlotHash(const KeyText& oKey) {
  constexpr std::uint64_t kMultiplier = 0xD6E8FEB86659FD93;  // spreads the last characters
  return static_cast<std::uint32_t>((oKey.Hash() * kMultiplier) >> 32U);
}

/// Most callers write a key as the schedule does, and whole keys compare faster than letters do.
bool SameKey(std::string_view sLeft, std::string_view sRight) {
  return sLeft.size() == sRight.size() &&
         (std::memcmp(sLeft.data(), sRight.data(), sLeft.size()) == 0 ||
          EqualIgnoringCase(sLeft, sRight));
}

}  // namespace

std::string_view PriceTable::KeyAt(std::size_t nEntry) const {
  const Entry& oEntry = m_aoEntries[nEntry];
  return {m_sTexts.data() + oEntry.nKeyAt, oEntry.nKeyLength};
}

/// The slot that holds the key, or else the free one where it belongs.
inline std::size_t PriceTable::SlotOf(std::string_view sKey, std::uint32_t nHash) const {
  const std::size_t nMask = m_anSlots.size() - 1;
  std::size_t nSlot = nHash & nMask;
  for (; m_anSlots[nSlot] != 0; nSlot = (nSlot + 1) & nMask) {
    const std::uint32_t nEntry = m_anSlots[nSlot] - 1;
    if (m_aoEntries[nEntry].nHash == nHash && SameKey(KeyAt(nEntry), sKey)) {
      break;
    }
  }
  return nSlot;
}

inline const PriceTable::Entry* PriceTable::EntryOf(const KeyText& oKey) const {
  if (m_aoEntries.empty()) {
    return nullptr;
  }
  const std::uint32_t nSlot = m_anSlots[SlotOf(oKey.Text(), SlotHash(oKey))];
  return nSlot == 0 ? nullptr : &m_aoEntries[nSlot - 1];
}

std::string_view PriceTable::ValueOf(const Entry& oEntry) const {
  return {m_sTexts.data() + oEntry.nKeyAt + oEntry.nKeyLength, oEntry.nValueLength};
}

void PriceTable::Reserve(std::size_t nBytes) {
  constexpr std::size_t kBytesOfAnEntry = 32;  // or more, mostly
  m_sTexts.reserve(nBytes);
  m_aoEntries.reserve(nBytes / kBytesOfAnEntry);
}

bool PriceTable::Add(const KeyText& oKey, std::string_view sValue) {
  if (m_anSlots.size() < (m_aoEntries.size() + 1) * 2) {
    Rehash(std::max(m_anSlots.size() * 2, kFirstSlots));
  }
  const std::string_view sKey = oKey.Text();
  const std::uint32_t nHash = SlotHash(oKey);
  std::uint32_t& nSlot = m_anSlots[SlotOf(sKey, nHash)];
  if (nSlot != 0) {
    return false;
  }
  m_aoEntries.push_back(
      {static_cast<std::uint32_t>(m_sTexts.size()), static_cast<std::uint32_t>(sKey.size()),
       static_cast<std::uint32_t>(sValue.size()), nHash, kNoTable, ToFileSingle(sValue)});
  m_sTexts.append(sKey).append(sValue);
  nSlot = static_cast<std::uint32_t>(m_aoEntries.size());
  return true;
}

std::optional<std::string_view> PriceTable::Find(const KeyText& oKey) const {
  const Entry* const pEntry = EntryOf(oKey);
  return pEntry != nullptr ? std::optional(ValueOf(*pEntry)) : std::nullopt;
}

std::optional<Single> PriceTable::FindNumber(const KeyText& oKey) const {
  const Entry* const pEntry = EntryOf(oKey);
  return pEntry != nullptr ? pEntry->fNumber : std::nullopt;
}

void PriceTable::LinkTiers() {
  m_aoTables.clear();
  m_aoTiers.clear();
  for (std::size_t nEntry = 0; nEntry < m_aoEntries.size(); ++nEntry) {
    const std::string_view sKey = KeyAt(nEntry);
    const std::size_t nName = sKey.size() - std::min(sKey.size(), kCountWord.Text().size());
    m_aoEntries[nEntry].nTable = kNoTable;
    if (EqualIgnoringCase(sKey.substr(nName), kCountWord.Text())) {
      m_aoEntries[nEntry].nTable = static_cast<std::uint32_t>(m_aoTables.size());
      LinkTable(m_aoEntries[nEntry], sKey.substr(0, nName));
    }
  }
}

const PriceTable::Tiers* PriceTable::FindTiers(const KeyText& oCountKey) const {
  const Entry* const pEntry = EntryOf(oCountKey);
  return pEntry != nullptr && pEntry->nTable != kNoTable ? &m_aoTables[pEntry->nTable] : nullptr;
}

void PriceTable::Clear() {
  m_sTexts.clear();
  m_aoEntries.clear();
  m_anSlots.assign(m_anSlots.size(), 0);
  LinkTiers();
}

/// However large its count is, what is noted ends before the first tier that lacks a number.
void PriceTable::LinkTable(const Entry& oCount, std::string_view sName) {
  const PriceKey oName{KeyText(sName)};
  Tiers oTiers{ToInteger(ValueOf(oCount)), static_cast<std::uint32_t>(m_aoTiers.size()), 0};
  for (Tier oTier = FindTier(oName, 1); oTier.bComplete;) {
    m_aoTiers.push_back(oTier);
    ++oTiers.nLinked;
    oTier = FindTier(oName, static_cast<std::int32_t>(oTiers.nLinked) + 1);
  }
  m_aoTables.push_back(oTiers);
}

Tier PriceTable::FindTier(PriceKey oName, std::int32_t nTier) const {
  Tier oTier;
  oTier.bComplete = true;
  for (std::size_t i = 0; i < kTierWords.size(); ++i) {
    const KeyBranch oBranch(oName);
    const auto fNumber = FindNumber(oName.Append(kTierWords[i]).Append(nTier));
    oTier.afNumbers[i] = fNumber.value_or(0);
    oTier.bComplete = oTier.bComplete && fNumber;
  }
  return oTier;
}

void PriceTable::Rehash(std::size_t nSlots) {
  m_anSlots.assign(nSlots, 0);
  const std::size_t nMask = nSlots - 1;
  for (std::size_t nEntry = 0; nEntry < m_aoEntries.size(); ++nEntry) {
    std::size_t nSlot = m_aoEntries[nEntry].nHash & nMask;
    while (m_anSlots[nSlot] != 0) {
      nSlot = (nSlot + 1) & nMask;
    }
    m_anSlots[nSlot] = static_cast<std::uint32_t>(nEntry + 1);
  }
}

}  // namespace quillet
