// Looping sounds by DirectSound.
#pragma once

#include <memory>

#include "adapters/decal/Win32.h"
// after Windows itself
#include <dsound.h>

#include "host/LoopSound.h"

namespace ombrel::decal {

struct ReleaseAtEnd {
    void operator()(IUnknown* object) const { object->Release(); }
};

class DirectSoundBuffer final : public host::SoundBuffer {
public:
    explicit DirectSoundBuffer(IDirectSoundBuffer* buffer) : buffer_(buffer) {}

    void SetCurrentPosition(std::int32_t position) override;
    void Play(std::int32_t flags) override;
    void Stop() override;
    std::int32_t GetStatus() const override;

private:
    std::unique_ptr<IDirectSoundBuffer, ReleaseAtEnd> buffer_;
};

class DirectSoundDevice final : public host::SoundDevice {
public:
    // The default device. Throws Failure when there is none.
    explicit DirectSoundDevice(HWND window);

    void SetCooperativeLevel(std::int32_t level) override;
    std::unique_ptr<host::SoundBuffer> CreateSoundBuffer(std::string_view path) override;

private:
    HWND window_;
    std::unique_ptr<IDirectSound8, ReleaseAtEnd> device_;
};

}  // namespace ombrel::decal
