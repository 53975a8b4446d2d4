#include "platform/Sound.h"

namespace quillet {
namespace {

class Silence : public Sound {
 public:
  void Play(int /*nTune*/) override {}
  void Stop() override {}
};

Silence g_oSilence;
Sound* g_pSound = &g_oSilence;

}  // namespace

Sound& TheSound() {
  return *g_pSound;
}

void SetSound(Sound* pSound) {
  g_pSound = pSound != nullptr ? pSound : &g_oSilence;
}

}  // namespace quillet
