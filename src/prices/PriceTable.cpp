#include "prices/PriceTable.h"

#include <cstring>

#include "base/text.h"

namespace quillet {
namespace {

constexpr std::size_t kFirstSlots = 1024;
constexpr std::uint64_t kLowerCaseBits = 0x2020202020202020;

/// Eight bytes at a time. Setting the bit that tells "a" from "A" makes the case count for nothing;
/// that it also joins a few pairs of other characters costs only a comparison.
std::uint32_t HashOf(std::string_view sKey) {
  constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
  std::uint64_t nHash = sKey.size();
  while (!sKey.empty()) {
    std::uint64_t nBytes = 0;
    const std::size_t nTaken = sKey.size() < sizeof nBytes ? sKey.size() : sizeof nBytes;
    std::memcpy(&nBytes, sKey.data(), nTaken);
    nHash = (nHash ^ (nBytes | kLowerCaseBits)) * kMultiplier;
    nHash ^= nHash >> 32U;
    sKey.remove_prefix(nTaken);
  }
  return static_cast<std::uint32_t>(nHash);
}

}  // namespace

bool PriceTable::Add(std::string_view sKey, std::string_view sValue) {
  if (m_anSlots.size() < (m_aoEntries.size() + 1) * 2) {
    Grow();
  }
  const std::uint32_t nHash = HashOf(sKey);
  std::uint32_t& nSlot = m_anSlots[SlotOf(sKey, nHash)];
  if (nSlot != 0) {
    return false;
  }
  m_aoEntries.push_back({static_cast<std::uint32_t>(m_sTexts.size()),
                         static_cast<std::uint32_t>(sKey.size()),
                         static_cast<std::uint32_t>(sValue.size()), nHash});
  m_sTexts.append(sKey).append(sValue);
  nSlot = static_cast<std::uint32_t>(m_aoEntries.size());
  return true;
}

std::optional<std::string_view> PriceTable::Find(std::string_view sKey) const {
  if (m_aoEntries.empty()) {
    return std::nullopt;
  }
  const std::uint32_t nSlot = m_anSlots[SlotOf(sKey, HashOf(sKey))];
  if (nSlot == 0) {
    return std::nullopt;
  }
  const Entry& oEntry = m_aoEntries[nSlot - 1];
  return std::string_view(m_sTexts).substr(oEntry.nKeyAt + oEntry.nKeyLength, oEntry.nValueLength);
}

void PriceTable::Clear() {
  m_sTexts.clear();
  m_aoEntries.clear();
  m_anSlots.assign(m_anSlots.size(), 0);
}

std::string_view PriceTable::KeyAt(std::size_t nEntry) const {
  const Entry& oEntry = m_aoEntries.at(nEntry);
  return std::string_view(m_sTexts).substr(oEntry.nKeyAt, oEntry.nKeyLength);
}

/// The slot that holds the key, or else the free one where it belongs.
std::size_t PriceTable::SlotOf(std::string_view sKey, std::uint32_t nHash) const {
  const std::size_t nMask = m_anSlots.size() - 1;
  std::size_t nSlot = nHash & nMask;
  for (; m_anSlots[nSlot] != 0; nSlot = (nSlot + 1) & nMask) {
    const std::uint32_t nEntry = m_anSlots[nSlot] - 1;
    if (m_aoEntries[nEntry].nHash == nHash && EqualIgnoringCase(KeyAt(nEntry), sKey)) {
      break;
    }
  }
  return nSlot;
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
