#include "spells/SpellFilterHandler.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/text.h"
#include "host/Plugin.h"

namespace ombrel {
namespace {

constexpr std::int32_t kUnknownIcon = 0x060011F8;
constexpr std::int32_t kLastExported = 5000;

// A debuff is a spell whose flags are one of these as a whole; no single bit tells it.
constexpr std::int32_t kDebuffFlags[] = {17,  19,  24,  26,  8337, 8346, 9361, 1169, 128, 130,
                                         131, 144, 145, 146, 147,  152,  153,  154,  155, 158};

// A column of the export: its head and its text.
struct ExportColumn {
    std::string_view name;
    std::string (*text)(const host::Spell& spell);
};

constexpr ExportColumn kExport[] = {
    {"ID", [](const host::Spell& spell) { return NumberText(spell.ID()); }},
    {"Name", [](const host::Spell& spell) { return spell.Name(); }},
    {"Description", [](const host::Spell& spell) { return spell.Description(); }},
    {"Diff", [](const host::Spell& spell) { return NumberText(spell.Diff()); }},
    {"Icon", [](const host::Spell& spell) { return NumberText(spell.Icon()); }},
    {"School", [](const host::Spell& spell) { return NumberText(spell.School()); }},
    {"Type", [](const host::Spell& spell) { return NumberText(spell.Type()); }},
    {"Duration", [](const host::Spell& spell) { return NumberText(spell.Duration()); }},
    {"Effect", [](const host::Spell& spell) { return NumberText(spell.Effect()); }},
    {"EffectOnCaster", [](const host::Spell& spell) { return NumberText(spell.EffectOnCaster()); }},
    {"EffectOnTarget", [](const host::Spell& spell) { return NumberText(spell.EffectOnTarget()); }},
    {"Speed", [](const host::Spell& spell) { return NumberText(spell.Speed()); }},
    {"Version", [](const host::Spell& spell) { return NumberText(spell.Version()); }},
    {"Flags", [](const host::Spell& spell) { return NumberText(spell.Flags()); }},
    {"SortOrder", [](const host::Spell& spell) { return NumberText(spell.SortOrder()); }},
    {"TargetMask", [](const host::Spell& spell) { return NumberText(spell.TargetMask()); }},
    {"ComponentCount", [](const host::Spell& spell) { return NumberText(spell.ComponentCount()); }},
    {"ManaCost", [](const host::Spell& spell) { return NumberText(spell.ManaCost()); }},
    {"RangeBase", [](const host::Spell& spell) { return NumberText(spell.RangeBase()); }},
    {"RangeModifier", [](const host::Spell& spell) { return NumberText(spell.RangeModifier()); }},
    {"Researchable", [](const host::Spell& spell) { return std::string(BoolText(spell.Researchable())); }},
};

void WriteRow(const host::Spell& spell) {
    std::string row;
    for (const auto& column : kExport) {
        if (!row.empty()) row += '|';
        row += column.text(spell);
    }
    Vars::FilterHandler->WriteToChatWindow(row, 0, 0);
}

}  // namespace

// A framework without the service is not reported here: the player hears of it at login.
SpellFilterHandler::SpellFilterHandler() {
    wtcw_debug("Spell Filter Handler Init");
    try {
        SpellFilter = Vars::Site->GetSpells();
        SpellFilter->Login = [] {};
    } catch (...) {
        wtcw_debug("The framework's spell table is missing");
    }
}

SpellFilterHandler::~SpellFilterHandler() { wtcw_debug("Spell Filter Handler Terminate"); }

host::SpellPtr SpellFilterHandler::Find(std::int32_t id) { return SpellFilter ? SpellFilter->ByID(id) : nullptr; }

std::int32_t SpellFilterHandler::GetID(const std::string& name) try {
    const auto spell = SpellFilter ? SpellFilter->ByName(name) : nullptr;
    return spell ? spell->ID() : -1;
} catch (...) {
    ReportFailure("GetID", "SpellFilterHandler");
    return 0;
}

std::string SpellFilterHandler::GetName(std::int32_t id) try {
    const auto spell = Find(id);
    return spell ? Replace(spell->Name(), "\u2019", "'") : "Unknown " + NumberText(id);
} catch (...) {
    ReportFailure("GetName", "SpellFilterHandler");
    return {};
}

std::int32_t SpellFilterHandler::GetFamily(std::int32_t id) try {
    const auto spell = Find(id);
    return spell ? spell->Effect() : -1;
} catch (...) {
    ReportFailure("GetFamily", "SpellFilterHandler");
    return 0;
}

std::int32_t SpellFilterHandler::GetIcon(std::int32_t id) try {
    const auto spell = Find(id);
    return spell ? spell->Icon() : kUnknownIcon;
} catch (...) {
    ReportFailure("GetIcon", "SpellFilterHandler");
    return 0;
}

std::int32_t SpellFilterHandler::GetDifficulty(std::int32_t id) try {
    const auto spell = Find(id);
    return spell ? spell->Diff() : -1;
} catch (...) {
    ReportFailure("GetDifficulty", "SpellFilterHandler");
    return 0;
}

std::int32_t SpellFilterHandler::GetDuration(std::int32_t id) try {
    const auto spell = Find(id);
    return spell ? ToLong(spell->Duration()) : -1;
} catch (...) {
    ReportFailure("GetDuration", "SpellFilterHandler");
    return 0;
}

bool SpellFilterHandler::IsADebuff(std::int32_t id) try {
    const auto spell = Find(id);
    return spell &&
           std::find(std::begin(kDebuffFlags), std::end(kDebuffFlags), spell->Flags()) != std::end(kDebuffFlags);
} catch (...) {
    ReportFailure("IsADebuff", "SpellFilterHandler");
    return false;
}

void SpellFilterHandler::SpellInfo(std::int32_t id) try {
    if (const auto spell = Find(id)) WriteRow(*spell);
} catch (...) {
    ReportFailure("SpellInfo", "SpellFilterHandler");
}

void SpellFilterHandler::SpellExport() try {
    std::string head;
    for (const auto& column : kExport) {
        if (!head.empty()) head += '|';
        head += column.name;
    }
    Vars::FilterHandler->WriteToChatWindow(head, 0, 0);
    for (std::int32_t id = 0; id <= kLastExported; ++id) SpellInfo(id);
} catch (...) {
    ReportFailure("SpellExport", "SpellFilterHandler");
}

}  // namespace ombrel
