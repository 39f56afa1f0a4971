#include <fmt/format.h>

#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/time.h"
#include "spells/SpellFilterHandler.h"
#include "spells/SpellHandler.h"

namespace ombrel {
namespace {

constexpr std::string_view kAllArmor = "your armor.";
constexpr double kAugmentation = 0.2;  // of a spell's duration, each

SpellInfoPtr NewItemSpell(std::int32_t id, const std::string& target) {
    auto spell = std::make_shared<SpellInfo>();
    spell->spellid = id;
    spell->family = Vars::SpellFilterHandler->GetFamily(id);
    spell->sTarget = target;
    return spell;
}

void Fill(SpellInfo& spell, double seconds) {
    spell.timeRemaining = ToLong(seconds);
    spell.finish = ToLong(static_cast<double>(NowUnix()) + spell.timeRemaining);
    spell.difficulty = Vars::SpellFilterHandler->GetDifficulty(spell.spellid);
    spell.lngIcon = Vars::SpellFilterHandler->GetIcon(spell.spellid);
}

}  // namespace

void SpellHandler::AddItemSpell(const std::string& spellname, const std::string& sTarget) try {
    if (Vars::DebugMode) wtcw_debug(fmt::format("AddItemSpell {} {}", spellname, sTarget));
    if (sTarget != kAllArmor && Vars::FilterHandler->GetIDinInv(sTarget) == -1) return;

    auto& table = *Vars::SpellFilterHandler;
    const std::int32_t id = table.GetID(spellname);
    SpellInfoPtr spell = NewItemSpell(id, sTarget);
    Fill(*spell, (kAugmentation * lAugs + 1.0) * table.GetDuration(id));
    spell->Name = spellname;
    FileItemSpell(std::move(spell));
    BuildSpellList();
} catch (...) {
    ReportFailure("AddItemSpell", "SpellHandler");
}

// What was saved is what remains: no augmentation lengthens it again.
void SpellHandler::AddItemSpellfromData(std::int32_t spell, std::int32_t remaining, const std::string& sTarget) try {
    if (Vars::DebugMode) wtcw_debug(fmt::format("AddItemSpellFromData {} {} {}", spell, remaining, sTarget));
    if (sTarget != kAllArmor && Vars::FilterHandler->GetIDinInv(sTarget) == -1) return;

    SpellInfoPtr saved = NewItemSpell(spell, sTarget);
    Fill(*saved, remaining);
    saved->Name = Vars::SpellFilterHandler->GetName(spell);
    FileItemSpell(std::move(saved));
} catch (...) {
    ReportFailure("AddItemSpellfromData", "SpellHandler");
}

void SpellHandler::FileItemSpell(SpellInfoPtr spell) {
    const std::int32_t family = spell->family;
    ItemSpells[spell->sTarget].AddSpell(family, std::move(spell));
}

// The item stays in the store, with no spells when this was the last.
void SpellHandler::RemoveItemSpell(const std::string& sTarget, std::int32_t family) try {
    auto item = ItemSpells.find(sTarget);
    if (item == ItemSpells.end() || !item->second.GetSpell(family)) throw Failure(failure::kInvalidCall);
    item.value().RemoveSpell(family);
} catch (...) {
    ReportFailure("RemoveItemSpell", "SpellHandler");
}

}  // namespace ombrel
