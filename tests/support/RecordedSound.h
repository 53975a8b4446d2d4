// A sound that writes down what it is asked to play.
#pragma once

#include <string>

#include "platform/Sound.h"

namespace quillet {

/// The program's sound for as long as it lives.
class RecordedSound : public Sound {
 public:
  RecordedSound() { SetSound(this); }
  RecordedSound(const RecordedSound&) = delete;
  RecordedSound& operator=(const RecordedSound&) = delete;
  ~RecordedSound() override { SetSound(nullptr); }

  void Play(int nTune) override { sPlaying = "tune " + std::to_string(nTune); }
  void Stop() override { sPlaying = "nothing"; }

  std::string sPlaying = "nothing";
};

}  // namespace quillet
