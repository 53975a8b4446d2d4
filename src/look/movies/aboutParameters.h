// The parameters of the about movie.
#pragma once

#include <QString>

namespace quillet {

struct AboutParameters {
  QString sMessage;  ///< with "<br>" for a line break
  int nTune = 0;
  bool bMute = false;
};

/// Reads "AboutInfo=" with the message, "&music=" with a tune's number and "&mute=" with "true" or
/// "false". The message isn't escaped and may hold anything, so the other two are looked for at the
/// end. What can't be understood counts as the first tune, not mute, or no message.
[[nodiscard]] AboutParameters ParseAboutParameters(const QString& sParameters);

}  // namespace quillet
