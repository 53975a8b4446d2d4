#include "prices/PriceTable.h"

#include <algorithm>
#include <cstring>

#include "base/text.h"

namespace quillet {
namespace {

constexpr std::size_t kFirstSlots = 1024;

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

inline std::string_view PriceTable::ValueOf(const Entry& oEntry) const {
  return {m_sTexts.data() + oEntry.nKeyAt + oEntry.nKeyLength, oEntry.nValueLength};
}

bool PriceTable::Add(const KeyText& oKey, std::string_view sValue) {
  if (m_anSlots.size() < (m_aoEntries.size() + 1) * 2) {
    Grow();
  }
  const std::string_view sKey = oKey.Text();
  const std::uint32_t nHash = SlotHash(oKey);
  std::uint32_t& nSlot = m_anSlots[SlotOf(sKey, nHash)];
  if (nSlot != 0) {
    return false;
  }
  m_aoEntries.push_back({static_cast<std::uint32_t>(m_sTexts.size()),
                         static_cast<std::uint32_t>(sKey.size()),
                         static_cast<std::uint32_t>(sValue.size()), nHash, 0, 0});
  m_bLinked = false;
  m_sTexts.append(sKey).append(sValue);
  nSlot = static_cast<std::uint32_t>(m_aoEntries.size());
  return true;
}

std::optional<std::string_view> PriceTable::Find(const KeyText& oKey) const {
  const Entry* const pEntry = EntryOf(oKey);
  return pEntry != nullptr ? std::optional(ValueOf(*pEntry)) : std::nullopt;
}

void PriceTable::LinkTiers() {
  m_aoLinks.clear();
  for (Entry& oEntry : m_aoEntries) {
    const std::string_view sKey(m_sTexts.data() + oEntry.nKeyAt, oEntry.nKeyLength);
    const std::size_t nTable = sKey.size() - std::min(sKey.size(), kCountWord.Text().size());
    oEntry.nFirstLink = static_cast<std::uint32_t>(m_aoLinks.size());
    if (EqualIgnoringCase(sKey.substr(nTable), kCountWord.Text())) {
      LinkTable(sKey.substr(0, nTable));
    }
    oEntry.nLinks = static_cast<std::uint32_t>(m_aoLinks.size()) - oEntry.nFirstLink;
  }
  m_bLinked = true;
}

std::optional<PriceTable::Tiers> PriceTable::FindTiers(const KeyText& oCountKey) const {
  const Entry* const pEntry = EntryOf(oCountKey);
  if (pEntry == nullptr) {
    return std::nullopt;
  }
  return Tiers{ValueOf(*pEntry), pEntry->nFirstLink, m_bLinked ? pEntry->nLinks : 0};
}

void PriceTable::Clear() {
  m_sTexts.clear();
  m_aoEntries.clear();
  m_anSlots.assign(m_anSlots.size(), 0);
  m_bLinked = false;
}

/// However large its count is, the links end at the first tier that isn't there.
void PriceTable::LinkTable(std::string_view sTable) {
  PriceKey oTable{KeyText(sTable)};
  std::int32_t nTier = 1;
  for (Link oLink = LinkOf(oTable, nTier); oLink != Link{}; oLink = LinkOf(oTable, nTier)) {
    m_aoLinks.push_back(oLink);
    ++nTier;
  }
}

PriceTable::Link PriceTable::LinkOf(PriceKey& oTable, std::int32_t nTier) const {
  Link oLink;
  for (std::size_t i = 0; i < oLink.size(); ++i) {
    const KeyBranch oBranch(oTable);
    const Entry* const pEntry = EntryOf(oTable.Append(kTierWords[i]).Append(nTier));
    if (pEntry != nullptr) {
      oLink[i] = {pEntry->nKeyAt + pEntry->nKeyLength, pEntry->nValueLength};
    }
  }
  return oLink;
}

void PriceTable::Grow() {
  m_anSlots.assign(m_anSlots.empty() ? kFirstSlots : m_anSlots.size() * 2, 0);
  const std::size_t nMask = m_anSlots.size() - 1;
  for (std::size_t nEntry = 0; nEntry < m_aoEntries.size(); ++nEntry) {
    std::size_t nSlot = m_aoEntries[nEntry].nHash & nMask;
    while (m_anSlots[nSlot] != 0) {
      nSlot = (nSlot + 1) & nMask;
    }
    m_anSlots[nSlot] = static_cast<std::uint32_t>(nEntry + 1);
  }
}

}  // namespace quillet
