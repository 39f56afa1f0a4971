#include "adapters/decal/DirectSound.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "adapters/decal/Com.h"
#include "adapters/decal/WaveFile.h"
#include "core/failure.h"
#include "core/files.h"

namespace ombrel::decal {

namespace {

void Fill(IDirectSoundBuffer& buffer, std::string_view samples) {
    void *first = nullptr, *second = nullptr;
    DWORD first_size = 0, second_size = 0;
    Check(buffer.Lock(0, 0, &first, &first_size, &second, &second_size, DSBLOCK_ENTIREBUFFER));
    std::memcpy(first, samples.data(), std::min<std::size_t>(first_size, samples.size()));
    Check(buffer.Unlock(first, first_size, second, second_size));
}

}  // namespace

void DirectSoundBuffer::SetCurrentPosition(std::int32_t position) {
    Check(buffer_->SetCurrentPosition(static_cast<DWORD>(position)));
}

void DirectSoundBuffer::Play(std::int32_t flags) { Check(buffer_->Play(0, 0, static_cast<DWORD>(flags))); }
void DirectSoundBuffer::Stop() { Check(buffer_->Stop()); }

std::int32_t DirectSoundBuffer::GetStatus() const {
    DWORD status = 0;
    Check(buffer_->GetStatus(&status));
    return static_cast<std::int32_t>(status);
}

DirectSoundDevice::DirectSoundDevice(HWND window) : window_(window ? window : GetDesktopWindow()) {
    IDirectSound8* device = nullptr;
    Check(DirectSoundCreate8(nullptr, &device, nullptr));
    device_.reset(device);
}

void DirectSoundDevice::SetCooperativeLevel(std::int32_t level) {
    Check(device_->SetCooperativeLevel(window_, static_cast<DWORD>(level)));
}

// Sounds go on while the player looks at another window.
std::unique_ptr<host::SoundBuffer> DirectSoundDevice::CreateSoundBuffer(std::string_view path) {
    const std::string content = ReadFile(path);
    const WaveFile wave = WaveFile::In(content);

    std::string extended(std::max(sizeof(WAVEFORMATEX), wave.format.size()), '\0');
    std::memcpy(extended.data(), wave.format.data(), wave.format.size());

    DSBUFFERDESC description{};
    description.dwSize = sizeof description;
    description.dwFlags = DSBCAPS_GLOBALFOCUS | DSBCAPS_GETCURRENTPOSITION2;
    description.dwBufferBytes = static_cast<DWORD>(wave.samples.size());
    description.lpwfxFormat = reinterpret_cast<WAVEFORMATEX*>(extended.data());

    IDirectSoundBuffer* made = nullptr;
    Check(device_->CreateSoundBuffer(&description, &made, nullptr));
    auto buffer = std::make_unique<DirectSoundBuffer>(made);
    Fill(*made, wave.samples);
    return buffer;
}

}  // namespace ombrel::decal
