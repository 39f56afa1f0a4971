// What the game is asked, and what it is told to do.
#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/text.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "spells/SpellFilterHandler.h"

namespace ombrel {

namespace {

constexpr std::int32_t kShortName = 1;
constexpr std::int32_t kExperienceDebt = 129;  // property key
constexpr std::int32_t kFrameTop = 28;         // height of what the client draws above the 3D area

// The trap of a procedure that only hands a call on.
template <class Call>
auto Trapped(std::string_view procedure, Call call) -> decltype(call()) {
    using Result = decltype(call());
    try {
        return call();
    } catch (...) {
        ReportFailure(procedure, "FilterHandler");
        return Result();
    }
}

// The object itself; failure 91 when the client doesn't know it.
const host::WorldObject& Known(const host::WorldObjectPtr& object) {
    if (!object) throw Failure(failure::kNoObject);
    return *object;
}

host::Position PlaceOf(const host::WorldObject& object) { return object.Coordinates().value_or(host::Position{}); }

std::int32_t Fitting(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
        throw Failure(failure::kOverflow);
    }
    return static_cast<std::int32_t>(value);
}

// Visits the things of that name that the character carries, without those in an open vendor's hands, until the visitor
// returns false.
template <class Visitor>
void ForEachCarried(host::World& world, const host::ACHooks& hooks, const std::string& name, Visitor visitor) {
    const host::WorldIteratorPtr items = world.Inventory();
    items->ByName(name);
    while (const host::WorldObjectPtr item = items->Next()) {
        if (item->Long(host::key::kHolder, 0) == hooks.ReferenceContainer()) continue;
        if (!visitor(*item)) return;
    }
}

}  // namespace

std::string FilterHandler::GetMyServer() {
    return Trapped("GetMyServer", [&] { return CharStats->Server(); });
}

std::string FilterHandler::GetMyCharName() {
    return Trapped("GetMyCharName", [&] { return CharStats->Name(); });
}

std::int32_t FilterHandler::GetMyCharLevel() {
    return Trapped("GetMyCharLevel", [&] { return CharStats->Level(); });
}

host::Id FilterHandler::GetMyCharGUID() {
    return Trapped("GetMyCharGUID", [&] { return CharStats->Character(); });
}

std::int32_t FilterHandler::GetMyCharVitae() {
    return Trapped("GetMyCharVitae", [&] { return CharStats->Vitae(); });
}

std::int32_t FilterHandler::GetMyFollowers() {
    return Trapped("GetMyFollowers", [&] { return CharStats->Followers(); });
}

std::int32_t FilterHandler::GetAllegFollowers() {
    return Trapped("GetAllegFollowers", [&] { return Fitting(std::int64_t{CharStats->AllegianceSize()} - 1); });
}

std::int32_t FilterHandler::GetMyEnchantmentCount() {
    return Trapped("GetMyEnchantmentCount", [&] { return CharStats->EnchantmentCount(); });
}

host::Enchantment FilterHandler::GetMyEnchantment(std::int32_t index) {
    return Trapped("GetMyEnchantment", [&] { return CharStats->Enchantment(index); });
}

host::Id FilterHandler::GetCurrentSelection() {
    return Trapped("GetCurrentSelection", [&] { return ACHooks->CurrentSelection(); });
}

std::int32_t FilterHandler::GetCombatMode() {
    return Trapped("GetCombatMode", [&] { return ACHooks->CombatMode(); });
}

std::int32_t FilterHandler::GetBusyState() {
    return Trapped("GetBusyState", [&] { return ACHooks->BusyState(); });
}

std::int32_t FilterHandler::GetPointerState() {
    return Trapped("GetPointerState", [&] { return ACHooks->PointerState(); });
}

bool FilterHandler::GetChatState() {
    return Trapped("GetChatState", [&] { return ACHooks->ChatState(); });
}

