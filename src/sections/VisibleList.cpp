#include "sections/VisibleList.h"

#include <map>

#include "base/clsRegistryAccess.h"
#include "base/failure.h"

namespace quillet {
namespace {

/// Lists that couldn't be stored, by section: where none is stored, they hold for as long as the
/// program runs.
std::map<std::string, std::string>& UnstoredLists() {
  static std::map<std::string, std::string> s_asLists;
  return s_asLists;
}

}  // namespace

clsTokeniser LoadVisibleList(const std::string& sSectionKey) {
  std::optional<std::string> sText =
      Registry().Find(settings::kControls + sSectionKey, settings::kVisible);
  if (const auto oUnstored = UnstoredLists().find(sSectionKey);
      !sText && oUnstored != UnstoredLists().end()) {
    sText = oUnstored->second;
  }
  clsTokeniser oList;
  if (sText) {
    IgnoreFailure([&] { oList.Tokenise(*sText, ","); });
  }
  return oList;
}

bool SaveVisibleList(const std::string& sSectionKey, const clsTokeniser& oList) {
  const std::string sText = oList.GetFlattenedSegments(0);
  const bool bStored = Registry().Set(settings::kControls + sSectionKey, settings::kVisible, sText);
  UnstoredLists().erase(sSectionKey);
  if (!bStored) {
    UnstoredLists()[sSectionKey] = sText;
  }
  return bStored;
}

bool NameInVisibleList(std::string_view sName, const clsTokeniser& oList) {
  for (std::int32_t i = 0; i < oList.Count(); ++i) {
    if (sName.find(oList.Element(i)) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

}  // namespace quillet
