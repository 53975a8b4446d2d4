// Sound on Windows, through its multimedia library.
#include <QByteArray>
#include <QFile>

#include <windows.h>
// After windows.h, which it needs.
#include <mmsystem.h>

#include "platform/Sound.h"

namespace quillet {
namespace {

class WindowsSound : public Sound {
 public:
  WindowsSound() = default;
  WindowsSound(const WindowsSound&) = delete;
  WindowsSound& operator=(const WindowsSound&) = delete;
  ~WindowsSound() override { WindowsSound::Stop(); }

  void Play(int nTune) override {
    Stop();  // before its bytes go
    QFile oFile(QString(":/tunes/tune-%1.wav").arg(nTune));
    if (!oFile.open(QIODevice::ReadOnly)) {
      return;
    }
    m_oTune = oFile.readAll();
    PlaySoundW(reinterpret_cast<const wchar_t*>(m_oTune.constData()), nullptr,
               SND_MEMORY | SND_ASYNC | SND_LOOP | SND_NODEFAULT);
  }

  void Stop() override { PlaySoundW(nullptr, nullptr, 0); }

 private:
  QByteArray m_oTune;  ///< played from here
};

}  // namespace

std::unique_ptr<Sound> PlatformSound() {
  return std::make_unique<WindowsSound>();
}

}  // namespace quillet
