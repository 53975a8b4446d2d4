// Lines of a text.
#pragma once

#include <algorithm>
#include <string_view>

namespace quillet {

/// Takes the next line off `sText`, without its end: LF, CR LF or CR; the last needs none. False
/// when nothing is left.
inline bool TakeLine(std::string_view& sText, std::string_view& sLine) {
  if (sText.empty()) {
    return false;
  }
  std::size_t nEnd = std::min(sText.find('\n'), sText.size());
  nEnd = std::min(sText.substr(0, nEnd).find('\r'), nEnd);
  sLine = sText.substr(0, nEnd);
  sText.remove_prefix(nEnd);
  sText.remove_prefix(sText.starts_with("\r\n") ? 2 : sText.empty() ? 0 : 1);
  return true;
}

}  // namespace quillet
