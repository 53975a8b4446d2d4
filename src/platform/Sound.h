// Plays the program's tunes, with whatever sound output the machine has.
#pragma once

#include <memory>

namespace quillet {

inline constexpr int kTunes = 4;

class Sound {
 public:
  virtual ~Sound() = default;

  /// Loops a tune, 0 to kTunes - 1, in place of the one playing; any other number only stops that
  /// one. Returns at once, and fails silently if there is no sound.
  virtual void Play(int nTune) = 0;
  virtual void Stop() = 0;
};

/// The sound that SetSound set last, or silence.
[[nodiscard]] Sound& TheSound();

/// Makes `pSound` the sound; null is silence. Not owned; must outlive its use.
void SetSound(Sound* pSound);

/// The sound of this platform. Costs nothing until the first tune plays.
[[nodiscard]] std::unique_ptr<Sound> PlatformSound();

}  // namespace quillet
