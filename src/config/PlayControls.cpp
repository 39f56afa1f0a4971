// The lists of spells and corpses: what the player follows there.
#include <algorithm>
#include <string>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "config/Effects.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/failure.h"
#include "corpses/CorpseHandler.h"
#include "hud/HUDMainHandler.h"
#include "spells/SpellHandler.h"

namespace ombrel {
namespace {

constexpr std::int32_t kSpellName = 1;

constexpr std::int32_t kPlace = 0;  // of a corpse
constexpr std::int32_t kDeleteCorpse = 3;

}  // namespace

void effect::RebuildSpells(ControlHandler&, std::int32_t) {
    Vars::SpellHandler->RebuildList(true);
    Vars::HUDMainHandler->UpdateHUD();
}

// The spell is followed by its name, which outlives its row. A second click follows the next to run out again.
void ControlHandler::BuffList_Change(std::int32_t, std::int32_t row) try {
    if (!HasRow(*BuffList, row)) return;
    const std::string& name = CellText(*BuffList, kSpellName, row);
    SelectedSpell = SelectedSpell == name ? std::string() : name;
    Settings_Save(0);
} catch (...) {
    ReportFailure("BuffList_Change", "ControlHandler");
}

void ControlHandler::CorpsesList_Change(std::int32_t column, std::int32_t row) try {
    if (!HasRow(*CorpsesList, row)) return;
    if (column == kDeleteCorpse) {
        Vars::CorpseHandler->RemoveCorpsebyID(row + 1);
    } else {
        std::int32_t marked = std::max(SelectedCorpse, 0);
        MoveMark(*CorpsesList, marked, row, kPlace);
        SelectedCorpse = row;
        if (column != kPlace) wtcw(Vars::CorpseHandler->Corpses.at(static_cast<std::size_t>(row)).data);
    }
    Data_Save();
    Vars::HUDMainHandler->CreateHUD();
} catch (...) {
    ReportFailure("CorpsesList_Change", "ControlHandler");
}

}  // namespace ombrel
