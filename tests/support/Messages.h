// Messages of the game as the framework decodes them, for tests of what comes of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "adapters/sim/Client.h"
#include "adapters/sim/JsonMessage.h"

namespace ombrel::test {

using sim::Json;

inline constexpr int kQuality = 0x02CF;
inline constexpr int kEffect = 0xF755;
inline constexpr int kEvent = 0xF7B0;
inline constexpr int kAction = 0xF7B1;
inline constexpr std::int32_t kTotalXP = 1;
inline constexpr std::int32_t kUnassignedXP = 2;

// Eight bytes, low byte first.
inline Json Qword(std::uint64_t value) {
    std::vector<int> bytes;
    for (int i = 0; i < 8; ++i) bytes.push_back(static_cast<int>(value >> (8 * i) & 0xFF));
    return bytes;
}

inline Json Quality(std::int32_t key, std::uint64_t value) {
    return {{"Type", kQuality}, {"key", key}, {"value", Qword(value)}};
}

inline Json EffectOn(host::Id id, std::int32_t code) {
    return {{"Type", kEffect}, {"object", id}, {"effect", code}, {"speed", 0.8}};
}

inline Json HealthOf(host::Id id, double ratio) {
    return {{"Type", kEvent}, {"event", 0x1C0}, {"object", id}, {"health", ratio}};
}

inline Json KillText(const std::string& text) { return {{"Type", kEvent}, {"event", 0x1AD}, {"text", text}}; }

// What the server tells of a thing that it was asked about: its health with flag 0x100, its spells with 0x10.
inline Json Identified(host::Id id, std::int32_t flags, std::int32_t health = 0, std::int32_t maximum = 0,
                       const std::vector<std::int32_t>& spells = {}) {
    Json list = Json::array();
    for (const std::int32_t spell : spells) list.push_back({{"spell", spell}});
    return {{"Type", kEvent}, {"event", 0xC9},    {"success", 1},         {"object", id},
            {"flags", flags}, {"health", health}, {"healthMax", maximum}, {"spellCount", spells.size()},
            {"spells", list}};
}

// What the client sends when the player changes its options.
inline Json OptionsChanged(const Json& options) { return {{"Type", kAction}, {"action", 0x1A1}, {"options", options}}; }

// Chat windows with these filters, one after the other, among options of other kinds.
inline Json WindowOptions(const std::vector<std::uint32_t>& masks) {
    Json windows = Json::array();
    for (const std::uint32_t mask : masks) {
        const Json properties = {{{"key", 0x1000008D}, {"value", "Window"}}, {{"key", 0x1000007F}, {"value", mask}}};
        windows.push_back({{"type", 0x1000008B}, {"propertyCount", 2}, {"properties", properties}});
    }
    const Json list = {{"type", 0x1000008C}, {"windowCount", masks.size()}, {"windows", windows}};
    return {{"flags", 0x340},
            {"optionPropertyCount", 2},
            {"optionProperties", {{{"type", 0x10000081}, {"value", 0.5}}, list}}};
}

inline Json LoginSnapshot(std::uint64_t total, std::uint64_t unassigned) {
    const Json qwords = {{{"key", 6}, {"value", Qword(0)}},
                         {{"key", kUnassignedXP}, {"value", Qword(unassigned)}},
                         {{"key", kTotalXP}, {"value", Qword(total)}}};
    return {{"Type", kEvent},
            {"event", 0x13},
            {"properties", {{"flags", 0xFF}, {"qwordCount", 3}, {"qwords", qwords}}},
            {"options", {{"flags", 0x40}}}};
}

inline void ServerSays(sim::Client& client, const Json& message) {
    client.EchoServer(sim::JsonMessage(message, client.calls));
}

inline void ClientSays(sim::Client& client, const Json& message) {
    client.EchoClient(sim::JsonMessage(message, client.calls));
}

}  // namespace ombrel::test
