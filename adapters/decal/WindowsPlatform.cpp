#include "adapters/decal/WindowsPlatform.h"

#include <shlobj.h>

#include <array>
#include <filesystem>
#include <memory>

#include "adapters/decal/Convert.h"
#include "adapters/decal/DirectSound.h"
#include "adapters/decal/Module.h"
#include "core/failure.h"
#include "core/files.h"

#undef SHGetFolderPath

namespace ombrel::decal {

namespace {

// A FILETIME counts tenths of microseconds since 1601.
constexpr std::int64_t kTicksPerMillisecond = 10'000;
constexpr std::int64_t kMillisecondsTo1970 = 11'644'473'600'000;

// How many messages one DoEvents delivers at most: a busy game must not hold it for ever.
constexpr int kMessages = 200;

struct CloseHandleAtEnd {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseHandleAtEnd>;

}  // namespace

std::int64_t WindowsPlatform::Now() const {
    FILETIME time{};
    GetSystemTimeAsFileTime(&time);
    const auto ticks = static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
    return ticks / kTicksPerMillisecond - kMillisecondsTo1970;
}

host::TimeZone WindowsPlatform::GetTimeZoneInformation() const {
    TIME_ZONE_INFORMATION zone{};
    const DWORD season = ::GetTimeZoneInformation(&zone);
    return {static_cast<std::int32_t>(zone.Bias), season == TIME_ZONE_ID_DAYLIGHT, zone.DaylightDate.wMonth != 0};
}

host::Folder WindowsPlatform::SHGetFolderPath(std::int32_t id) const {
    std::array<wchar_t, MAX_PATH> path{};
    const HRESULT status = SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return {static_cast<std::uint32_t>(status), status == S_OK ? ToUtf8(path.data()) : std::string()};
}

std::string WindowsPlatform::ProgramPath() const {
    return ToUtf8(std::filesystem::path(ModuleFile(ThisModule())).parent_path().native());
}

void WindowsPlatform::FlushFile(const std::string& path) {
    const HANDLE opened = CreateFileW(NativePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) throw Failure(failure::kFileNotFound);
    const Handle file(opened);
    if (!FlushFileBuffers(file.get())) throw Failure(failure::kDeviceIO);
}

void WindowsPlatform::sndPlaySound(std::string_view path, std::int32_t flags) {
    sndPlaySoundW(NativePath(path).c_str(), static_cast<UINT>(flags));
}

std::unique_ptr<host::SoundDevice> WindowsPlatform::DirectSoundCreate() {
    return std::make_unique<DirectSoundDevice>(window_);
}

std::int16_t WindowsPlatform::GetAsyncKeyState(std::int32_t key) const { return ::GetAsyncKeyState(key); }
std::int16_t WindowsPlatform::GetKeyState(std::int32_t key) const { return ::GetKeyState(key); }

std::int32_t WindowsPlatform::MapVirtualKey(std::int32_t key, std::int32_t kind) const {
    return static_cast<std::int32_t>(MapVirtualKeyA(static_cast<UINT>(key), static_cast<UINT>(kind)));
}

std::int16_t WindowsPlatform::VkKeyScan(char character) const { return VkKeyScanA(character); }

void WindowsPlatform::keybd_event(std::int32_t key, std::int32_t scan, std::int32_t flags) {
    ::keybd_event(static_cast<BYTE>(key), static_cast<BYTE>(scan), static_cast<DWORD>(flags), 0);
}

host::Point WindowsPlatform::GetCursorPos() const {
    POINT point{};
    ::GetCursorPos(&point);
    return {static_cast<std::int32_t>(point.x), static_cast<std::int32_t>(point.y)};
}

void WindowsPlatform::SetCursorPos(std::int32_t x, std::int32_t y) { ::SetCursorPos(x, y); }

host::Point WindowsPlatform::ScreenToClient(host::Point point) const {
    POINT turned{point.x, point.y};
    ::ScreenToClient(window_, &turned);
    return {static_cast<std::int32_t>(turned.x), static_cast<std::int32_t>(turned.y)};
}

host::Point WindowsPlatform::ClientToScreen(host::Point point) const {
    POINT turned{point.x, point.y};
    ::ClientToScreen(window_, &turned);
    return {static_cast<std::int32_t>(turned.x), static_cast<std::int32_t>(turned.y)};
}

void WindowsPlatform::mouse_event(std::int32_t flags) { ::mouse_event(static_cast<DWORD>(flags), 0, 0, 0, 0); }

void WindowsPlatform::DoEvents() {
    MSG message{};
    for (int delivered = 0; delivered < kMessages && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); ++delivered) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));  // the game's own loop is to see it
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace ombrel::decal
