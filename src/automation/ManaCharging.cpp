// Charges worn items from the stone or charge in the packs that comes closest to what they lack.
#include <fmt/format.h>

#include <cmath>
#include <cstdlib>

#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/time.h"

namespace ombrel {
namespace {

// Properties by the game's keys.
constexpr std::int32_t kSlots = 10;  // where it is worn, 0 for not at all
constexpr std::int32_t kValue = 19;  // pyreals
constexpr std::int32_t kMana = 107;
constexpr std::int32_t kMaximumMana = 108;
constexpr std::int32_t kManaRate = 5;  // double: use per second

constexpr std::string_view kStone = "Mana Stone";
constexpr std::string_view kCharge = "Mana Charge";
constexpr double kNone = 54321.0;  // no candidate yet
constexpr double kLowSeconds = 120.0;
constexpr std::int32_t kBeat = 1000;  // milliseconds

template <class Action>
void ForEach(host::WorldIteratorPtr walk, Action action) {
    while (const auto object = walk->Next()) action(*object);
}

template <class Action>
void ForEachNamed(host::World& world, std::string_view name, Action action) {
    auto walk = world.Inventory();
    walk->ByName(name);
    ForEach(std::move(walk), action);
}

template <class Action>
void ForEachWorn(host::World& world, Action action) {
    ForEach(world.Owned(), [&](const host::WorldObject& item) {
        if (item.Long(kSlots, 0) != 0) action(item);
    });
}

// What the worn items lack, and whether one of them is about to run dry.
struct Need {
    double mana = 0.0;
    bool any_low = false;
};

Need WornNeed(host::World& world) {
    Need need;
    ForEachWorn(world, [&](const host::WorldObject& item) {
        const std::int32_t mana = item.Long(kMana, 0);
        const std::int32_t maximum = item.Long(kMaximumMana, 0);
        if (Vars::DebugMode) wtcw_debug(fmt::format("{} {} {}", item.Name(), mana, maximum));
        const double rate = std::abs(item.Double(kManaRate, 0.0));
        if (rate > 0.0 && std::floor(mana / rate) < kLowSeconds) need.any_low = true;
        need.mana += static_cast<double>(maximum) - mana;
    });
    return need;
}

}  // namespace

void FilterHandler::Fill_Mana(bool automatic) try {
    if (WaitforScan->Running()) return;  // one fill at a time

    mana_fill_ = {automatic, -1, NowUnix() - 1, mana_fill_.stone};
    if (Vars::DebugMode) wtcw_debug("Time: " + NumberText(mana_fill_.scan_start));
    const auto ask = [this](std::string_view what, const host::WorldObject& item, const std::string& called) {
        if (Vars::DebugMode) wtcw_debug(fmt::format("ID {}: {}", what, called));
        ACHooks->RequestID(item.GUID());
    };
    ForEachNamed(*World, kStone, [&](const auto& item) { ask("Stone", item, NumberText(item.GUID())); });
    ForEachNamed(*World, kCharge, [&](const auto& item) { ask("Charge", item, NumberText(item.GUID())); });
    ForEachWorn(*World, [&](const auto& item) {
        ask("Equipment", item, item.Name());
        mana_fill_.last_item = item.GUID();
    });
    if (Vars::DebugMode) wtcw_debug("Last Item " + NumberText(mana_fill_.last_item));
    if (mana_fill_.last_item != -1) WaitforScan->Start(kBeat);
} catch (...) {
    ReportFailure("Fill_Mana", "FilterHandler");
}

// The answers come in order: with the last one all are there.
void FilterHandler::WaitforScan_Timeout() try {
    const auto item = World->Object(mana_fill_.last_item);
    if (!item) return WaitforScan->Stop();
    const std::int32_t answered = item->LastIdTime();
    if (Vars::DebugMode) wtcw_debug(fmt::format("{} / {}", answered, mana_fill_.scan_start));
    if (answered <= mana_fill_.scan_start) return;
    WaitforScan->Stop();
    FindCHarge();
} catch (...) {
    ReportFailure("WaitforScan", "FilterHandler");
}

void FilterHandler::FindCHarge() try {
    const Need need = WornNeed(*World);
    if (mana_fill_.automatic && !need.any_low) return wtcw_debug("No filling needed");
    wtcw("Needed mana: " + NumberText(need.mana));

    double best = kNone;
    const auto consider = [&](const host::WorldObject& item) {
        const double difference = need.mana - item.Long(kMana, 0);
        if (std::abs(best) <= std::abs(difference)) return;
        best = difference;
        mana_fill_.stone = item.GUID();
    };
    ForEachNamed(*World, kStone, [&](const auto& item) {
        const std::int32_t mana = item.Long(kMana, 0);
        if (mana <= 0) return;
        if (Vars::DebugMode) wtcw_debug(fmt::format("{} {}", mana, item.Name()));
        consider(item);
    });
    // A stone that holds the need or more lets the charges try to come closer.
    if (best == kNone || best <= 0.0) {
        const double dearest = ToDouble(Vars::ControlHandler->FillThreshold->Text());
        ForEachNamed(*World, kCharge, [&](const auto& item) {
            if (item.Long(kValue, 0) < dearest) consider(item);
        });
    }
    if (best == kNone) return wtcw_error("Warning: Could not find anything to charge your items with!");
    UseCharge->Start(kBeat);
} catch (...) {
    ReportFailure("FindCHarge", "FilterHandler");
}

// A stone is used until it is empty or gone.
void FilterHandler::UseCharge_Timeout() try {
    const host::Id stone = mana_fill_.stone;
    if (Vars::DebugMode) wtcw_debug("Attempting to use stone " + NumberText(stone));
    const auto item = ItemExists(stone) ? World->Object(stone) : nullptr;
    if (!item || item->HasIdData() == 0 || item->Long(kMana, 0) <= 0) return UseCharge->Stop();
    wtcw_debug("Stone valid");
    ApplyItem(stone, GetMyCharGUID());
    wtcw_debug("Stone applied");
    ACHooks->RequestID(stone);
} catch (...) {
    ReportFailure("UseCharge", "FilterHandler");
}

}  // namespace ombrel
