// Reads the few game messages that matter: experience totals, the target's health and spells, the chat windows' set-up.
#pragma once

#include "core/Ref.h"
#include "host/EchoFilter2.h"

namespace ombrel {

class NetEchoHandler {
public:
    NetEchoHandler();
    ~NetEchoHandler();
    NetEchoHandler(const NetEchoHandler&) = delete;
    NetEchoHandler& operator=(const NetEchoHandler&) = delete;

    // Every message of the game comes here; one that doesn't matter costs a look at its type.
    void NetEcho_EchoServer(const host::Message& message);
    void NetEcho_EchoClient(const host::Message& message);

    void ResetHealth();  // the selection has changed

    Owned<host::EchoFilter2> NetEcho;
};

}  // namespace ombrel
