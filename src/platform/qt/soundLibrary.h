// The exports and the name of the library that plays sound.
#pragma once

namespace quillet {

inline constexpr const char* kSoundLibrary = "quillet-sound";

/// As Sound::Play and Sound::Stop.
using PlayTuneFunction = void(int nTune);
using StopTuneFunction = void();
inline constexpr const char* kPlayTune = "QuilletPlayTune";
inline constexpr const char* kStopTune = "QuilletStopTune";

}  // namespace quillet
