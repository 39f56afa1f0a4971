// Offers the plug-in's actions to the hotkey service, when there is one.
#pragma once

#include <string>
#include <string_view>

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

    void AddHotKeys();  // offers every action that the service does not know yet, so that a binding stands
    void AddAHotKey(std::string_view name, std::string_view description);

    // A hotkey was pressed. `handled` stays false for names that are not ours, and where food or kit found nothing to
    // do.
    void HK_HotkeyEvent(const std::string& name, bool& handled);

    Owned<host::HotkeyService> HK;
};

}  // namespace ombrel
