// The system under the client: clock, folders, sounds, keys and mouse.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "host/LoopSound.h"
#include "host/Types.h"

namespace ombrel::host {

// Where the player's clock stands against universal time.
struct TimeZone {
    std::int32_t bias = 0;       // minutes to add to local standard time to get universal time
    bool daylight = false;       // the system says that it is summer time now
    bool daylight_rule = false;  // the zone has a rule for summer time
};

// A folder of the system: `status` 0 with its path, 1 when it does not exist, or an error number.
struct Folder {
    std::uint32_t status = 0;
    std::string path;
};

namespace folder {
constexpr std::int32_t kDocuments = 5;    // the user's documents
constexpr std::int32_t kCommonData = 35;  // application data of all users
}  // namespace folder

class Platform {
public:
    virtual ~Platform() = default;

    // Milliseconds since 1 January 1970, universal time. All time comes from here.
    virtual std::int64_t Now() const = 0;
    virtual TimeZone GetTimeZoneInformation() const = 0;

    virtual Folder SHGetFolderPath(std::int32_t id) const = 0;
    virtual std::string ProgramPath() const = 0;  // folder of the plug-in's own file, without a trailing separator

    // Makes sure that a file's content survives a power cut. May take long: never on the road of a chat line.
    virtual void FlushFile(const std::string& path) = 0;

    // Plays a wave file in the background. flags 3: asynchronous, no default sound.
    virtual void sndPlaySound(std::string_view path, std::int32_t flags) = 0;
    virtual std::unique_ptr<SoundDevice> DirectSoundCreate() = 0;

    // Keys go by virtual key codes; below 0 is held down.
    virtual std::int16_t GetAsyncKeyState(std::int32_t key) const = 0;
    virtual std::int16_t GetKeyState(std::int32_t key) const = 0;
    virtual std::int32_t MapVirtualKey(std::int32_t key, std::int32_t kind) const = 0;
    virtual std::int16_t VkKeyScan(char character) const = 0;  // low byte key, high byte shift state
    virtual void keybd_event(std::int32_t key, std::int32_t scan, std::int32_t flags) = 0;

    // The cursor is in screen coordinates; the other two convert from and to the game window's.
    virtual Point GetCursorPos() const = 0;
    virtual void SetCursorPos(std::int32_t x, std::int32_t y) = 0;
    virtual Point ScreenToClient(Point point) const = 0;
    virtual Point ClientToScreen(Point point) const = 0;
    virtual void mouse_event(std::int32_t flags) = 0;

    // Lets the system deliver what is waiting.
    virtual void DoEvents() = 0;
};

}  // namespace ombrel::host
