#include "documents/lastFolder.h"

#include "base/basCommon.h"
#include "base/clsRegistryAccess.h"
#include "platform/Files.h"
#include "platform/Host.h"

namespace quillet {
namespace {

std::string g_sLastFolder;  // empty until it is first asked for

}  // namespace

std::string LastFolder() {
  if (g_sLastFolder.empty()) {
    const std::string sDefault =
        CleanString(TheHost().DocumentsFolder()) + NativePath("\\My Auctions");
    const Setting& oSetting = settings::kLastFolder;
    Registry().GetRegSettingString(oSetting.eRoot, g_sLastFolder, oSetting.sName, oSetting.sSection,
                                   sDefault);
  }
  return g_sLastFolder;
}

void SetLastFolder(const std::string& sPath) {
  g_sLastFolder = sPath;
  Registry().Set(settings::kLastFolder, sPath);
}

}  // namespace quillet
