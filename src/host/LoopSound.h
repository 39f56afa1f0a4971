// A device that can loop a wave file, as DirectSound does.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace ombrel::host {

// One loaded wave file.
class SoundBuffer {
public:
    virtual ~SoundBuffer() = default;

    virtual void SetCurrentPosition(std::int32_t position) = 0;
    virtual void Play(std::int32_t flags) = 0;  // 1 loops, 0 plays once
    virtual void Stop() = 0;
    virtual std::int32_t GetStatus() const = 0;  // bits: 1 playing, 4 looping
};

class SoundDevice {
public:
    virtual ~SoundDevice() = default;

    // level 1 is the priority that a game's plug-in asks for.
    virtual void SetCooperativeLevel(std::int32_t level) = 0;

    // Throws Failure when the file can't be read.
    virtual std::unique_ptr<SoundBuffer> CreateSoundBuffer(std::string_view path) = 0;
};

}  // namespace ombrel::host
