// Lines of a text.
#pragma once

#include <string_view>

namespace quillet {

/// Takes the next line off `sText`, without its end: LF, CR LF or CR; the last needs none. False
/// when nothing is left.
inline bool TakeLine(std::string_view& sText, std::string_view& sLine) {
  if (sText.empty()) {
    return false;
  }
  const std::size_t nEnd = sText.find_first_of("\r\n");
  sLine = sText.substr(0, nEnd);
  const bool bLineFeedToo =
      nEnd != std::string_view::npos && sText.substr(nEnd).starts_with("\r\n");
  sText.remove_prefix(nEnd == std::string_view::npos ? sText.size()
                                                     : nEnd + (bLineFeedToo ? 2 : 1));
  return true;
}

}  // namespace quillet
