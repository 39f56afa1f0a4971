#include "adapters/decal/DecalHotkeys.h"

namespace ombrel::decal {

DecalHotkeys::DecalHotkeys(Com<IHotkeySystem> system)
    : system_(std::move(system)), events_(system_.Unknown(), IHotkeySystemEvents::kIid, Handlers()) {}

bool DecalHotkeys::QueryHotkey(std::string_view name) {
    VARIANT_BOOL known = VARIANT_FALSE;
    system_.Call(IHotkeySystem::QueryHotkey, Bstr(name).get(), &known);
    return ToBool(known);
}

void DecalHotkeys::HotkeyRegister(std::string_view plugin, std::string_view name, std::string_view description) {
    const auto hotkey = CreateInstance<IHotkey>(kHotkeyClass);
    hotkey.Call(IHotkey::SetEventTitle, Bstr(name).get());
    hotkey.Call(IHotkey::SetEventDescription, Bstr(description).get());
    system_.Call(IHotkeySystem::AddHotkey, Bstr(plugin).get(), hotkey.get());
}

// Keys of other plug-ins come by here too: one that isn't ours keeps the answer that it has.
Events::Table DecalHotkeys::Handlers() {
    return {{IHotkeySystemEvents::HotkeyEvent, [this](const EventArguments& event) {
                 bool handled = false;
                 Raise(HotkeyEvent, event.Text(0), handled);
                 if (handled) event.Answer(1, true);
             }}};
}

}  // namespace ombrel::decal
