#include "adapters/standin/Sound.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "adapters/standin/Object.h"

namespace ombrel::standin {

namespace {

std::string& OpenedWave() {
    static std::string path;
    return path;
}

bool IsWave(std::string_view path) {
    constexpr std::string_view extension = ".wav";
    return path.size() >= extension.size() &&
           std::equal(extension.rbegin(), extension.rend(), path.rbegin(),
                      [](char a, char b) { return a == std::tolower(static_cast<unsigned char>(b)); });
}

struct BufferSlots : IDirectSoundBuffer {
    using Base = IUnknown;
    static constexpr GUID kId = {0x279AFA85, 0x4981, 0x11CE, {0xA5, 0x21, 0x00, 0x20, 0xAF, 0x0B, 0xE5, 0x60}};

    STDMETHOD(GetCaps)(LPDSBCAPS) override { return NotOffered(); }
    STDMETHOD(GetCurrentPosition)(LPDWORD, LPDWORD) override { return NotOffered(); }
    STDMETHOD(GetFormat)(LPWAVEFORMATEX, DWORD, LPDWORD) override { return NotOffered(); }
    STDMETHOD(GetVolume)(LPLONG) override { return NotOffered(); }
    STDMETHOD(GetPan)(LPLONG) override { return NotOffered(); }
    STDMETHOD(GetFrequency)(LPDWORD) override { return NotOffered(); }
    STDMETHOD(Initialize)(LPDIRECTSOUND, LPCDSBUFFERDESC) override { return NotOffered(); }
    STDMETHOD(SetFormat)(LPCWAVEFORMATEX) override { return NotOffered(); }
    STDMETHOD(SetVolume)(LONG) override { return NotOffered(); }
    STDMETHOD(SetPan)(LONG) override { return NotOffered(); }
    STDMETHOD(SetFrequency)(DWORD) override { return NotOffered(); }
    STDMETHOD(Restore)() override { return NotOffered(); }
};

class Buffer final : public Object<BufferSlots> {
public:
    Buffer(std::unique_ptr<host::SoundBuffer> buffer, DWORD size) : buffer_(std::move(buffer)), memory_(size) {}

    STDMETHOD(GetStatus)(LPDWORD status) override {
        return Serve([&] { *status = static_cast<DWORD>(buffer_->GetStatus()); });
    }
    STDMETHOD(Lock)(DWORD, DWORD, LPVOID* part, LPDWORD size, LPVOID* rest, LPDWORD rest_size, DWORD) override {
        return Serve([&] {
            *part = memory_.data();
            *size = static_cast<DWORD>(memory_.size());
            if (rest) *rest = nullptr;
            if (rest_size) *rest_size = 0;
        });
    }
    STDMETHOD(Unlock)(LPVOID, DWORD, LPVOID, DWORD) override {
        return Serve([] {});
    }
    STDMETHOD(Play)(DWORD, DWORD, DWORD flags) override {
        return Serve([&] { buffer_->Play(static_cast<std::int32_t>(flags)); });
    }
    STDMETHOD(SetCurrentPosition)(DWORD position) override {
        return Serve([&] { buffer_->SetCurrentPosition(static_cast<std::int32_t>(position)); });
    }
    STDMETHOD(Stop)() override {
        return Serve([&] { buffer_->Stop(); });
    }

private:
    std::unique_ptr<host::SoundBuffer> buffer_;
    std::vector<unsigned char> memory_;
};

struct DeviceSlots : IDirectSound8 {
    using Base = IUnknown;
    static constexpr GUID kId = {0xC50A7E93, 0xF395, 0x4834, {0x9E, 0xF6, 0x7F, 0xA9, 0x9D, 0xE5, 0x09, 0x66}};

    STDMETHOD(GetCaps)(LPDSCAPS) override { return NotOffered(); }
    STDMETHOD(DuplicateSoundBuffer)(LPDIRECTSOUNDBUFFER, LPLPDIRECTSOUNDBUFFER) override { return NotOffered(); }
    STDMETHOD(Compact)() override { return NotOffered(); }
    STDMETHOD(GetSpeakerConfig)(LPDWORD) override { return NotOffered(); }
    STDMETHOD(SetSpeakerConfig)(DWORD) override { return NotOffered(); }
    STDMETHOD(Initialize)(LPCGUID) override { return NotOffered(); }
    STDMETHOD(VerifyCertification)(LPDWORD) override { return NotOffered(); }
};

class Device final : public Object<DeviceSlots> {
public:
    explicit Device(std::unique_ptr<host::SoundDevice> device) : device_(std::move(device)) { OpenedWave().clear(); }

    // A device is told of files that aren't there, too: it stands for whoever reads them.
    STDMETHOD(CreateSoundBuffer)(LPCDSBUFFERDESC description, LPLPDIRECTSOUNDBUFFER buffer, IUnknown*) override {
        return Serve([&] {
            *buffer = nullptr;
            *buffer = Make<Buffer>(device_->CreateSoundBuffer(OpenedWave()), description->dwBufferBytes).Detach();
        });
    }
    STDMETHOD(SetCooperativeLevel)(HWND, DWORD level) override {
        return Serve([&] { device_->SetCooperativeLevel(static_cast<std::int32_t>(level)); });
    }

    void Missing(std::string_view path) {
        try {
            device_->CreateSoundBuffer(path);
        } catch (const Failure&) {
        }
    }

private:
    std::unique_ptr<host::SoundDevice> device_;
};

// The device that was made last, while it is there.
Device*& LastDevice() {
    static Device* device = nullptr;
    return device;
}

}  // namespace

void NoteOpened(std::string_view path, bool found) {
    if (!IsWave(path)) return;
    OpenedWave() = path;
    if (!found && LastDevice()) LastDevice()->Missing(path);
}

HRESULT MakeSoundDevice(std::unique_ptr<host::SoundDevice> device, IDirectSound8** result) {
    auto made = Make<Device>(std::move(device));
    LastDevice() = made.get();
    made->gone = [device_of_ours = made.get()] {
        if (LastDevice() == device_of_ours) LastDevice() = nullptr;
    };
    *result = made.Detach();
    return DS_OK;
}

}  // namespace ombrel::standin
