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
    g_sLastFolder =
        Registry()
            .Find(settings::kLastFolder)
            .value_or(CleanString(TheHost().DocumentsFolder()) + NativePath("\\My Auctions"));
  }
  return g_sLastFolder;
}

void SetLastFolder(const std::string& sPath) {
  g_sLastFolder = sPath;
  Registry().Set(settings::kLastFolder, sPath);
}

}  // namespace quillet
