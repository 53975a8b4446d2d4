#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/failure.h"

namespace quillet {
namespace {

constexpr char32_t kInvalid = 0xFFFFFFFF;

/// The characters of Windows-1252 at 0x80 to 0x9F; its five gaps keep their own code.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsSurrogate(char32_t cCode) {
  return cCode >= 0xD800 && cCode <= 0xDFFF;
}

/// Takes the first character off `sText`: its code, or kInvalid and one byte less.
char32_t TakeCharacter(std::string_view& sText) {
  const auto cFirst = static_cast<unsigned char>(sText.front());
  sText.remove_prefix(1);
  if (cFirst < 0x80) {
    return cFirst;
  }
  const std::size_t nMore = cFirst >= 0xF0 ? 3 : cFirst >= 0xE0 ? 2 : 1;
  if (cFirst < 0xC2 || cFirst > 0xF4 || sText.size() < nMore) {
    return kInvalid;
  }
  char32_t cCode = cFirst & (0x3FU >> nMore);
  for (std::size_t i = 0; i < nMore; ++i) {
    const auto cNext = static_cast<unsigned char>(sText[i]);
    if ((cNext & 0xC0U) != 0x80) {
      return kInvalid;
    }
    cCode = (cCode << 6U) | (cNext & 0x3FU);
  }
  constexpr std::array<char32_t, 4> kSmallest = {0, 0x80, 0x800, 0x10000};
  if (cCode < kSmallest.at(nMore) || cCode > 0x10FFFF || IsSurrogate(cCode)) {
    return kInvalid;
  }
  sText.remove_prefix(nMore);
  return cCode;
}

void AppendUtf8(char32_t cCode, std::string& sOut) {
  const auto fnAppend = [&sOut](char32_t cByte) { sOut += static_cast<char>(cByte); };
  if (cCode < 0x80) {
    fnAppend(cCode);
  } else if (cCode < 0x800) {
    fnAppend(0xC0U | (cCode >> 6U));
    fnAppend(0x80U | (cCode & 0x3FU));
  } else if (cCode < 0x10000) {
    fnAppend(0xE0U | (cCode >> 12U));
    fnAppend(0x80U | ((cCode >> 6U) & 0x3FU));
    fnAppend(0x80U | (cCode & 0x3FU));
  } else {
    fnAppend(0xF0U | (cCode >> 18U));
    fnAppend(0x80U | ((cCode >> 12U) & 0x3FU));
    fnAppend(0x80U | ((cCode >> 6U) & 0x3FU));
    fnAppend(0x80U | (cCode & 0x3FU));
  }
}

/// How many UTF-16 units a character takes.
std::size_t Units(char32_t cCode) {
  return cCode != kInvalid && cCode > 0xFFFF ? 2 : 1;
}

/// Looks at every character: without an early end the compiler takes many at a time.
bool IsAscii(std::string_view sText) {
  unsigned char nBits = 0;
  for (const char c : sText) {
    nBits |= static_cast<unsigned char>(c);
  }
  return nBits < 0x80;
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

}  // namespace

std::size_t Utf16Length(std::string_view sText) {
  if (IsAscii(sText)) {
    return sText.size();
  }
  std::size_t nLength = 0;
  while (!sText.empty()) {
    nLength += Units(TakeCharacter(sText));
  }
  return nLength;
}

std::string CutText(std::string sText, std::size_t nLongest) {
  std::string_view sRest = sText;
  std::size_t nLength = 0;
  while (!sRest.empty()) {
    std::string_view sNext = sRest;
    nLength += Units(TakeCharacter(sNext));
    if (nLength > nLongest) {
      break;
    }
    sRest = sNext;
  }
  sText.resize(sText.size() - sRest.size());
  return sText;
}

std::u16string ToUtf16(std::string_view sText) {
  std::u16string sOut;
  while (!sText.empty()) {
    char32_t cCode = TakeCharacter(sText);
    if (cCode == kInvalid) {
      cCode = 0xFFFD;
    }
    if (cCode > 0xFFFF) {
      cCode -= 0x10000;
      sOut += static_cast<char16_t>(0xD800U + (cCode >> 10U));
      cCode = 0xDC00U + (cCode & 0x3FFU);
    }
    sOut += static_cast<char16_t>(cCode);
  }
  return sOut;
}

std::string FromUtf16(std::u16string_view sText) {
  std::string sOut;
  for (std::size_t i = 0; i < sText.size(); ++i) {
    char32_t cCode = sText[i];
    if (IsSurrogate(cCode)) {
      const bool bPair = cCode < 0xDC00 && i + 1 < sText.size() && sText[i + 1] >= 0xDC00 &&
                         sText[i + 1] <= 0xDFFF;
      cCode = bPair ? 0x10000U + ((cCode - 0xD800U) << 10U) + (sText[++i] - 0xDC00U) : 0xFFFD;
    }
    AppendUtf8(cCode, sOut);
  }
  return sOut;
}

bool IsValidUtf8(std::string_view sBytes) {
  while (!sBytes.empty()) {
    if (TakeCharacter(sBytes) == kInvalid) {
      return false;
    }
  }
  return true;
}

std::string DecodeText(std::string sBytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (IsAscii(sBytes)) {
    return sBytes;
  }
  if (IsValidUtf8(sBytes)) {
    return sBytes.starts_with(kByteOrderMark) ? sBytes.substr(kByteOrderMark.size()) : sBytes;
  }
  std::string sOut;
  sOut.reserve(sBytes.size() * 2);
  for (const char c : sBytes) {
    const auto cByte = static_cast<unsigned char>(c);
    AppendUtf8(cByte >= 0x80 && cByte < 0xA0 ? kWindows1252.at(cByte - 0x80U) : cByte, sOut);
  }
  return sOut;
}

std::string ShowControls(std::string_view sText) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string sShown;
  for (std::size_t i = 0; i < sText.size(); ++i) {
    // This byte starts the second set of control characters, up to U+009F.
    const bool bSecond = sText[i] == '\xC2' && i + 1 < sText.size();
    const auto cByte = static_cast<unsigned char>(sText[bSecond ? i + 1 : i]);
    if (bSecond ? cByte < 0xA0 : cByte < ' ' || cByte == 0x7F) {
      sShown.append("\\x").append(1, kDigits[cByte >> 4U]).append(1, kDigits[cByte & 0xFU]);
      i += bSecond ? 1 : 0;
    } else {
      sShown += sText[i];
    }
  }
  return sShown;
}

