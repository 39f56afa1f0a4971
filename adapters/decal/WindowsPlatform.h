// The system under the client.
//
// Windows is called through plain imports, so that a test can put others in their place.
#pragma once

#include "adapters/decal/Win32.h"
#include "host/Platform.h"

namespace ombrel::decal {

class WindowsPlatform final : public host::Platform {
public:
    // The game's window, against which cursor positions are turned.
    HWND window() const { return window_; }
    void set_window(HWND window) { window_ = window; }

    std::int64_t Now() const override;
    host::TimeZone GetTimeZoneInformation() const override;
    host::Folder SHGetFolderPath(std::int32_t id) const override;
    std::string ProgramPath() const override;
    void FlushFile(const std::string& path) override;

    void sndPlaySound(std::string_view path, std::int32_t flags) override;
    std::unique_ptr<host::SoundDevice> DirectSoundCreate() override;

    std::int16_t GetAsyncKeyState(std::int32_t key) const override;
    std::int16_t GetKeyState(std::int32_t key) const override;
    std::int32_t MapVirtualKey(std::int32_t key, std::int32_t kind) const override;
    std::int16_t VkKeyScan(char character) const override;
    void keybd_event(std::int32_t key, std::int32_t scan, std::int32_t flags) override;

    host::Point GetCursorPos() const override;
    void SetCursorPos(std::int32_t x, std::int32_t y) override;
    host::Point ScreenToClient(host::Point point) const override;
    host::Point ClientToScreen(host::Point point) const override;
    void mouse_event(std::int32_t flags) override;
    void DoEvents() override;

private:
    HWND window_ = nullptr;
};

}  // namespace ombrel::decal