bool FilterHandler::ChatState() {
    return Trapped("ChatState", [&] { return ACHooks->ChatState(); });
}

host::Rect FilterHandler::Get3DRegion() {
    return Trapped("Get3DRegion", [&] { return ACHooks->Region3D(); });
}

host::Rect FilterHandler::Get3DRect() {
    return Trapped("Get3DRect", [&] {
        host::Rect rect = ACHooks->Region3D();
        rect.top = Fitting(std::int64_t{rect.top} + kFrameTop);
        rect.bottom = Fitting(std::int64_t{rect.bottom} + kFrameTop);
        return rect;
    });
}

void FilterHandler::IDObject(host::Id id) {
    Trapped("IDObject", [&] { ACHooks->IdentifyObject(id); });
}

void FilterHandler::WriteToChatWindow(std::string_view text, std::int32_t color, std::int32_t window) {
    Trapped("WriteToChatWindow", [&] { ACHooks->ChatOut(text, color, window); });
}

void FilterHandler::WriteToChatWindowRaw(std::string_view text, std::int32_t color, std::int32_t window) {
    Trapped("WriteToChatWindowRaw", [&] { ACHooks->ChatOutRaw(text, color, window); });
}

void FilterHandler::SendCommand(std::string_view text) {
    Trapped("SendCommand", [&] { ACHooks->InvokeChatParser(text); });
}

void FilterHandler::SetIdleTime(double seconds) {
    Trapped("SetIdleTime", [&] { ACHooks->SetIdleTime(seconds); });
}

// Below 1 a "0" stands before what the rounding leaves, be it whole too: 0.04 is "00", and 0.97 is "01".
std::string FilterHandler::FormatCoord(double value) try {
    if (value == 0.0) return "0.0";
    const double rounded = Round(value, 1);
    std::string text = NumberText(rounded);
    if (value < 1.0) return text.starts_with("0.") ? text : "0" + text;
    if (rounded == Round(value)) text += ".0";
    return text;
} catch (...) {
    ReportFailure("FormatCoord", "FilterHandler");
    return {};
}

std::string FilterHandler::ConvCoords(double ns, double ew) try {
    return FormatCoord(std::abs(ns)) + (ns < 0.0 ? "S, " : "N, ") + FormatCoord(std::abs(ew)) + (ew < 0.0 ? "W" : "E");
} catch (...) {
    ReportFailure("ConvCoords", "FilterHandler");
    return {};
}

std::string FilterHandler::GetCharCoords() try {
    const host::Position place = PlaceOf(Known(World->Object(CharStats->Character())));
    return ConvCoords(place.ns, place.ew);
} catch (...) {
    ReportFailure("GetCharCoords", "FilterHandler");
    return {};
}

std::string FilterHandler::GetItemCoords(host::Id id) try {
    const host::Position place = PlaceOf(Known(World->Object(id)));
    return ConvCoords(place.ns, place.ew);
} catch (...) {
    ReportFailure("GetItemCoords", "FilterHandler");
    return {};
}

double FilterHandler::GetRawNS() try {
    return ToDouble(FormatFixed(PlaceOf(Known(World->Object(CharStats->Character()))).ns, 1));
} catch (...) {
    ReportFailure("GetRawNS", "FilterHandler");
    return 0.0;
}

double FilterHandler::GetRawEW() try {
    return ToDouble(FormatFixed(PlaceOf(Known(World->Object(CharStats->Character()))).ew, 1));
} catch (...) {
    ReportFailure("GetRawEW", "FilterHandler");
    return 0.0;
}

bool FilterHandler::ItemExists(host::Id id) try {
    return ACHooks->IsValidObject(id) && World->Object(id) != nullptr;
} catch (...) {
    ReportFailure("ItemExists", "FilterHandler");
    return false;
}

std::string FilterHandler::GetName(host::Id id) try {
    return Known(World->Object(id)).Name(kShortName, "");
} catch (...) {
    ReportFailure("GetName", "FilterHandler");
    return {};
}

