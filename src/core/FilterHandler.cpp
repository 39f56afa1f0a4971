// The handler's making and end: the client's objects, and which of their events go where.
#include "core/FilterHandler.h"

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "host/Plugin.h"
#include "hud/DX8Sound.h"

namespace ombrel {

namespace {

// Takes an object of the host's. One that can't be had leaves the member empty and costs nothing else; false then.
template <class T, class Source>
bool Take(Owned<T>& member, Source source) {
    try {
        member = source();
        return static_cast<bool>(member);
    } catch (...) {
        ReportFailure("Class_Initialize", "FilterHandler");
        return false;
    }
}

}  // namespace

FilterHandler::FilterHandler() {
    wtcw_debug("Filter Handler Init");
    BindTimers();
    BindHooks();
    BindWorld();
    BindCharStats();
    Take(HealthAlarm, std::make_unique<DX8Sound>);
    Take(StaminaAlarm, std::make_unique<DX8Sound>);
    Take(ManaAlarm, std::make_unique<DX8Sound>);
}

FilterHandler::~FilterHandler() {
    wtcw_debug("Filter Handler Terminate");
    WaitforScan.Release();
    ScanItems.Release();
    UseCharge.Release();
    World.Release();
    CharStats.Release();
    HealthAlarm.Release();
    StaminaAlarm.Release();
    ManaAlarm.Release();
    ACHooks.Release();  // last, since the others may have something to tell
}

void FilterHandler::BindTimers() {
    const auto timer = [](const char* name) { return [name] { return Vars::Site->CreateTimer(name); }; };
    if (Take(WaitforScan, timer("FilterHandler.WaitforScan"))) {
        WaitforScan->Timeout = [this] { WaitforScan_Timeout(); };
    }
    Take(ScanItems, timer("FilterHandler.ScanItems"));
    if (Take(UseCharge, timer("FilterHandler.UseCharge"))) {
        UseCharge->Timeout = [this] { UseCharge_Timeout(); };
    }
}

void FilterHandler::BindHooks() {
    if (!Take(ACHooks, [] { return Vars::Site->GetHooks(); })) return;
    ACHooks->ChatTextIntercept = [this](const std::string& text, std::int32_t color, std::int32_t window, bool& eat) {
        ACHooks_ChatTextIntercept(text, color, window, eat);
    };
    ACHooks->ChatParserIntercept = [this](const std::string& text, bool& eat) {
        ACHooks_ChatParserIntercept(text, eat);
    };
    ACHooks->StatusTextIntercept = [this](const std::string& text, bool& eat) {
        ACHooks_StatusTextIntercept(text, eat);
    };
    ACHooks->ChatClickIntercept = [this](const std::string& text, host::Id id, bool& eat) {
        ACHooks_ChatClickIntercept(text, id, eat);
    };
    ACHooks->ContainerOpened = [this](host::Id id) { ACHooks_ContainerOpened(id); };
    ACHooks->ObjectSelected = [this](host::Id id) { ACHooks_ObjectSelected(id); };
    ACHooks->AC3DRegionChanged = [this](std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
        ACHooks_AC3DRegionChanged(left, top, right, bottom);
    };
}

void FilterHandler::BindWorld() {
    if (!Take(World, [] { return Vars::Site->GetWorld(); })) return;
    World->CreateObject = [this](host::Id id) { World_CreateObject(id); };
    World->ChangeObject = [this](host::Id id, std::int32_t change) { World_ChangeObject(id, change); };
    World->MoveObject = [this](host::Id id) { World_MoveObject(id); };
    World->ReleaseObject = [this](host::Id id) { World_ReleaseObject(id); };
}

void FilterHandler::BindCharStats() {
    if (!Take(CharStats, [] { return Vars::Site->GetCharacterStats(); })) return;
    CharStats->LoginComplete = [this] { Char_LoginComplete(); };
    CharStats->Logoff = [this](std::int32_t kind) { Char_Logoff(kind); };
    CharStats->ChangeVital = [this](std::int32_t vital, std::int32_t value) { Char_ChangeVital(vital, value); };
    CharStats->ChangeEnchantments = [this](std::int32_t change, const host::Enchantment& enchantment) {
        Char_ChangeEnchantments(change, enchantment);
    };
    CharStats->ChangePortalMode = [this](std::int32_t mode) { Char_ChangePortalMode(mode); };
    CharStats->Death = [this](const std::string& text) { Char_Death(text); };
}

}  // namespace ombrel
