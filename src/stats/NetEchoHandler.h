// Reads the few game messages that matter: experience totals, the target's health and spells, the chat windows' set-up.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "core/Ref.h"
#include "host/EchoFilter2.h"

namespace ombrel {

class NetEchoHandler {
public:
    NetEchoHandler();
    ~NetEchoHandler();
    NetEchoHandler(const NetEchoHandler&) = delete;
    NetEchoHandler& operator=(const NetEchoHandler&) = delete;

    // Every message of the game comes here, before login too; one that doesn't matter costs a look at its type. A field
    // that a message lacks ends the reading of that message.
    void NetEcho_EchoServer(const host::Message& message);
    void NetEcho_EchoClient(const host::Message& message);

    // Learns in which windows the client shows each chat type, so that the plug-in's lines can follow.
    void HandleOptions(const host::Message& message);

    void ResetXPBools();
    void ResetHealth();  // the selection has changed

    // Eight bytes, low byte first, as an unsigned number; above 2 to the power 53 low bits are lost.
    static double DoubleFromQword(std::span<const std::uint8_t> bytes);

    double TotalXP = 0.0;
    double UnassignedXP = 0.0;
    std::int32_t TargetHealth = 0;     // current health of the target
    std::int32_t TargetHealthMax = 0;  // 0 when it is not known
    double TargetHealthRatio = 1.0;    // 0 to 1
    std::string TargetSpells;          // names of the spells on the target, each followed by ";"
    bool TotalSeen = false;            // which of the two totals has arrived since the last change
    bool UnassignedSeen = false;
    Owned<host::EchoFilter2> NetEcho;

private:
    void ReadExperience(const host::Message& message);
    void ReadGameEvent(const host::Message& message);
    void ReadLogin(const host::Message& message);
    void ReadIdentification(const host::Message& message);
    void ReadTargetHealth(const host::Message& message);
    void ReadWindows(const host::Message& message, const host::MessageMember& options);
    void ReadWindow(std::int32_t window, const host::MessageMember& item);
};

}  // namespace ombrel