host::Id FilterHandler::GetID(const std::string& name) try {
    const host::WorldIteratorPtr all = World->All();
    all->ByName(name);
    const host::WorldObjectPtr object = all->Next();
    return object ? object->GUID() : -1;
} catch (...) {
    ReportFailure("GetID", "FilterHandler");
    return 0;
}

host::Id FilterHandler::GetIDinInv(const std::string& name) try {
    host::Id found = -1;
    ForEachCarried(*World, *ACHooks, name, [&](const host::WorldObject& item) {
        found = item.GUID();
        return false;
    });
    return found;
} catch (...) {
    ReportFailure("GetIDinInv", "FilterHandler");
    return 0;
}

std::int32_t FilterHandler::GetIcon(const std::string& name) try {
    const host::WorldObjectPtr object = World->ByName(name)->Next();
    return object ? object->Long(host::key::kIcon, 0) : 0;
} catch (...) {
    ReportFailure("GetIcon", "FilterHandler");
    return 0;
}

std::int32_t FilterHandler::GetItemCount(const std::string& name) try {
    std::int64_t count = 0;
    ForEachCarried(*World, *ACHooks, name, [&](const host::WorldObject& item) {
        const std::int32_t stack = item.Long(host::key::kStackCount, 0);
        count += stack > 0 ? stack : 1;
        return true;
    });
    return Fitting(count);
} catch (...) {
    ReportFailure("GetItemCount", "FilterHandler");
    return 0;
}

std::int32_t FilterHandler::GetItemStackCount(host::Id id) try {
    if (!ACHooks->IsValidObject(id)) return -1;
    const host::WorldObjectPtr item = World->Object(id);
    return item ? item->Long(host::key::kStackCount, 0) : -1;
} catch (...) {
    ReportFailure("GetItemStackCount", "FilterHandler");
    return 0;
}

std::int32_t FilterHandler::GetItemMana(host::Id id) try {
    if (!ACHooks->IsValidObject(id)) return -1;
    const host::WorldObjectPtr item = World->Object(id);
    return item ? item->Long(host::key::kMana, 0) : -1;
} catch (...) {
    ReportFailure("GetItemStackCount", "FilterHandler");
    return 0;
}

void FilterHandler::UseItem(host::Id id, std::int32_t flag) try {
    if (ACHooks->IsValidObject(id)) ACHooks->UseItem(id, flag);
} catch (...) {
    ReportFailure("UseItem", "FilterHandler");
}

void FilterHandler::GiveItem(host::Id id, host::Id target) try {
    if (ACHooks->IsValidObject(id) && ACHooks->IsValidObject(target)) ACHooks->GiveItem(id, target);
} catch (...) {
    ReportFailure("GiveItem", "FilterHandler");
}

void FilterHandler::ApplyItem(host::Id id, host::Id target) try {
    if (ACHooks->IsValidObject(id) && ACHooks->IsValidObject(target)) ACHooks->UseItemOnTarget(id, target);
} catch (...) {
    ReportFailure("ApplyItem", "FilterHandler");
}

bool FilterHandler::IsNPC(const std::string& name) try {
    bool found = false;
    const host::WorldIteratorPtr objects = World->ByName(name);
    while (const host::WorldObjectPtr object = objects->Next()) {
        found = object->Name() == name && object->Type() == host::object_class::kNpc;
        if (found) break;
    }
    if (Vars::DebugMode) wtcw_debug(fmt::format("IsNPC: {}", BoolText(found)));
    return found;
} catch (...) {
    ReportFailure("Find", "FilterHandler");
    return false;
}

