// Sound on a desktop that may lack Qt Multimedia: all that needs it is in a library beside the
// program, which is loaded when the first tune plays. Without it there is silence.
#include <QCoreApplication>
#include <QLibrary>

#include "platform/Sound.h"
#include "platform/qt/soundLibrary.h"

namespace quillet {
namespace {

constexpr const char* kFolders[] = {"/", "/../lib/quillet/"};  // relative to the program's own

class LibrarySound : public Sound {
 public:
  LibrarySound() = default;
  LibrarySound(const LibrarySound&) = delete;
  LibrarySound& operator=(const LibrarySound&) = delete;
  ~LibrarySound() override { LibrarySound::Stop(); }

  void Play(int nTune) override {
    Load();
    if (m_pPlay != nullptr && m_pStop != nullptr) {
      m_pPlay(nTune);
    }
  }

  void Stop() override {
    if (m_pStop != nullptr) {
      m_pStop();
    }
  }

 private:
  /// Tries once. The library is never unloaded: it has threads of its own.
  void Load() {
    if (m_bTried) {
      return;
    }
    m_bTried = true;
    for (const char* const sFolder : kFolders) {
      QLibrary oLibrary(QCoreApplication::applicationDirPath() + sFolder + kSoundLibrary);
      if (oLibrary.load()) {
        m_pPlay = reinterpret_cast<PlayTuneFunction*>(oLibrary.resolve(kPlayTune));
        m_pStop = reinterpret_cast<StopTuneFunction*>(oLibrary.resolve(kStopTune));
        return;
      }
    }
  }

  bool m_bTried = false;
  PlayTuneFunction* m_pPlay = nullptr;
  StopTuneFunction* m_pStop = nullptr;
};

}  // namespace

std::unique_ptr<Sound> PlatformSound() {
  return std::make_unique<LibrarySound>();
}

}  // namespace quillet
