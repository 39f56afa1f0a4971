// The framework's hotkey plug-in, which lets the player bind our actions to keys.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ombrel::host {

class HotkeyService {
public:
    virtual ~HotkeyService() = default;

    // Whether a hotkey of that name is known; one that is keeps its binding.
    virtual bool QueryHotkey(std::string_view name) = 0;

    virtual void HotkeyRegister(std::string_view plugin, std::string_view name, std::string_view description) = 0;

    // A hotkey was pressed, ours or another's; set `handled` when it was ours and something came of it.
    std::function<void(const std::string& name, bool& handled)> HotkeyEvent;
};

}  // namespace ombrel::host
