#include "platform/Temporaries.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <random>
#include <string_view>

#include "platform/Files.h"
#include "platform/paths.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHead = ".quillet-";
constexpr std::string_view kTail = ".tmp";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kLetters = 16;

/// Also true for the files that QSettings makes beside one, whose names go on after the tail.
bool IsTemporary(std::string_view sName) {
  return sName.starts_with(kHead) &&
         sName.find_first_not_of(kDigits, kHead.size()) == kHead.size() + kLetters &&
         sName.substr(kHead.size() + kLetters).starts_with(kTail);
}

}  // namespace

std::string TemporaryBeside(const std::string& sPath) {
  std::random_device oRandom;
  std::string sName(kHead);
  for (std::size_t i = 0; i < kLetters; ++i) {
    sName += kDigits[oRandom() % kDigits.size()];
  }
  return FolderOf(sPath) + sName.append(kTail);
}

void SweepTemporariesBeside(const std::string& sPath) {
  const fs::file_time_type oOld = fs::file_time_type::clock::now() - std::chrono::hours(24);
  const std::string sFolder = FolderOf(sPath);
  std::error_code oError;
  fs::directory_iterator oFiles(PathOf(sFolder.empty() ? "." : sFolder), oError);
  for (; !oError && oFiles != fs::directory_iterator(); oFiles.increment(oError)) {
    std::error_code oIgnored;
    if (IsTemporary(TextOfPath(oFiles->path().filename())) &&
        fs::is_regular_file(oFiles->symlink_status(oIgnored)) &&
        oFiles->last_write_time(oIgnored) < oOld && !oIgnored) {
      fs::remove(oFiles->path(), oIgnored);
    }
  }
}

}  // namespace quillet
