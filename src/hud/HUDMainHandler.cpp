#include "hud/HUDMainHandler.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "hud/TitleBar.h"
#include "spells/SpellHandler.h"
#include "stats/Statistics.h"

namespace ombrel {
namespace {

constexpr std::int32_t kOpaque = 10;
constexpr std::int32_t kFaint = 8;
constexpr std::int32_t kNoBeer = 99999;
constexpr std::string_view kChange = "XP Change";

// A line of the HUD: the row of the view's list that turns it on, and where its value comes from, either a text of the
// view or a procedure that may find nothing to show.
struct Line {
    std::string_view row;
    const char* key;
    std::string_view long_label, short_label;
    Ref<host::StaticText> ControlHandler::*text;
    bool (*value)(std::string& text) = nullptr;
};

// Nothing to show while the client does not know where the character stands, as on the way into the world.
bool Coordinates(std::string& text) {
    auto& filter = *Vars::FilterHandler;
    if (!filter.ItemExists(filter.GetMyCharGUID())) return false;
    text = filter.GetCharCoords();
    return true;
}

// The selected corpse, else the first: where it is, or how far.
bool Corpse(std::string& text) {
    const auto& controls = *Vars::ControlHandler;
    if (controls.CorpsesList->Count() == 0) return false;
    const std::int32_t column = controls.CorpsesAbsolute->Checked() ? 0 : 1;
    text = CellText(*controls.CorpsesList, column, std::max(controls.SelectedCorpse, 0));
    return true;
}

// The tracked buff, and the minutes that the beers have left.
bool NextBuff(std::string& text) {
    const auto& controls = *Vars::ControlHandler;
    text = controls.SpellsTracked->Text();
    if (!controls.SpellsBeers->Checked()) return true;
    const std::int32_t beer = Vars::SpellHandler->LowBeer;
    text += beer == kNoBeer ? " (x)" : fmt::format(" ({})", NumberText(RoundUp(beer / 60.0)));
    return true;
}

constexpr Line kLines[] = {
    {"Session Time", "STM", "Session Time: ", "STime: ", &ControlHandler::SessionTime},
    {"Session XP", "SXP", "Session XP: ", "SXP: ", &ControlHandler::XPSession},
    {"Session XP/Hour", "XPH", "Session XP/H: ", "SXP/H: ", &ControlHandler::XPHour},
    {"Total Time", "TTM", "Total Time: ", "TTime: ", &ControlHandler::TotalTime},
    {"Total XP", "TXP", "Total XP: ", "TXP: ", &ControlHandler::TotalXP},
    {"Total XP/Hour", "TXPH", "Total XP/H: ", "TXP/H: ", &ControlHandler::TotalXPHour},
    {"5 Minute Avg", "5MIN", "5 Min Avg: ", "5Min: ", &ControlHandler::XP5Min},
    {"Next Level", "XPL", "XP to Level: ", "XPL: ", &ControlHandler::XPNext},
    {"Unassigned", "XPU", "Unassigned: ", "Un: ", &ControlHandler::XPUn},
    {"Level", "Lev", "Level: ", "Level: ", &ControlHandler::LevelNum},
    {"Kills", "Kil", "Kills: ", "Kills: ", &ControlHandler::Kills},
    {"Coords", "Cor", "Coords: ", "", nullptr, &Coordinates},
    {"Corpse", "Bod", "Corpse: ", "Body: ", nullptr, &Corpse},
    {"Next Buff", "NxB", "Next Buff: ", "Buff: ", nullptr, &NextBuff},
    {kChange, "XPC", "XP Change: ", "XPC: ", &ControlHandler::XPChange},
};

}  // namespace

HUDMainHandler::HUDMainHandler() {
    try {
        wtcw_debug("HUDMain Handler Init");
        MainHud = std::make_unique<HUDHandler>();
        MainHud->frame.SetTitle("Main");
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDMainHandler");
    }
}

HUDMainHandler::~HUDMainHandler() { wtcw_debug("HUDMain Handler Terminate"); }

void HUDMainHandler::CreateHUD() try {
    MainHud->Clear();
    AddData();
    MainHud->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("CreateHUD", "HUDMainHandler");
}

void HUDMainHandler::UpdateHUD() try {
    AddData();
    MainHud->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("UpdateHUD", "HUDMainHandler");
}

// A row that is off adds nothing; a line that was there goes away only with the next CreateHUD.
void HUDMainHandler::AddData() try {
    const auto& controls = *Vars::ControlHandler;
    const host::List& rows = *controls.HudList;
    const bool short_labels = controls.HudMainLbl->Checked();
    for (std::int32_t row = 0; row < rows.Count(); ++row) {
        const std::string& name = CellText(rows, 1, row);
        const auto* line =
            std::find_if(std::begin(kLines), std::end(kLines), [&](const Line& l) { return l.row == name; });
        if (line == std::end(kLines) || !CellFlag(rows, 0, row)) continue;
        if (!line->value)
            value_ = (controls.*line->text)->Text();
        else if (!line->value(value_))
            continue;
        text_ = short_labels ? line->short_label : line->long_label;
        text_ += value_;
        // A change fades to a fainter colour with the next one.
        const bool faint = line->row == kChange && !Vars::Statistics->ShowXPChange;
        MainHud->Add(line->key, text_, GetColorFromHUDIcon(CellIcon(rows, 2, row)), -1, true, faint ? kFaint : kOpaque);
    }
} catch (...) {
    ReportFailure("AddData", "HUDMainHandler");
}

void HUDMainHandler::ClickHUD(std::int32_t x, std::int32_t y) try {
    ClickTitleBar(MainHud->frame, x, y, &ControlHandler::ToggleMain);
} catch (...) {
    ReportFailure("ClickHUD", "HUDMainHandler");
}

bool HUDMainHandler::WithinTitle(std::int32_t x, std::int32_t y) try {
    return WithinTitleBar(MainHud->frame, x, y);
} catch (...) {
    ReportFailure("WithinTitle", "HUDMainHandler");
    return false;
}

}  // namespace ombrel
