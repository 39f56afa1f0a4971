// Offers the plug-in's actions to the hotkey service, when there is one.
#pragma once

#include <string>

#include "core/Ref.h"
#include "host/HotkeyService.h"

namespace ombrel {

class DHSHandler {
public:
    DHSHandler();
    ~DHSHandler();
    DHSHandler(const DHSHandler&) = delete;
    DHSHandler& operator=(const DHSHandler&) = delete;

    bool HasService() const { return static_cast<bool>(HK); }
    void AddHotKeys();
    void HK_HotkeyEvent(const std::string& name, bool& handled);

    Owned<host::HotkeyService> HK;
};

}  // namespace ombrel
