#include "sections/VisibleList.h"

#include "base/clsRegistryAccess.h"
#include "base/failure.h"

namespace quillet {

clsTokeniser LoadVisibleList(const std::string& sSectionKey) {
  clsTokeniser oList;
  std::string sStored;
  if (Registry().GetRegSettingString(HiveRoot::User, sStored, settings::kVisible,
                                     settings::kControls + sSectionKey, "")) {
    IgnoreFailure([&] { oList.Tokenise(sStored, ","); });
  }
  return oList;
}

bool SaveVisibleList(const std::string& sSectionKey, const clsTokeniser& oList) {
  return Registry().SetRegSettingString(HiveRoot::User, oList.GetFlattenedSegments(0),
                                        settings::kVisible, settings::kControls + sSectionKey);
}

bool NameInVisibleList(std::string_view sName, const clsTokeniser& oList) {
  if (oList.IsEmpty()) {
    return true;
  }
  for (std::int32_t i = 0; i < oList.Count(); ++i) {
    if (sName.find(oList.Element(i)) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

}  // namespace quillet
