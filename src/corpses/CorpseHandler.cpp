#include "corpses/CorpseHandler.h"

#include <fmt/format.h>

#include <algorithm>

#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/text.h"
#include "core/time.h"
#include "hud/HUDMainHandler.h"
#include "spells/SpellHandler.h"

namespace ombrel {
namespace {

constexpr std::int32_t kSecondsPerLevel = 300;
constexpr std::int32_t kShortestDecay = 60;

std::string Coordinates(double ns, double ew) { return fmt::format("{}, {}", NumberText(ns), NumberText(ew)); }

// The entry for a corpse: the same object, or one that was never seen at the same place.
std::deque<CorpseInfo>::iterator FindCorpse(std::deque<CorpseInfo>& corpses, host::Id guid, double ns, double ew) {
    return std::find_if(corpses.begin(), corpses.end(), [&](const CorpseInfo& corpse) {
        return corpse.guid == guid || (corpse.guid == 0 && corpse.NS == ns && corpse.EW == ew);
    });
}

// A coordinate with its hemisphere as the last character.
double ReadCoordinate(std::string_view text, std::string_view positive) {
    const double value = ToDouble(DropLast(text));
    return text.ends_with(positive) ? value : -value;
}

}  // namespace

CorpseHandler::CorpseHandler() { wtcw_debug("Corpse Handler Init"); }

CorpseHandler::~CorpseHandler() { wtcw_debug("Corpse Handler Terminate"); }

void CorpseHandler::UpdateCorpseList() try {
    auto& controls = *Vars::ControlHandler;
    auto& filter = *Vars::FilterHandler;
    host::List& list = *controls.CorpsesList;
    list.Clear();
    if (Corpses.empty()) return;

    const double ns = filter.GetRawNS();
    const double ew = filter.GetRawEW();
    const std::int32_t now = NowUnix();
    for (const CorpseInfo& corpse : Corpses) {
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, corpse.Dungeon ? "Dungeon" : filter.ConvCoords(corpse.NS, corpse.EW));
        list.SetData(1, row, filter.ConvCoords(ns - corpse.NS, ew - corpse.EW));
        list.SetData(2, row, ConvTime(static_cast<double>(corpse.time) - now));
        list.SetData(3, row, icon::kDelete, 1);
    }
    list.SetColor(0, std::max(controls.SelectedCorpse, 0), kHighlight);
} catch (...) {
    ReportFailure("UpdateCorpseList", "CorpseHandler");
}

void CorpseHandler::CharDeath() try {
    wtcw_debug("Char Death ");
    Vars::SpellHandler->RebuildList(true);
    died_ = true;
    if (pending_) return;  // a death is told of more than once

    wtcw_debug("Creating Corpse Info");
    auto& filter = *Vars::FilterHandler;
    CorpseInfo corpse;
    const double decay =
        std::max(static_cast<double>(filter.GetMyCharLevel()) * kSecondsPerLevel, 1.0 * kShortestDecay);
    corpse.time = ToLong(NowUnix() + decay);
    corpse.NS = filter.GetRawNS();
    corpse.EW = filter.GetRawEW();
    pending_ = std::move(corpse);
} catch (...) {
    ReportFailure("CharDeath", "CorpseHandler");
}

void CorpseHandler::NewCorpse(host::Id guid, double ns, double ew) try {
    if (Vars::DebugMode) wtcw_debug("New Corpse " + Coordinates(ns, ew));
    if (!pending_) return;
    pending_->guid = guid;
    pending_->NS = ns;
    pending_->EW = ew;
} catch (...) {
    ReportFailure("NewCorpse", "CorpseHandler");
}

void CorpseHandler::CorpseCoords(const std::string& text) try {
    const auto parts = Split(text, ", ");
    if (parts.size() < 2) throw Failure(failure::kSubscript);
    const double ns = ReadCoordinate(parts[0], "N");
    const double ew = ReadCoordinate(parts[1], "E");
    // A corpse that has been seen keeps the place where it was seen.
    if (!pending_ || pending_->guid != 0) return;
    pending_->NS = ns;
    pending_->EW = ew;
    pending_->Dungeon = false;
} catch (...) {
    ReportFailure("CorpseCoords", "CorpseHandler");
}

