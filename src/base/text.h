// Characters: text is UTF-8 inside, and where characters are counted, a character is a UTF-16 unit.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillet {

/// How many UTF-16 units a UTF-8 text takes. A byte that isn't valid UTF-8 counts as one.
[[nodiscard]] std::size_t Utf16Length(std::string_view sText);

/// The most characters that a text may have where its positions are counted in 16 bits.
inline constexpr std::size_t kLongestText = 32766;

/// At most the first `nLongest` UTF-16 units of the text. No character is cut in two.
[[nodiscard]] std::string CutText(std::string sText, std::size_t nLongest);

[[nodiscard]] std::u16string ToUtf16(std::string_view sText);
[[nodiscard]] std::string FromUtf16(std::u16string_view sText);

[[nodiscard]] bool IsValidUtf8(std::string_view sBytes);

/// The text of a file: UTF-8 without a byte-order mark, anything else read as Windows-1252.
[[nodiscard]] std::string DecodeText(std::string sBytes);

/// Turns a to z into A to Z; other characters stay.
[[nodiscard]] std::string UpperCase(std::string sText);

/// Turns A to Z into a to z; other characters stay.
[[nodiscard]] constexpr char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

[[nodiscard]] constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

[[nodiscard]] bool EqualIgnoringCase(std::string_view sLeft, std::string_view sRight);

/// The text with its control characters shown as "\x1b" and the like.
[[nodiscard]] std::string ShowControls(std::string_view sText);

/// Without the blanks (spaces and tabs) at both ends.
[[nodiscard]] std::string_view Trim(std::string_view sText);

/// Without the NUL characters at its end.
[[nodiscard]] std::string TrimAtNul(std::string sText);

/// Prepends `sPad` until the text has at least `nLength` characters. An empty pad adds nothing.
[[nodiscard]] std::string PadLeftWith(std::string sText, std::size_t nLength,
                                      std::string_view sPad);

/// Appends to `sOut`, for each character of `sText`, its code as four hexadecimal digits.
void StringToHex(std::string_view sText, std::string& sOut);

/// The reverse: appends to `sOut` the character of each four digits. Throws a Failure on text that
/// isn't hexadecimal.
void HexToString(std::string_view sHex, std::string& sOut);

}  // namespace quillet
