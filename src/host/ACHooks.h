// The client itself: its chat windows, its state, and what a player can do with objects.
//
// Text is UTF-8 on this side; the adapter converts. Everything happens on the client's thread, and events may arrive
// while a call of ours is still under way. A call that fails throws Failure.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "host/Types.h"

namespace ombrel::host {

// Seconds for SetIdleTime.
namespace idle_time {
constexpr double kClient = 1200.0;       // as the client starts
constexpr double kNever = 2419200000.0;  // no evening is that long
}  // namespace idle_time

class ACHooks {
public:
    virtual ~ACHooks() = default;

    // Writes a line in chat colour `color` to `window`: 0 the client's default, 1 main, 2 to 5 the floating windows.
    // The line raises no ChatTextIntercept.
    virtual void ChatOut(std::string_view text, std::int32_t color, std::int32_t window) = 0;

    // The same without the client's own formatting.
    virtual void ChatOutRaw(std::string_view text, std::int32_t color, std::int32_t window) = 0;

    // Runs a line as if the player had typed it. Raises no ChatParserIntercept.
    virtual void InvokeChatParser(std::string_view text) = 0;

    // After how many idle seconds the client logs the character out.
    virtual void SetIdleTime(double seconds) = 0;

    virtual Id CurrentSelection() const = 0;        // 0 for none
    virtual bool ChatState() const = 0;             // the chat input is open
    virtual std::int32_t BusyState() const = 0;     // 0 when the character is free to act
    virtual std::int32_t PointerState() const = 0;  // image of the pointer
    virtual std::int32_t CombatMode() const = 0;    // 1 peace, 2 melee, 4 missile, 8 magic
    virtual Id ReferenceContainer() const = 0;      // the open vendor, 0 for none
    virtual Rect Region3D() const = 0;              // the 3D area of the client's window

    // Whether the client still knows the object. Ask before each item action: objects go without notice.
    virtual bool IsValidObject(Id id) const = 0;

    virtual void SelectItem(Id id) = 0;
    virtual void UseItem(Id id, std::int32_t flag) = 0;
    virtual void UseItemOnTarget(Id id, Id target) = 0;
    virtual void GiveItem(Id id, Id target) = 0;

    // Queues an identification, which the server answers later. Both are the same request.
    virtual void IdentifyObject(Id id) = 0;
    virtual void RequestID(Id id) = 0;

    // How many of the selected stack the next action takes.
    virtual void SetStackSize(std::int32_t count) = 0;

    // Moves the stack `source` onto the stack `target`.
    virtual void MergeStacks(Id source, Id target) = 0;

    // The trade window. The buy list takes the vendor's goods by id, the sell list the player's things.
    virtual bool VendorOpen() const = 0;
    virtual void VendorAddBuy(Id id, std::int32_t count) = 0;
    virtual void VendorBuyAll() = 0;
    virtual void VendorAddSell(Id id) = 0;
    virtual void VendorSellAll() = 0;

    // A line is about to be shown; set `eat` to keep it from the screen.
    std::function<void(const std::string& text, std::int32_t color, std::int32_t window, bool& eat)> ChatTextIntercept;
    // The player has submitted a line in the chat box; set `eat` to keep it from the client.
    std::function<void(const std::string& text, bool& eat)> ChatParserIntercept;
    // A status text is about to be shown over the 3D area.
    std::function<void(const std::string& text, bool& eat)> StatusTextIntercept;
    // The player has clicked a name link of the chat: its name and the id written into it.
    std::function<void(const std::string& text, Id id, bool& eat)> ChatClickIntercept;
    std::function<void(Id id)> ContainerOpened;
    std::function<void(Id id)> ObjectSelected;
    std::function<void(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom)> AC3DRegionChanged;
};

}  // namespace ombrel::host
