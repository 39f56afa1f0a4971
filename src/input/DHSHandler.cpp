#include "input/DHSHandler.h"

#include "automation/EventQueue.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "host/Plugin.h"
#include "spells/SpellHandler.h"
#include "stats/Statistics.h"

namespace ombrel {
namespace {

constexpr std::string_view kServiceClass = "{6B6B9FA8-37DE-4FA3-8C60-52BD6A2F9855}";
constexpr std::string_view kPluginName = "Ombrel";

// An action returns whether the key press came to anything.
struct HotkeyRow {
    std::string_view name;
    std::string_view description;
    bool (*action)();
};

template <auto procedure>
bool Toggle() {
    ((*Vars::ControlHandler).*procedure)();
    return true;
}

constexpr HotkeyRow kHotkeys[] = {
    {"OM:ResetSession", "Ombrel: Resets Session", [] { return Vars::Statistics->ResetSession(), true; }},
    {"OM:ToggleAllHud", "Ombrel: Toggles all HUDs on or off", &Toggle<&ControlHandler::ToggleAll>},
    {"OM:ToggleMainHud", "Ombrel: Toggles Main HUD on or off", &Toggle<&ControlHandler::ToggleMain>},
    {"OM:ToggleItemHud", "Ombrel: Toggles Item HUD on or off", &Toggle<&ControlHandler::ToggleItem>},
    {"OM:ToggleClockHud", "Ombrel: Toggles Clock HUD on or off", &Toggle<&ControlHandler::ToggleClock>},
    {"OM:DrinkBeersNow", "Ombrel: Drinks one of each beer", [] { return Vars::SpellHandler->DrinkAllBeers(), true; }},
    {"OM:ToggleUseBeers", "Ombrel: Toggles the auto use of beers when timer is low on or off",
     &Toggle<&ControlHandler::ToggleBeers>},
    {"OM:RunEvents", "Ombrel: Runs queued events", [] { return Vars::EventQueue->Run(), true; }},
    {"OM:ToggleAFK", "Ombrel: Toggles your AFK state", &Toggle<&ControlHandler::ToggleAFK>},
    {"OM:OneKeyHealth", "Ombrel: One key eat health food",
     [] { return Vars::FilterHandler->UseFood(host::vital::kHealth); }},
    {"OM:OneKeyStamina", "Ombrel: One key eat stamina food",
     [] { return Vars::FilterHandler->UseFood(host::vital::kStamina); }},
    {"OM:OneKeyMana", "Ombrel: One key eat mana food", [] { return Vars::FilterHandler->UseFood(host::vital::kMana); }},
    {"OM:OneKeyHeal", "Ombrel: One key heal self", [] { return Vars::FilterHandler->UseKit(false); }},
    {"OM:OneKeySmartHeal", "Ombrel: One key heal self, but falls back to food if health is too low",
     [] { return Vars::FilterHandler->UseKit(true); }},
};

}  // namespace

// A player without the service has no hotkeys and no message.
DHSHandler::DHSHandler() {
    try {
        HK = Vars::Decal->GetHotkeyService(kServiceClass);
        if (HK) HK->HotkeyEvent = [this](const std::string& name, bool& handled) { HK_HotkeyEvent(name, handled); };
    } catch (...) {
        HK.Release();
    }
    wtcw_debug("DHS Handler Init");
}

DHSHandler::~DHSHandler() { wtcw_debug("DHS Handler Terminate"); }

void DHSHandler::AddHotKeys() try {
    for (const HotkeyRow& hotkey : kHotkeys)
        if (!HK->QueryHotkey(hotkey.name)) AddAHotKey(hotkey.name, hotkey.description);
} catch (...) {
    ReportFailure("AddHotKeys", "DHSHandler");
}

void DHSHandler::AddAHotKey(std::string_view name, std::string_view description) try {
    HK->HotkeyRegister(kPluginName, name, description);
} catch (...) {
    ReportFailure("AddAHotKey", "DHSHandler");
}

void DHSHandler::HK_HotkeyEvent(const std::string& name, bool& handled) try {
    handled = false;
    for (const HotkeyRow& hotkey : kHotkeys)
        if (hotkey.name == name) handled = hotkey.action();
} catch (...) {
    ReportFailure("HK_HotkeyEvent", "DHSHandler");
}

}  // namespace ombrel
