// The table of what a plug-in can call in its host.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ombrel::sim {

enum class CallKind : std::uint8_t {
    kChat,
    kCommand,
    kItem,
    kInput,
    kSound,
    kVendor,
    kHotkey,
    kHost,
    kDraw,
    kQuestion,  // only asked: never recorded, but can be made to fail
};

// One row per operation: its object, its name in recordings, what kind of call it is. Sessions name an operation by its
// name, or by object, a dot and name where several objects have one of that name.
struct Operation {
    std::string_view object;
    std::string_view name;
    CallKind kind = CallKind::kQuestion;
    std::string_view also = {};  // its other name in the object, where it has two
};

// An operation's place in the table of operations.
using Op = std::uint16_t;

inline constexpr auto kOperations = std::to_array<Operation>({
    {"ACHooks", "ChatOut", CallKind::kChat},
    {"ACHooks", "ChatOutRaw", CallKind::kChat},
    {"ACHooks", "InvokeChatParser", CallKind::kCommand},
    {"ACHooks", "SetIdleTime", CallKind::kCommand},
    {"ACHooks", "CurrentSelection"},
    {"ACHooks", "ChatState"},
    {"ACHooks", "BusyState"},
    {"ACHooks", "PointerState"},
    {"ACHooks", "CombatMode"},
    {"ACHooks", "ReferenceContainer"},
    {"ACHooks", "Region3D"},
    {"ACHooks", "IsValidObject"},
    {"ACHooks", "SelectItem", CallKind::kItem},
    {"ACHooks", "UseItem", CallKind::kItem},
    {"ACHooks", "UseItemOnTarget", CallKind::kItem},
    {"ACHooks", "GiveItem", CallKind::kItem},
    {"ACHooks", "IdentifyObject", CallKind::kItem, "RequestID"},
    {"ACHooks", "SetStackSize", CallKind::kItem},
    {"ACHooks", "MergeStacks", CallKind::kItem},
    {"ACHooks", "VendorOpen"},
    {"ACHooks", "VendorAddBuy", CallKind::kVendor},
    {"ACHooks", "VendorBuyAll", CallKind::kVendor},
    {"ACHooks", "VendorAddSell", CallKind::kVendor},
    {"ACHooks", "VendorSellAll", CallKind::kVendor},

    {"CharacterStats", "Character"},
    {"CharacterStats", "Level"},
    {"CharacterStats", "Server"},
    {"CharacterStats", "Name"},
    {"CharacterStats", "Health"},
    {"CharacterStats", "Stamina"},
    {"CharacterStats", "Mana"},
    {"CharacterStats", "Vital"},
    {"CharacterStats", "Skill"},
    {"CharacterStats", "Vitae"},
    {"CharacterStats", "Followers"},
    {"CharacterStats", "AllegianceSize"},
    {"CharacterStats", "EnchantmentCount"},
    {"CharacterStats", "Enchantment"},
    {"CharacterStats", "Augmentation"},

    {"World", "Object"},
    {"World", "ByName"},
    {"World", "ByNameSubstring"},
    {"World", "All"},
    {"World", "Inventory"},
    {"World", "Owned"},
    {"World", "Landscape"},
    {"World", "Vendor"},
    {"WorldIterator", "Next"},
    {"WorldIterator", "ByName"},
    {"WorldIterator", "ByNameSubstring"},
    {"WorldObject", "GUID"},
    {"WorldObject", "Coordinates"},
    {"WorldObject", "Type"},
    {"WorldObject", "LastIdTime"},
    {"WorldObject", "HasIdData"},
    {"WorldObject", "Long"},
    {"WorldObject", "LongExists"},
    {"WorldObject", "Double"},
    {"WorldObject", "Bool"},
    {"WorldObject", "String"},
    {"WorldObject", "Name"},
    {"WorldObject", "Container"},
    {"Vendor", "SellRate"},
    {"Vendor", "ByName"},

    {"Message", "Type"},
    {"Message", "Long"},
    {"Message", "Double"},
    {"Message", "Text"},
    {"Message", "Bytes"},
    {"Message", "Struct"},
    {"Message", "Item"},

    {"Spells", "ByID"},
    {"Spells", "ByName"},
    {"Spell", "ID"},
    {"Spell", "Name"},
    {"Spell", "Description"},
    {"Spell", "School"},
    {"Spell", "Icon"},
    {"Spell", "Effect"},
    {"Spell", "Flags"},
    {"Spell", "ManaCost"},
    {"Spell", "Diff"},
    {"Spell", "Version"},
    {"Spell", "Type"},
    {"Spell", "Duration"},
    {"Spell", "Researchable"},
    {"Spell", "ComponentCount"},
    {"Spell", "TargetMask"},
    {"Spell", "RangeBase"},
    {"Spell", "RangeModifier"},
    {"Spell", "Speed"},
    {"Spell", "SortOrder"},
    {"Spell", "EffectOnCaster"},
    {"Spell", "EffectOnTarget"},

    {"HotkeyService", "QueryHotkey"},
    {"HotkeyService", "HotkeyRegister", CallKind::kHotkey},

    {"Timer", "TimerStart", CallKind::kHost, "Start"},
    {"Timer", "TimerStop", CallKind::kHost, "Stop"},
    {"Timer", "Running"},

    {"PluginSite", "GetHooks", CallKind::kQuestion, "Hooks"},
    {"PluginSite", "GetDecal", CallKind::kQuestion, "Decal"},
    {"PluginSite", "GetWorld"},
    {"PluginSite", "GetCharacterStats"},
    {"PluginSite", "GetEchoFilter2"},
    {"PluginSite", "GetSpells"},
    {"PluginSite", "GetRenderService"},
    {"PluginSite", "CreateTimer"},
    {"PluginSite", "IconLibrary"},
    {"PluginSite", "RegisterSink"},
    {"Decal", "LoadView", CallKind::kHost},
    {"Decal", "CreateFont"},
    {"Decal", "GetHotkeyService", CallKind::kQuestion, "GetObject"},
    {"Decal", "MapKey", CallKind::kHost},

    {"View", "Control"},
    {"View", "Position"},
    {"View", "SetPosition"},
    {"StaticText", "Text"},
    {"StaticText", "SetText"},
    {"PushButton", "Text"},
    {"PushButton", "SetText"},
    {"Checkbox", "Checked"},
    {"Checkbox", "SetChecked"},
    {"Edit", "Text"},
    {"Edit", "SetText"},
    {"Choice", "Add"},
    {"Choice", "Clear"},
    {"Choice", "Count"},
    {"Choice", "Text"},
    {"Choice", "Data"},
    {"Choice", "Selected"},
    {"Choice", "SetSelected"},
    {"List", "Clear"},
    {"List", "AddRow"},
    {"List", "DeleteRow"},
    {"List", "Count"},
    {"List", "Data"},
    {"List", "SetData"},
    {"List", "Color"},
    {"List", "SetColor"},
    {"List", "ScrollPosition"},
    {"List", "SetScrollPosition"},
    {"Progress", "Value"},
    {"Progress", "SetValue"},
    {"Slider", "Position"},
    {"Slider", "SetPosition"},
    {"Notebook", "ActivePage"},
    {"Notebook", "SetActivePage"},

    {"Font", "TextWidth"},
    {"RenderService", "HudViewCreate", CallKind::kHost, "CreateHUD"},
    {"RenderService", "HudViewRemove", CallKind::kHost, "RemoveHUD"},
    {"HudView", "BeginRender", CallKind::kDraw},
    {"HudView", "Clear", CallKind::kDraw},
    {"HudView", "Fill", CallKind::kDraw},
    {"HudView", "BeginText", CallKind::kDraw},
    {"HudView", "DrawText", CallKind::kDraw},
    {"HudView", "DrawPortalImage", CallKind::kDraw},
    {"HudView", "EndText", CallKind::kDraw},
    {"HudView", "EndRender", CallKind::kDraw},
    {"HudView", "SetRegion", CallKind::kDraw},
    {"HudView", "SetEnabled", CallKind::kDraw},

    {"Platform", "Now"},
    {"Platform", "GetTimeZoneInformation"},
    {"Platform", "SHGetFolderPath", CallKind::kQuestion, "SHGetFolderPathA"},
    {"Platform", "ProgramPath"},
    {"Platform", "FlushFile"},
    {"Platform", "sndPlaySound", CallKind::kSound, "sndPlaySoundA"},
    {"Platform", "DirectSoundCreate"},
    {"Platform", "GetAsyncKeyState"},
    {"Platform", "GetKeyState"},
    {"Platform", "MapVirtualKey", CallKind::kQuestion, "MapVirtualKeyA"},
    {"Platform", "VkKeyScan", CallKind::kQuestion, "VkKeyScanA"},
    {"Platform", "keybd_event", CallKind::kInput},
    {"Platform", "GetCursorPos"},
    {"Platform", "SetCursorPos", CallKind::kInput},
    {"Platform", "ScreenToClient"},
    {"Platform", "ClientToScreen"},
    {"Platform", "mouse_event", CallKind::kInput},
    {"Platform", "DoEvents"},
    {"SoundDevice", "SetCooperativeLevel"},
    {"SoundDevice", "SoundLoad", CallKind::kSound, "CreateSoundBuffer"},
    {"SoundBuffer", "SetCurrentPosition"},
    {"SoundBuffer", "SoundPlay", CallKind::kSound, "Play"},
    {"SoundBuffer", "SoundStop", CallKind::kSound, "Stop"},
    {"SoundBuffer", "GetStatus"},
    {"SoundBuffer", "SoundRelease", CallKind::kSound},
});

// The row of "Object.Name".
constexpr std::optional<Op> FindQualified(std::string_view name) {
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    const std::string_view object = name.substr(0, dot);
    const std::string_view member = name.substr(dot + 1);
    if (member.empty()) return std::nullopt;
    for (std::size_t i = 0; i < kOperations.size(); ++i) {
        const Operation& row = kOperations[i];
        if (row.object == object && (row.name == member || row.also == member)) return static_cast<Op>(i);
    }
    return std::nullopt;
}

// An operation of the table by its full name, as in "List.Data"_op. One that the table lacks doesn't compile.
consteval Op operator""_op(const char* name, std::size_t length) {
    return FindQualified(std::string_view(name, length)).value();
}

}  // namespace ombrel::sim
