// Types into the game window.
#pragma once

#include <cstdint>
#include <string>

namespace ombrel {

class KeyboardAC {
public:
    KeyboardAC();
    ~KeyboardAC();
    KeyboardAC(const KeyboardAC&) = delete;
    KeyboardAC& operator=(const KeyboardAC&) = delete;

    void Run();                                                // begins to type what is buffered
    void SendKey(std::int32_t key);                            // one press and release of a virtual key, at once
    void SendString(const std::string& text, bool letEvents);  // buffers the characters of a text
    void AddWaitforChat();                                     // buffers a wait for the chat box to open
};

}  // namespace ombrel
