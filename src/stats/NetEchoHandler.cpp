#include "stats/NetEchoHandler.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "chat/ChatTextHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "host/Plugin.h"
#include "hud/HUDTargetHandler.h"
#include "spells/SpellFilterHandler.h"
#include "stats/Statistics.h"

namespace ombrel {
namespace {

// Messages, and the game events and client actions inside the two that carry a further number.
constexpr std::int32_t kQuality = 0x02CF;
constexpr std::int32_t kEffect = 0xF755;
constexpr std::int32_t kGameEvent = 0xF7B0;
constexpr std::int32_t kClientAction = 0xF7B1;
constexpr std::int32_t kLogin = 0x13;
constexpr std::int32_t kIdentification = 0xC9;
constexpr std::int32_t kKillText = 0x1AD;
constexpr std::int32_t kHealth = 0x1C0;
constexpr std::int32_t kOptions = 0x1A1;

// Keys of 64-bit qualities.
constexpr std::int32_t kTotalExperience = 1;
constexpr std::int32_t kUnassignedExperience = 2;

// Bits and kinds on the way to the chat filter of a window.
constexpr std::int32_t kHasQwords = 0x80;
constexpr std::int32_t kHasHealth = 0x100;
constexpr std::int32_t kHasWindowOptions = 0x200;
constexpr std::int32_t kWindowList = 0x1000008C;
constexpr std::int32_t kWindow = 0x1000008B;
constexpr std::int32_t kChatFilter = 0x1000007F;

// The client's chat filter has one switch for several chat types.
struct FilterBit {
    std::uint32_t mask;
    std::initializer_list<std::int32_t> types;
};

constexpr FilterBit kFilterBits[] = {
    {0x03912021, {0, 5, 6, 13, 16, 20, 23, 24, 25}},
    {0x00001004, {2, 12}},
    {0x00000018, {3, 4}},
    {0x00600040, {21, 22, 6}},
    {0x00020080, {17, 7}},
    {0x00040C00, {10, 11, 18}},
    {0x00080000, {19}},
    {0x04000000, {26}},
    {0x08000000, {27}},
    {0x10000000, {28}},
    {0x20000000, {29}},
    {0x40000000, {30}},
};

// How a client shows chat whose player never set the windows up.
struct DefaultWindow {
    std::int32_t window;
    std::initializer_list<std::int32_t> types;
};

constexpr DefaultWindow kDefaultWindows[] = {
    {0, {0, 5, 6, 13, 16, 20, 23, 24, 25, 2, 12, 3, 4, 21, 22, 7, 17, 10, 11, 18, 19, 27, 28, 29, 30}},
    {1, {2, 12, 3, 4}},
    {2, {10, 11, 18}},
    {3, {19}},
    {4, {27, 28, 29, 30}},
};

// The object on the target HUD, when it is `id`.
bool IsTarget(host::Id id) {
    host::WorldObjectPtr target;
    return Vars::HUDTargetHandler->GetObject(target) && target->GUID() == id;
}

// What the chat windows are set to stands inside the options; it is taken beside them too.
template <class Read>
auto Either(const host::MessageMember& first, const host::MessageMember& second, Read read) {
    try {
        return read(first);
    } catch (const Failure&) {
        return read(second);
    }
}

}  // namespace

NetEchoHandler::NetEchoHandler() {
    try {
        wtcw_debug("Net Echo Handler Init");
        NetEcho = Vars::Site->GetEchoFilter2();
        NetEcho->EchoServer = [this](const host::Message& message) { NetEcho_EchoServer(message); };
        NetEcho->EchoClient = [this](const host::Message& message) { NetEcho_EchoClient(message); };
    } catch (...) {
        ReportFailure("Class_Initialize", "NetEchoHandler");
    }
}

NetEchoHandler::~NetEchoHandler() { wtcw_debug("Net Echo Handler Terminate"); }

void NetEchoHandler::NetEcho_EchoServer(const host::Message& message) try {
    switch (message.Type()) {
        case kQuality:
            return ReadExperience(message);
        case kEffect:
            return Vars::HUDTargetHandler->Debuff(message.Long("object"), message.Long("effect"),
                                                  message.Double("speed"));
        case kGameEvent:
            return ReadGameEvent(message);
        default:
            return;
    }
} catch (...) {
    ReportFailure("NetEcho_EchoMessage", "NetEchoHandler");
}

void NetEchoHandler::NetEcho_EchoClient(const host::Message& message) try {
    if (message.Type() == kClientAction && message.Long("action") == kOptions) HandleOptions(message);
} catch (...) {
    ReportFailure("EchoClient", "NetEchoHandler");
}

void NetEchoHandler::ReadGameEvent(const host::Message& message) {
    switch (message.Long("event")) {
        case kLogin:
            return ReadLogin(message);
        case kKillText:
            Vars::LastKillText = message.Text("text");
            return;
        case kIdentification:
            return ReadIdentification(message);
        case kHealth:
            return ReadTargetHealth(message);
        default:
            return;
    }
}

// The totals of one gain come in two messages, in either order; the change is handled once, when the pair is complete.
// Unassigned experience that falls was spent: that updates at once and without a chat line.
void NetEchoHandler::ReadExperience(const host::Message& message) {
    switch (message.Long("key")) {
        case kTotalExperience:
            TotalXP = DoubleFromQword(message.Bytes("value"));
            TotalSeen = true;
            break;
        case kUnassignedExperience:
            UnassignedXP = DoubleFromQword(message.Bytes("value"));
            UnassignedSeen = true;
            if (UnassignedXP < Vars::Statistics->CharUnXP) {
                Vars::Statistics->ChangeXP(false);
                UnassignedSeen = false;
            }
            break;
        default:
            return;
    }
    if (TotalSeen && UnassignedSeen) {
        Vars::Statistics->ChangeXP(true);
        ResetXPBools();
    }
}

void NetEchoHandler::ReadLogin(const host::Message& message) {
    const auto properties = message.Struct("properties");
    if (properties->Long("flags") & kHasQwords) {
        const std::int32_t count = properties->Long("qwordCount");
        const auto qwords = count > 0 ? properties->Struct("qwords") : nullptr;
        for (std::int32_t i = 0; i < count; ++i) {
            const auto quality = qwords->Item(i);
            switch (quality->Long("key")) {
                case kTotalExperience:
                    TotalXP = DoubleFromQword(quality->Bytes("value"));
                    break;
                case kUnassignedExperience:
                    UnassignedXP = DoubleFromQword(quality->Bytes("value"));
                    break;
                default:
                    break;
            }
        }
    }
    HandleOptions(message);
}

void NetEchoHandler::ReadIdentification(const host::Message& message) {
    if (message.Long("success") != 1 || !IsTarget(message.Long("object"))) return;

    auto& target = *Vars::HUDTargetHandler;
    if (message.Long("flags") & kHasHealth) {
        const std::int32_t health = message.Long("health");
        const std::int32_t maximum = message.Long("healthMax");
        TargetHealth = health;
        TargetHealthMax = maximum;
        if (maximum == 0) throw Failure(failure::kDivisionByZero);
        TargetHealthRatio = std::min(static_cast<double>(health) / maximum, 1.0);
        target.TargetHud->UpdateHealth(true);
    }
    TargetSpells.clear();
    const std::int32_t count = message.Long("spellCount");
    const auto spells = count > 0 ? message.Struct("spells") : nullptr;
    for (std::int32_t i = 0; i < count; ++i)
        TargetSpells += Vars::SpellFilterHandler->GetName(spells->Item(i)->Long("spell")) + ";";
    target.CreateHUD();
}

void NetEchoHandler::ReadTargetHealth(const host::Message& message) {
    if (!IsTarget(message.Long("object"))) return;

    TargetHealthRatio = message.Double("health");
    if (TargetHealthMax != 0) TargetHealth = ToLong(TargetHealthMax * TargetHealthRatio);
    Vars::HUDTargetHandler->TargetHud->UpdateHealth(true);
}

void NetEchoHandler::HandleOptions(const host::Message& message) try {
    auto& chat = *Vars::ChatTextHandler;
    chat.ResetTargetList();
    const auto options = message.Struct("options");
    if (options->Long("flags") & kHasWindowOptions) ReadWindows(message, *options);
    if (chat.TargetCount != 0) return;
    for (const auto& [window, types] : kDefaultWindows)
        for (const std::int32_t type : types) chat.SetTargetList(window, type, true);
} catch (...) {
    ReportFailure("HandleOptions", "NetEchoHandler");
}

void NetEchoHandler::ReadWindows(const host::Message& message, const host::MessageMember& options) {
    const auto count = Either(options, message, [](const auto& place) { return place.Long("optionPropertyCount"); });
    if (count <= 0) return;
    const auto properties =
        Either(options, message, [](const auto& place) { return place.Struct("optionProperties"); });
    for (std::int32_t i = 0; i < count; ++i) {
        const auto property = properties->Item(i);
        if (property->Long("type") != kWindowList) continue;
        const std::int32_t window_count = property->Long("windowCount");
        const auto windows = window_count > 0 ? property->Struct("windows") : nullptr;
        for (std::int32_t window = 0; window < window_count; ++window) {
            const auto item = windows->Item(window);
            if (item->Long("type") == kWindow) ReadWindow(window, *item);
        }
    }
}

void NetEchoHandler::ReadWindow(std::int32_t window, const host::MessageMember& item) {
    const std::int32_t count = item.Long("propertyCount");
    const auto properties = count > 0 ? item.Struct("properties") : nullptr;
    for (std::int32_t i = 0; i < count; ++i) {
        const auto property = properties->Item(i);
        if (property->Long("key") != kChatFilter) continue;
        const auto filter = static_cast<std::uint32_t>(property->Long("value"));
        for (const auto& [mask, types] : kFilterBits) {
            if (!(filter & mask)) continue;
            for (const std::int32_t type : types) Vars::ChatTextHandler->SetTargetList(window, type, true);
        }
    }
}

void NetEchoHandler::ResetXPBools() { TotalSeen = UnassignedSeen = false; }

void NetEchoHandler::ResetHealth() {
    TargetHealth = TargetHealthMax = 0;
    TargetHealthRatio = 1.0;
    TargetSpells.clear();
}

double NetEchoHandler::DoubleFromQword(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < 8) throw Failure(failure::kSubscript);
    double value = 0.0;
    for (std::size_t i = 8; i-- > 0;) value = value * 256.0 + bytes[i];
    return value;
}

}  // namespace ombrel
