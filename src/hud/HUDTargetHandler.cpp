#include "hud/HUDTargetHandler.h"

#include <string>

#include "config/ControlHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "hud/TitleBar.h"
#include "spells/SpellFilterHandler.h"

namespace ombrel {
namespace {

// The server tells which kind of debuff landed, not at which level: the player names the level that she casts.
struct DebuffKind {
    std::int32_t code;
    std::string_view name;  // with the level behind a blank, up to VI
    std::string_view name_vii;
};

constexpr std::string_view kHighest = "VII";

constexpr DebuffKind kDebuffs[] = {
    {23, "Vulnerability Other", "Futility"},
    {44, "Fire Vulnerability Other", "Inferno's Gift"},
    {46, "Piercing Vulnerability Other", "Archer's Gift"},
    {48, "Blade Vulnerability Other", "Swordsman's Gift"},
    {50, "Acid Vulnerability Other", "Olthoi's Gift"},
    {52, "Cold Vulnerability Other", "Gelidite's Gift"},
    {54, "Lightning Vulnerability Other", "Astyrrian's Gift"},
    {56, "Imperil Other", "Gossamer Flesh"},
};

}  // namespace

HUDTargetHandler::HUDTargetHandler() {
    try {
        wtcw_debug("HUDTarget Handler Init");
        TargetHud = std::make_unique<HudHandlerT>();
        TargetHud->frame.SetTitle("Target");
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDTargetHandler");
    }
}

HUDTargetHandler::~HUDTargetHandler() { wtcw_debug("HUDTarget Handler Terminate"); }

void HUDTargetHandler::CreateHUD() try { TargetHud->Refresh(); } catch (...) {
    ReportFailure("CreateHUD", "HUDTargetHandler");
}

void HUDTargetHandler::UpdateHUD() try { TargetHud->Refresh(); } catch (...) {
    ReportFailure("UpdateHUD", "HUDTargetHandler");
}

void HUDTargetHandler::RemoveTitle() try { TargetHud->frame.SetFade(0); } catch (...) {
    ReportFailure("RemoveTitle", "HUDTargetHandler");
}

void HUDTargetHandler::SetObject(host::WorldObjectPtr object) try {
    if (object && Vars::DebugMode) wtcw_debug("Set Object " + object->Name());
    TargetHud->SetObject(std::move(object));
} catch (...) {
    ReportFailure("SetObject", "HUDTargetHandler");
}

bool HUDTargetHandler::GetObject(host::WorldObjectPtr& object) try {
    object = TargetHud->Object();
    return object != nullptr;
} catch (...) {
    ReportFailure("GetObject", "HUDTargetHandler");
    return false;
}

void HUDTargetHandler::UpdateDebuffs() try { TargetHud->UpdateDebuffs(true); } catch (...) {
    ReportFailure("UpdateDebuffs", "HUDTargetHandler");
}

void HUDTargetHandler::Debuff(host::Id object, std::int32_t code, double) try {
    const host::Choice& choice = *Vars::ControlHandler->HudTargetLevel;
    const std::string level = choice.Selected() < 0 ? std::string() : choice.Text(choice.Selected());
    for (const DebuffKind& kind : kDebuffs) {
        if (kind.code != code) continue;
        const std::string name = level == kHighest ? std::string(kind.name_vii) : std::string(kind.name) + " " + level;
        TargetHud->AddDebuff(object, Vars::SpellFilterHandler->GetID(name));
    }
} catch (...) {
    ReportFailure("Debuff", "HUDTargetHandler");
}

void HUDTargetHandler::ClickHUD(std::int32_t x, std::int32_t y) try {
    ClickTitleBar(TargetHud->frame, x, y, &ControlHandler::ToggleTarget);
} catch (...) {
    ReportFailure("ClickHUD", "HUDTargetHandler");
}

bool HUDTargetHandler::WithinTitle(std::int32_t x, std::int32_t y) try {
    return WithinTitleBar(TargetHud->frame, x, y);
} catch (...) {
    ReportFailure("WithinTitle", "HUDTargetHandler");
    return false;
}

}  // namespace ombrel
