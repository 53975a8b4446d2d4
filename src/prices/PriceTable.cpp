#include "prices/PriceTable.h"

#include <bit>
#include <cstring>

namespace quillet {
namespace {

constexpr std::size_t kFirstSlots = 1024;

/// Eight characters at once, A to Z in lower case. Adding what is missing to the highest bit marks
/// the bytes from a limit upward; bytes beyond ASCII stay as they are.
std::uint64_t LowerCaseOf(std::uint64_t nBytes) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  const std::uint64_t nSevenBits = nBytes & (0x7F * kEach);
  const std::uint64_t nFromA = nSevenBits + (0x80 - 'A') * kEach;
  const std::uint64_t nBeyondZ = nSevenBits + (0x7F - 'Z') * kEach;
  const std::uint64_t nCapital = (nFromA ^ nBeyondZ) & ~nBytes & (0x80 * kEach);
  return nBytes | (nCapital >> 2U);  // 0x80 becomes the 0x20 that tells "a" from "A"
}

std::uint64_t EightFrom(const char* pText) {
  std::uint64_t nBytes = 0;
  std::memcpy(&nBytes, pText, sizeof nBytes);
  return LowerCaseOf(nBytes);
}

std::uint64_t FewerThanEightFrom(std::string_view sText) {
  std::uint64_t nBytes = 0;
  for (const char c : sText) {
    nBytes = (nBytes << 8U) | static_cast<unsigned char>(c);
  }
  return LowerCaseOf(nBytes);
}

/// Eight characters at a time; the last eight may overlap with those before them.
std::uint32_t HashOf(std::string_view sKey) {
  constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
  constexpr std::size_t kStep = sizeof(std::uint64_t);
  std::uint64_t nHash = sKey.size();
  if (sKey.size() < kStep) {
    nHash = (nHash ^ FewerThanEightFrom(sKey)) * kMultiplier;
  } else {
    for (std::size_t nAt = 0; nAt + kStep < sKey.size(); nAt += kStep) {
      nHash = (std::rotl(nHash, 29) ^ EightFrom(sKey.data() + nAt)) * kMultiplier;
    }
    nHash = (std::rotl(nHash, 29) ^ EightFrom(sKey.data() + sKey.size() - kStep)) * kMultiplier;
  }
  return static_cast<std::uint32_t>(nHash >> 32U);
}

bool SameKey(std::string_view sLeft, std::string_view sRight) {
  constexpr std::size_t kStep = sizeof(std::uint64_t);
  if (sLeft.size() != sRight.size()) {
    return false;
  }
  if (sLeft.size() < kStep) {
    return FewerThanEightFrom(sLeft) == FewerThanEightFrom(sRight);
  }
  for (std::size_t nAt = 0; nAt + kStep < sLeft.size(); nAt += kStep) {
    if (EightFrom(sLeft.data() + nAt) != EightFrom(sRight.data() + nAt)) {
      return false;
    }
  }
  const std::size_t nLast = sLeft.size() - kStep;
  return EightFrom(sLeft.data() + nLast) == EightFrom(sRight.data() + nLast);
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
    if (m_aoEntries[nEntry].nHash == nHash && SameKey(KeyAt(nEntry), sKey)) {
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
