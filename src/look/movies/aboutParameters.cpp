#include "look/movies/aboutParameters.h"

#include "platform/Sound.h"

namespace quillet {
namespace {

constexpr QLatin1String kMessage("AboutInfo=");
constexpr QLatin1String kMusic("music=");
constexpr QLatin1String kMute("mute=true");

int TuneOf(const QString& sMusic) {
  if (!sMusic.startsWith(kMusic, Qt::CaseInsensitive)) {
    return 0;
  }
  bool bNumber = false;
  const int nTune = sMusic.mid(kMusic.size()).toInt(&bNumber);
  return bNumber && nTune >= 0 && nTune < kTunes ? nTune : 0;
}

}  // namespace

AboutParameters ParseAboutParameters(const QString& sParameters) {
  const QString sMessage = sParameters.section('&', 0, -3);
  return {sMessage.startsWith(kMessage) ? sMessage.mid(kMessage.size()) : QString(),
          TuneOf(sParameters.section('&', -2, -2)),
          sParameters.section('&', -1).compare(kMute, Qt::CaseInsensitive) == 0};
}

}  // namespace quillet
