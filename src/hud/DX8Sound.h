// One alarm sound that loops until it is stopped.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Ref.h"
#include "host/LoopSound.h"

namespace ombrel {

class DX8Sound {
public:
    // Without a sound card the failure is reported here, once; the sound then stays silent.
    DX8Sound();
    ~DX8Sound();
    DX8Sound(const DX8Sound&) = delete;
    DX8Sound& operator=(const DX8Sound&) = delete;

    // Loads a file by its path below the Sounds folder, as "Loop\Bell.wav". One that can't be loaded leaves no sound.
    void SetSound(std::string_view soundname);
    void UnSetSound();

    void Play(bool LoopSound);  // from the beginning
    void StopPlay();
    std::int32_t Status();  // 0 stopped or no sound, 1 playing, 2 looping

private:
    Owned<host::SoundDevice> device_;
    Owned<host::SoundBuffer> buffer_;  // empty while no sound is set
};

}  // namespace ombrel