bool FilterHandler::Find(const std::string& name) try {
    const host::WorldIteratorPtr around = World->Landscape();
    while (const host::WorldObjectPtr object = around->Next()) {
        if (!ContainsNoCase(object->Name(), name)) continue;
        const host::Id id = object->GUID();
        wtcw(fmt::format("({}) {}", object->Name(kShortName, ""), GetItemCoords(id)));
        ACHooks->SelectItem(id);
    }
    return false;
} catch (...) {
    ReportFailure("Find", "FilterHandler");
    return false;
}

bool FilterHandler::Find_in_Pack(const std::string& name) try {
    const host::WorldIteratorPtr items = World->Inventory();
    items->ByNameSubstring(name);
    if (const host::WorldObjectPtr item = items->Next()) {
        ACHooks->SelectItem(item->GUID());
        wtcw(fmt::format("Found {}, GUID: {}", name, item->GUID()));
    } else {
        wtcw(fmt::format("Failed to find {}", name));
    }
    return false;
} catch (...) {
    ReportFailure("Find_in_Pack", "FilterHandler");
    return false;
}

std::int32_t FilterHandler::GetMyCharVitaeXP() try {
    return Known(World->Object(CharStats->Character())).Long(kExperienceDebt, 0);
} catch (...) {
    ReportFailure("GetMyCharVitaeXP", "FilterHandler");
    return 0;
}

std::int32_t FilterHandler::GetActiveSpellFamily(const std::string& name) try {
    const std::int32_t count = CharStats->EnchantmentCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const host::Enchantment enchantment = CharStats->Enchantment(i);
        if (Vars::SpellFilterHandler->GetName(enchantment.SpellID) == name) return enchantment.Family;
    }
    return -1;
} catch (...) {
    ReportFailure("GetActiveSpellFamily", "FilterHandler");
    return 0;
}

bool FilterHandler::GetActiveSpell(std::int32_t family, host::Enchantment& best) try {
    const auto difficulty = [](const host::Enchantment& enchantment) {
        return Vars::SpellFilterHandler->GetDifficulty(enchantment.SpellID);
    };
    std::optional<host::Enchantment> found;
    const std::int32_t count = CharStats->EnchantmentCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const host::Enchantment enchantment = CharStats->Enchantment(i);
        if (enchantment.Family != family) continue;
        if (!found ||
            (difficulty(enchantment) >= difficulty(*found) && enchantment.TimeRemaining > found->TimeRemaining)) {
            found = enchantment;
        }
    }
    if (found) best = *found;
    return found.has_value();
} catch (...) {
    ReportFailure("GetActiveSpell", "FilterHandler");
    return false;
}

bool FilterHandler::IsSpellActive(const std::string& name) try {
    const std::int32_t id = Vars::SpellFilterHandler->GetID(name);
    const std::int32_t count = CharStats->EnchantmentCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const host::Enchantment enchantment = CharStats->Enchantment(i);
        if (enchantment.SpellID == id && enchantment.TimeRemaining >= 1) return true;
    }
    return false;
} catch (...) {
    ReportFailure("Spell_Active", "FilterHandler");
    return false;
}

void FilterHandler::ExportEnchantments() try {
    const std::int32_t count = CharStats->EnchantmentCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const host::Enchantment enchantment = CharStats->Enchantment(i);
        wtcw_debug(fmt::format("{} {} {}", enchantment.SpellID, enchantment.Family, enchantment.TimeRemaining));
    }
} catch (...) {
    ReportFailure("ExportEnchantments", "FilterHandler");
}

// Docking is decided anew, or a HUD docked to an edge would stay there.
void FilterHandler::ResetHUDsPos() try {
    Vars::HUDClockHandler->ClockHUD->frame.SetPos(5, 60, true);
    Vars::HUDItemHandler->ItemHUD->frame.SetPos(5, 400, true);
    Vars::HUDMainHandler->MainHud->frame.SetPos(5, 200, true);
    Vars::ControlHandler->Settings_Save(0);
} catch (...) {
    ReportFailure("ResetHUDsPos", "FilterHandler");
}

}  // namespace ombrel