std::string UpperCase(std::string sText) {
  std::transform(sText.begin(), sText.end(), sText.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
  });
  return sText;
}

bool EqualIgnoringCase(std::string_view sLeft, std::string_view sRight) {
  return std::equal(sLeft.begin(), sLeft.end(), sRight.begin(), sRight.end(),
                    [](char a, char b) { return LowerCase(a) == LowerCase(b); });
}

std::string_view Trim(std::string_view sText) {
  while (!sText.empty() && IsBlank(sText.front())) {
    sText.remove_prefix(1);
  }
  while (!sText.empty() && IsBlank(sText.back())) {
    sText.remove_suffix(1);
  }
  return sText;
}

std::string TrimAtNul(std::string sText) {
  sText.erase(sText.find_last_not_of('\0') + 1);
  return sText;
}

std::string PadLeftWith(std::string sText, std::size_t nLength, std::string_view sPad) {
  while (!sPad.empty() && Utf16Length(sText) < nLength) {
    sText.insert(0, sPad);
  }
  return sText;
}

void StringToHex(std::string_view sText, std::string& sOut) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (const char16_t cUnit : ToUtf16(sText)) {
    for (const unsigned nShift : {12U, 8U, 4U, 0U}) {
      sOut += kDigits[(cUnit >> nShift) & 0xFU];
    }
  }
}

void HexToString(std::string_view sHex, std::string& sOut) {
  std::u16string sUnits;
  for (; !sHex.empty(); sHex.remove_prefix(std::min<std::size_t>(4, sHex.size()))) {
    const std::string_view sCode = sHex.substr(0, 4);
    unsigned nCode = 0;
    const auto oResult = std::from_chars(sCode.data(), sCode.data() + sCode.size(), nCode, 16);
    if (oResult.ec != std::errc{} || oResult.ptr != sCode.data() + sCode.size()) {
      throw Failure(FailureNumber::TypeMismatch, "The stored text isn't hexadecimal.");
    }
    sUnits += static_cast<char16_t>(nCode);
  }
  sOut += FromUtf16(sUnits);
}

}  // namespace quillet
