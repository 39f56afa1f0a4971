// Types into the game window.
#pragma once

#include <cstdint>

namespace ombrel {

class KeyboardAC {
public:
    KeyboardAC();
    ~KeyboardAC();
    KeyboardAC(const KeyboardAC&) = delete;
    KeyboardAC& operator=(const KeyboardAC&) = delete;

    void SendKey(std::int32_t key);  // one press and release of a virtual key, at once
};

}  // namespace ombrel
