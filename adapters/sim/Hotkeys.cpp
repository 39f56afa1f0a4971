#include "adapters/sim/Hotkeys.h"

namespace ombrel::sim {

bool SimHotkeys::QueryHotkey(std::string_view name) {
    client_.calls.Note("HotkeyService.QueryHotkey"_op);
    return client_.known_hotkeys.contains(name);
}

void SimHotkeys::HotkeyRegister(std::string_view plugin, std::string_view name, std::string_view description) {
    client_.calls.Note("HotkeyService.HotkeyRegister"_op,
                       {{"plugin", plugin}, {"name", name}, {"description", description}});
    client_.known_hotkeys.emplace(name);
}

}  // namespace ombrel::sim
