#include "hud/HudHandlerT.h"

#include <fmt/format.h>

#include <vector>

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/time.h"
#include "spells/SpellFilterHandler.h"

namespace ombrel {
namespace {

constexpr HudFrame::Names kNames{
    "HudHandlerT", "HudHandlerT.FadeTimer", "CreateHUDT1 ", "ResizeHUDT ", "MoveHUDT ", "ClickHUDT ", "DeviceLost "};

}  // namespace

HudHandlerT::HudHandlerT() : frame(kNames) {
    try {
        wtcw_debug("HUD Handler Init");
        frame.Open({[] { return false; }, [this] { return object_ == nullptr; }, [](host::HudView&, bool) {}});
    } catch (...) {
        ReportFailure("Class_Initialize", "HudHandlerT");
    }
}

HudHandlerT::~HudHandlerT() { wtcw_debug("HUD Handler Terminate"); }

void HudHandlerT::SetObject(host::WorldObjectPtr object) try {
    object_ = std::move(object);
    frame.DrawHUD(false);
} catch (...) {
    ReportFailure("Object", "HudHandlerT");
}

void HudHandlerT::UpdateHealth(bool) {}

void HudHandlerT::AddDebuff(host::Id objectId, std::int32_t spellId) try {
    auto& table = *Vars::SpellFilterHandler;
    auto spell = std::make_shared<SpellInfo>();
    spell->Name = table.GetName(spellId);
    spell->spellid = spellId;
    spell->family = table.GetFamily(spellId);
    spell->difficulty = table.GetDifficulty(spellId);
    spell->timeRemaining = table.GetDuration(spellId);
    spell->finish = ToLong(static_cast<double>(NowUnix()) + spell->timeRemaining);
    spell->sTarget = NumberText(objectId);
    spell->lngIcon = table.GetIcon(spellId);
    const std::int32_t family = spell->family;
    if (Vars::DebugMode) wtcw_debug(fmt::format("AddSpell {} {} {}", objectId, spellId, family));
    debuffs_[objectId].AddSpell(family, std::move(spell));
    UpdateDebuffs(true);
} catch (...) {
    ReportFailure("AddDebuff", "HudHandlerT");
}

void HudHandlerT::RemoveDebuff(host::Id objectId) try { debuffs_.erase(objectId); } catch (...) {
    ReportFailure("RemoveDebuff", "HudHandlerT");
}

void HudHandlerT::RemoveDebuffSpell(host::Id objectId, std::int32_t family) try {
    if (Vars::DebugMode) wtcw_debug(fmt::format("RemoveDebuffSpell {} {}", objectId, family));
    if (auto creature = debuffs_.find(objectId); creature != debuffs_.end()) creature.value().RemoveSpell(family);
} catch (...) {
    ReportFailure("RemoveDebuffSpell", "HudHandlerT");
}

// Debuffs are timed for every creature, also while another is on show.
void HudHandlerT::UpdateDebuffs(bool) try {
    const std::int32_t now = NowUnix();
    std::vector<std::pair<host::Id, std::int32_t>> over;
    for (const auto& [creature, spells] : debuffs_) {
        for (const auto& [family, spell] : spells.Spells) {
            spell->timeRemaining = ToLong(static_cast<double>(spell->finish) - now);
            if (spell->timeRemaining < 1) over.emplace_back(creature, family);
        }
    }
    for (const auto& [creature, family] : over) RemoveDebuffSpell(creature, family);
} catch (...) {
    ReportFailure("UpdateDebuffs", "HudHandlerT");
}

}  // namespace ombrel
