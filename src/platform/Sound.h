// The tunes of the program, through whatever the machine plays sound with.
#pragma once

#include <memory>

namespace quillet {

inline constexpr int kTunes = 4;

class Sound {
 public:
  virtual ~Sound() = default;

  /// Plays a tune, 0 to kTunes - 1, over and over in the place of the one before; any other number
  /// only ends that one. Returns at once, and says nothing where there is no sound.
  virtual void Play(int nTune) = 0;
  virtual void Stop() = 0;
};

/// What the program plays its tunes with: the sound that SetSound has set last, or silence.
[[nodiscard]] Sound& TheSound();

/// Makes `pSound` the sound; null is silence. It isn't owned and must outlive its use.
void SetSound(Sound* pSound);

/// The sound of this platform. Costs nothing until the first tune plays.
[[nodiscard]] std::unique_ptr<Sound> PlatformSound();

}  // namespace quillet
