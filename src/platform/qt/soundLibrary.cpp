#include "platform/qt/soundLibrary.h"

#include <QSoundEffect>
#include <QUrl>
#include <QtGlobal>
#include <memory>

namespace {

std::unique_ptr<QSoundEffect> g_pEffect;  // none while nothing plays

}  // namespace

extern "C" Q_DECL_EXPORT void QuilletStopTune() {
  g_pEffect.reset();
}

extern "C" Q_DECL_EXPORT void QuilletPlayTune(int nTune) {
  g_pEffect = std::make_unique<QSoundEffect>();
  g_pEffect->setSource(QUrl(QString("qrc:/tunes/tune-%1.wav").arg(nTune)));
  g_pEffect->setLoopCount(QSoundEffect::Infinite);
  g_pEffect->play();
}
