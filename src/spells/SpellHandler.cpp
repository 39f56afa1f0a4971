#include "spells/SpellHandler.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/time.h"
#include "spells/SpellFilterHandler.h"
#include "spells/Tables.h"
#include "stats/Statistics.h"

namespace ombrel {
namespace {

constexpr std::int32_t kNever = 99999;  // sorts a spell that doesn't end behind all that do

// The moment so many seconds from another.
std::int32_t Later(std::int32_t moment, std::int32_t seconds) {
    return ToLong(static_cast<double>(moment) + static_cast<double>(seconds));
}

std::string DisplayName(const SpellInfo& spell) {
    return spell.sTarget.empty() ? spell.Name : spell.Name + " on " + spell.sTarget;
}

// What a row of the two lists says.
std::string RowName(const SpellInfo& spell, bool developer) {
    if (spell.Debuff) return spell.Name;
    return developer ? fmt::format("{} {} {}", spell.spellid, spell.family, spell.Name) : DisplayName(spell);
}

struct Warning {
    std::int32_t seconds;
    std::string_view text;
};

constexpr Warning kWarnings[] = {
    {300, "Your buffs will expire in 5 minutes!"},
    {180, "Your buffs will expire in 3 minutes!"},
    {60, "Your buffs will expire in 1 minute!"},
};

}  // namespace

SpellHandler::SpellHandler() { wtcw_debug("Spell Handler Init"); }

SpellHandler::~SpellHandler() { wtcw_debug("Spell Handler Terminate"); }

SpellInfoPtr SpellHandler::FromEnchantment(const host::Enchantment& enchantment, std::int32_t now) {
    auto& table = *Vars::SpellFilterHandler;
    const bool ends = enchantment.TimeRemaining >= 1;
    auto spell = std::make_shared<SpellInfo>();
    spell->family = enchantment.Family;
    spell->spellid = enchantment.SpellID;
    spell->Name = table.GetName(enchantment.SpellID);
    spell->difficulty = table.GetDifficulty(enchantment.SpellID);
    spell->lngIcon = table.GetIcon(enchantment.SpellID);
    spell->Debuff = table.IsADebuff(enchantment.SpellID);
    spell->timeRemaining = ends ? enchantment.TimeRemaining : -1;
    spell->finish = ends ? Later(now, enchantment.TimeRemaining) : -1;
    return spell;
}

// The enchantments, one of each family: the strongest, and of equals the longest. The cooldowns among them stand apart.
std::vector<SpellInfoPtr> SpellHandler::ReadEnchantments(std::int32_t now) {
    auto& filter = *Vars::FilterHandler;
    tsl::ordered_map<std::int32_t, SpellInfoPtr> families;
    const std::int32_t count = filter.GetMyEnchantmentCount();
    for (std::int32_t index = 0; index < count; ++index) {
        const host::Enchantment enchantment = filter.GetMyEnchantment(index);
        if (enchantment.SpellID < 0 && enchantment.TimeRemaining > 0) {
            wtcw_debug("Adding Cooldown Timer: z.SpellID");
            CooldownTimers[enchantment.SpellID] = enchantment;
        }
        if (enchantment.SpellID <= 0) continue;
        auto known = families.find(enchantment.Family);
        if (known == families.end()) {
            auto spell = FromEnchantment(enchantment, now);
            spell->finish = Later(now, enchantment.TimeRemaining);
            families.emplace(enchantment.Family, std::move(spell));
            continue;
        }
        const std::int32_t difficulty = Vars::SpellFilterHandler->GetDifficulty(enchantment.SpellID);
        const SpellInfo& best = *known->second;
        if (difficulty > best.difficulty ||
            (difficulty == best.difficulty && enchantment.TimeRemaining > best.timeRemaining))
            known.value() = FromEnchantment(enchantment, now);
    }

    std::vector<SpellInfoPtr> spells;
    spells.reserve(families.size());
    for (const auto& [family, spell] : families) spells.push_back(spell);
    return spells;
}

// Spells on items are never merged, with each other or with an enchantment. Those that have run out leave the store.
void SpellHandler::TakeItemSpells(std::int32_t now, std::vector<SpellInfoPtr>& spells) {
    std::vector<SpellInfoPtr> over;
    for (const auto& [item, info] : ItemSpells) {
        for (const auto& [family, spell] : info.Spells) {
            spell->timeRemaining = ToLong(static_cast<double>(spell->finish) - now);
            (spell->timeRemaining < 1 ? over : spells).push_back(spell);
        }
    }
    for (const auto& spell : over) RemoveItemSpell(spell->sTarget, spell->family);
}

void SpellHandler::BuildSpellList() try {
    if (!Vars::Loaded) return;

    wtcw_debug("Build Spell List");
    CooldownTimers.clear();
    const std::int32_t now = NowUnix();
    std::vector<SpellInfoPtr> spells = ReadEnchantments(now);
    if (Vars::ControlHandler->SpellsItem->Checked()) TakeItemSpells(now, spells);

    for (const auto& spell : spells)
        if (spell->timeRemaining == -1) spell->timeRemaining = kNever;
    std::stable_sort(spells.begin(), spells.end(),
                     [](const auto& a, const auto& b) { return a->timeRemaining < b->timeRemaining; });
    for (const auto& spell : spells)
        if (spell->timeRemaining == kNever) spell->timeRemaining = 0;
    AllSpells = std::move(spells);
    bRebuildList = false;
} catch (...) {
    ReportFailure("BuildSpellList", "SpellHandler");
}

void SpellHandler::UpdateSpellList() try {
    if (Vars::Statistics->TotalSec < 1 || !Vars::Loaded) return;

    if (bRebuildList) BuildSpellList();
    if (AllSpells.empty()) {
        NextSpell.clear();
        HandleGems(true, true, true);
        return;
    }
    FindNextSpell();

    auto& controls = *Vars::ControlHandler;
    host::List& buffs = *controls.BuffList;
    host::List& debuffs = *controls.DebuffList;
    const std::int32_t buff_scroll = buffs.ScrollPosition();
    const std::int32_t debuff_scroll = debuffs.ScrollPosition();
    buffs.Clear();
    debuffs.Clear();

    const bool selected = !(controls.SelectedSpell.empty() && NextSpell.empty());
    const std::int32_t noted = CountDown(NowUnix());
    buffs.SetScrollPosition(buff_scroll);
    debuffs.SetScrollPosition(debuff_scroll);

    const std::int32_t selectedTime = ShowTracked(noted, selected);
    const auto missing = [this](const Gem& gem) {
        return !CooldownTimers.contains(gem.cooldown) &&
               std::none_of(AllSpells.begin(), AllSpells.end(),
                            [&gem](const auto& spell) { return spell->spellid == gem.spell; });
    };
    HandleGems(missing(kFavor), missing(kBenediction), missing(kLesserBenediction));
    HandleBeers(selectedTime);
    WarnOfExpiry(selectedTime);
} catch (...) {
    ReportFailure("UpdateSpellList", "SpellHandler");
}

// The next to run out is the first buff; with debuffs alone, the last of them.
void SpellHandler::FindNextSpell() {
    auto next = std::find_if(AllSpells.begin(), AllSpells.end(), [](const auto& spell) { return !spell->Debuff; });
    if (next == AllSpells.end()) next = AllSpells.end() - 1;
    NextSpell = DisplayName(**next);
}

// Counts every spell down, fills both lists, and returns the time of the tracked spell, 0 when no row is it.
std::int32_t SpellHandler::CountDown(std::int32_t now) {
    auto& controls = *Vars::ControlHandler;
    const std::string& selection = controls.SelectedSpell.empty() ? NextSpell : controls.SelectedSpell;
    const bool by_family = IsNumeric(selection);
    const double family = by_family ? ToDouble(selection) : 0.0;
    const bool developer = Vars::FilterHandler->DevMode;
    std::int32_t noted = 0;
    beer_remaining_.fill(0);
    for (const auto& spell : AllSpells) {
        if (spell->timeRemaining > 0) {
            spell->timeRemaining = ToLong(static_cast<double>(spell->finish) - now);
            // It is still drawn this once, and gone with the next second's build.
            if (spell->timeRemaining < 1) bRebuildList = true;
        }
        for (std::size_t beer = 0; beer < kBeers; ++beer)
            if (spell->spellid == BeerTable()[beer].spell) beer_remaining_[beer] = spell->timeRemaining;
        if (spell->spellid < 1) continue;

        host::List& list = spell->Debuff ? *controls.DebuffList : *controls.BuffList;
        const std::int32_t row = list.AddRow();
        std::string name = RowName(*spell, developer);
        list.SetData(0, row, spell->lngIcon, 1);
        const bool tracked = !spell->Debuff && (by_family ? spell->family == family : name == selection);
        list.SetData(1, row, std::move(name));
        list.SetData(2, row, ConvTime(spell->timeRemaining));
        if (tracked) {
            list.SetColor(1, row, kHighlight);
            noted = spell->timeRemaining;
        }
    }
    return noted;
}

std::int32_t SpellHandler::ShowTracked(std::int32_t noted, bool selected) {
    auto& controls = *Vars::ControlHandler;
    const std::string& typed = controls.SpellsOffset->Text();
    const std::int32_t offset = IsNumeric(typed) ? ToLong(typed) : 0;
    std::int32_t selectedTime = noted;
    std::string text = "N/A";
    if (selected && noted >= 1) {
        selectedTime = Later(noted, offset);
        if (selectedTime > 0) text = ConvTime(selectedTime);
    }
    controls.SpellsTracked->SetText(text);
    return selectedTime;
}

// Each warning fires on the one second that lands on its value.
void SpellHandler::WarnOfExpiry(std::int32_t selectedTime) {
    if (!Vars::ControlHandler->ChatOption("Buffs Expiration Warning")) return;
    for (const Warning& warning : kWarnings)
        if (selectedTime == warning.seconds) wtcw(warning.text);
}

}  // namespace ombrel
