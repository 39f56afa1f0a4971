#include "adapters/sim/Platform.h"

#include "adapters/sim/Keyboard.h"
#include "adapters/sim/Sound.h"
#include "adapters/sim/flush.h"

namespace ombrel::sim {

namespace {

constexpr std::int16_t kHeld = -32768;
constexpr std::int16_t kToggled = 1;
constexpr std::uint32_t kInvalidArgument = 0x80070057;

host::Folder FolderOf(std::uint32_t status, const std::string& path) {
    return {status, status == 0 ? path : std::string()};
}

}  // namespace

std::int64_t SimPlatform::Now() const {
    client_.calls.Note("Platform.Now"_op);
    return client_.clock.universal();
}

host::TimeZone SimPlatform::GetTimeZoneInformation() const {
    client_.calls.Note("Platform.GetTimeZoneInformation"_op);
    return client_.system.zone;
}

host::Folder SimPlatform::SHGetFolderPath(std::int32_t id) const {
    client_.calls.Note("Platform.SHGetFolderPath"_op);
    const SystemState& system = client_.system;
    if (id == host::folder::kDocuments) return FolderOf(system.documents_status, system.documents);
    if (id == host::folder::kCommonData) return FolderOf(system.common_data_status, system.common_data);
    return {kInvalidArgument, {}};
}

std::string SimPlatform::ProgramPath() const {
    client_.calls.Note("Platform.ProgramPath"_op);
    return client_.system.plugin_folder;
}

void SimPlatform::FlushFile(const std::string& path) {
    client_.calls.Note("Platform.FlushFile"_op);
    sim::FlushFile(path);
}

void SimPlatform::sndPlaySound(std::string_view path, std::int32_t flags) {
    client_.calls.Note("Platform.sndPlaySound"_op, {{"path", path}, {"flags", flags}});
}

std::unique_ptr<host::SoundDevice> SimPlatform::DirectSoundCreate() {
    client_.calls.Note("Platform.DirectSoundCreate"_op);
    return std::make_unique<SimSoundDevice>(client_.calls);
}

std::int16_t SimPlatform::GetAsyncKeyState(std::int32_t key) const {
    client_.calls.Note("Platform.GetAsyncKeyState"_op);
    return client_.system.keys_down.contains(key) ? kHeld : std::int16_t{0};
}

std::int16_t SimPlatform::GetKeyState(std::int32_t key) const {
    client_.calls.Note("Platform.GetKeyState"_op);
    const int held = client_.system.keys_down.contains(key) ? kHeld : 0;
    const int toggled = client_.system.keys_toggled.contains(key) ? kToggled : 0;
    return static_cast<std::int16_t>(held | toggled);
}

std::int32_t SimPlatform::MapVirtualKey(std::int32_t key, std::int32_t kind) const {
    client_.calls.Note("Platform.MapVirtualKey"_op);
    constexpr std::int32_t to_scan_code = 0;
    return kind == to_scan_code ? ScanCodeOf(key) : 0;
}

std::int16_t SimPlatform::VkKeyScan(char character) const {
    client_.calls.Note("Platform.VkKeyScan"_op);
    return KeyOf(character);
}

void SimPlatform::keybd_event(std::int32_t key, std::int32_t scan, std::int32_t flags) {
    client_.calls.Note("Platform.keybd_event"_op, {{"key", key}, {"scan", scan}, {"flags", flags}});
}

host::Point SimPlatform::GetCursorPos() const {
    client_.calls.Note("Platform.GetCursorPos"_op);
    return client_.system.cursor;
}

void SimPlatform::SetCursorPos(std::int32_t x, std::int32_t y) {
    client_.calls.Note("Platform.SetCursorPos"_op, {{"x", x}, {"y", y}});
    client_.system.cursor = {x, y};
}

host::Point SimPlatform::ScreenToClient(host::Point point) const {
    client_.calls.Note("Platform.ScreenToClient"_op);
    return point;
}

host::Point SimPlatform::ClientToScreen(host::Point point) const {
    client_.calls.Note("Platform.ClientToScreen"_op);
    return point;
}

void SimPlatform::mouse_event(std::int32_t flags) { client_.calls.Note("Platform.mouse_event"_op, {{"flags", flags}}); }

void SimPlatform::DoEvents() { client_.calls.Note("Platform.DoEvents"_op); }

}  // namespace ombrel::sim
