#include "look/movies/movies.h"

#include <utility>

#include "look/movies/AboutMovie.h"
#include "look/movies/ButtonMovie.h"
#include "look/movies/SplashMovie.h"

namespace quillet {
namespace {

using Maker = Movie* (*)(const QString& sParameters, QWidget& oStage, SendCommand oSend);

template <Icon eIcon>
Movie* MakeButton(const QString& /*sParameters*/, QWidget& oStage, SendCommand oSend) {
  return new ButtonMovie(eIcon, oStage, std::move(oSend));
}

template <typename Kind>
Movie* MakeWithParameters(const QString& sParameters, QWidget& oStage, SendCommand oSend) {
  return new Kind(sParameters, oStage, std::move(oSend));
}

constexpr struct {
  const char* sFileName;
  Maker pMake;
} kMovies[] = {
    {"New_button.swf", MakeButton<Icon::New>},
    {"Calc_button.swf", MakeButton<Icon::Calculator>},
    {"Wizard_button.swf", MakeButton<Icon::Wizard>},
    {"Save_button.swf", MakeButton<Icon::Save>},
    {"Load_button.swf", MakeButton<Icon::Load>},
    {"Config_button.swf", MakeButton<Icon::Configure>},
    {"About_button.swf", MakeButton<Icon::About>},
    {"About.swf", MakeWithParameters<AboutMovie>},
    {"Splash.swf", MakeWithParameters<SplashMovie>},
};

}  // namespace

Movie* MakeMovie(const QString& sFileName, const QString& sParameters, QWidget& oStage,
                 SendCommand oSend) {
  for (const auto& oMovie : kMovies) {
    if (sFileName.compare(QLatin1String(oMovie.sFileName), Qt::CaseInsensitive) == 0) {
      return oMovie.pMake(sParameters, oStage, std::move(oSend));
    }
  }
  return nullptr;
}

}  // namespace quillet
