#include "look/font.h"

#include <QFontDatabase>
#include <QStringList>

#include "look/scale.h"

namespace quillet {
namespace {

/// Loads the font the first time.
const QString& Family() {
  static const QString s_sFamily = [] {
    QString sFamily;
    for (const char* const sWeight : {"Regular", "Medium", "SemiBold", "Bold"}) {
      const int nFont =
          QFontDatabase::addApplicationFont(QString(":/fonts/Inter-%1.otf").arg(sWeight));
      const QStringList asFamilies = QFontDatabase::applicationFontFamilies(nFont);
      sFamily = sFamily.isEmpty() ? asFamilies.value(0) : sFamily;
    }
    return sFamily;
  }();
  return s_sFamily;
}

}  // namespace

QFont ThemeFont(double fPoints, QFont::Weight eWeight) {
  QFont oFont(Family());
  oFont.setPointSizeF(fPoints * Zoom());  // only point sizes may be fractional
  oFont.setWeight(eWeight);
  // On Windows hinting rounds letters to whole pixels, which is too wide for narrow places.
  oFont.setHintingPreference(QFont::PreferNoHinting);
  return oFont;
}

}  // namespace quillet