void CorpseHandler::CorpseData(const std::string& text) try {
    if (Vars::DebugMode) wtcw_debug("Corpse Data " + text);
    if (pending_) pending_->data = text;
} catch (...) {
    ReportFailure("CorpseData", "CorpseHandler");
}

void CorpseHandler::AddCorpse() try {
    died_ = false;
    auto corpse = std::exchange(pending_, std::nullopt);
    if (!corpse || !Vars::ControlHandler->CorpsesTrack->Checked()) return;

    if (Vars::DebugMode)
        wtcw_debug(fmt::format("Add Corpse {} - {}", Coordinates(corpse->NS, corpse->EW), corpse->guid));
    Corpses.push_back(std::move(*corpse));
    Vars::ControlHandler->Data_Save();
    UpdateCorpseList();
    Vars::HUDMainHandler->CreateHUD();
} catch (...) {
    ReportFailure("AddCorpse", "CorpseHandler");
}

void CorpseHandler::AddCorpsefromData(double ns, double ew, std::int32_t time, bool dungeon, host::Id guid,
                                      const std::string& data) try {
    Corpses.push_back({guid, ns, ew, time, dungeon, data});
    if (Vars::DebugMode) wtcw_debug("AddCorpsefromData " + Coordinates(ns, ew));
} catch (...) {
    ReportFailure("AddCorpsefromData", "CorpseHandler");
}

void CorpseHandler::OpenCorpse(double ns, double ew, host::Id guid) try {
    if (Vars::DebugMode) wtcw_debug("OpenCorpse " + Coordinates(ns, ew));
    if (FindCorpse(opened_, guid, ns, ew) != opened_.end()) return;
    CorpseInfo corpse;
    corpse.NS = ns;
    corpse.EW = ew;
    corpse.guid = guid;
    opened_.push_back(std::move(corpse));
} catch (...) {
    ReportFailure("OpenCorpse", "CorpseHandler");
}

void CorpseHandler::CorpseDisappear(double ns, double ew, host::Id guid) try {
    if (Vars::DebugMode) wtcw_debug("CorpseDisappear " + Coordinates(ns, ew));
    const auto corpse = FindCorpse(opened_, guid, ns, ew);
    if (corpse == opened_.end()) return;
    opened_.erase(corpse);
    RemoveCorpsebyGUID(guid, ns, ew);
} catch (...) {
    ReportFailure("CorpseDisappear", "CorpseHandler");
}

void CorpseHandler::RemoveCorpsebyGUID(host::Id guid, double ns, double ew) try {
    if (Vars::DebugMode) wtcw_debug("RemoveCorpse " + Coordinates(ns, ew));
    const auto corpse = FindCorpse(Corpses, guid, ns, ew);
    if (corpse != Corpses.end()) Remove(static_cast<std::size_t>(corpse - Corpses.begin()));
} catch (...) {
    ReportFailure("RemoveCorpsebyGUID", "CorpseHandler");
}

void CorpseHandler::RemoveCorpsebyID(std::int32_t id) try {
    if (Vars::DebugMode) wtcw_debug("RemoveCorpsebyID " + NumberText(id));
    if (id < 1 || static_cast<std::size_t>(id) > Corpses.size()) throw Failure(failure::kSubscript);
    Remove(static_cast<std::size_t>(id) - 1);
} catch (...) {
    ReportFailure("RemoveCorpsebyID", "CorpseHandler");
}

void CorpseHandler::Remove(std::size_t index) {
    Corpses.erase(Corpses.begin() + static_cast<std::ptrdiff_t>(index));
    std::int32_t& selected = Vars::ControlHandler->SelectedCorpse;
    const auto rows = static_cast<std::int32_t>(Corpses.size());
    if (selected == static_cast<std::int32_t>(index) || selected >= rows) selected = -1;
    UpdateCorpseList();
    Vars::HUDMainHandler->CreateHUD();
    Vars::ControlHandler->Data_Save();
}

std::string CorpseHandler::GetCorpse() try {
    wtcw_debug("GetCorpse ");
    const auto& controls = *Vars::ControlHandler;
    if (controls.CorpsesList->Count() == 0) return "None";
    return CellText(*controls.CorpsesList, 0, std::max(controls.SelectedCorpse, 0));
} catch (...) {
    ReportFailure("GetCorpse", "CorpseHandler");
    return {};
}

}  // namespace ombrel
