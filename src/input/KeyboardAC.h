// Types into the game window, one entry of a buffer at a time.
//
// Keys are pressed without their shift state: capitals and shifted symbols come out as their plain keys.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "core/Ref.h"
#include "host/Timer.h"

namespace ombrel {

class KeyboardAC {
public:
    KeyboardAC();
    ~KeyboardAC();
    KeyboardAC(const KeyboardAC&) = delete;
    KeyboardAC& operator=(const KeyboardAC&) = delete;

    void Run();                                          // starts typing what the buffer holds
    void SendKey(std::int32_t key);                      // one press and release of a virtual key, at once
    void SendChar(const std::string& entry);             // acts on one entry, at once
    void SendString(std::string_view text, bool yield);  // adds each character; `yield` lets the client breathe between
    void SendEnter();
    void AddWaitforChat();  // opens the chat box and waits until it is open
    bool CheckEnter();      // the enter key is up

    void WriteBuffer_Timeout();
    void WaitChat_Timeout();

    bool WaitingForChat = false;
    Owned<host::Timer> WriteBuffer;
    Owned<host::Timer> WaitChat;

private:
    std::deque<std::string> buffer_;  // characters, "{Enter}" and "{Chat}"
};

}  // namespace ombrel
