#include "adapters/sim/Deaths.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace ombrel::sim {
namespace {

constexpr milliseconds kCorpse = 400ms;
constexpr milliseconds kIntoPortal = 3000ms;
constexpr milliseconds kOutOfPortal = 8000ms;
constexpr milliseconds kEmptied = 1000ms;
constexpr std::int32_t kEntering = 0;
constexpr std::int32_t kLeaving = 1;
constexpr std::int32_t kLevelsPerThing = 20;  // of what is lost
constexpr std::int32_t kVitaePerDeath = 5;
constexpr std::int32_t kDeepestVitae = 60;
constexpr double kRestored = 0.75;  // share of each vital
constexpr std::int64_t kSecondsPerLevel = 300;
constexpr std::int64_t kShortestDecay = 3600;
constexpr std::string_view kMoney = "Pyreal";

std::string PlaceText(const host::Position& place) {
    return fmt::format("{:.1f}{}, {:.1f}{}", std::abs(place.ns), place.ns < 0 ? "S" : "N", std::abs(place.ew),
                       place.ew < 0 ? "W" : "E");
}

// "a", "a and b", "a, b, and c".
std::string Enumerated(const std::vector<std::string>& things) {
    std::string text;
    for (std::size_t i = 0; i < things.size(); ++i) {
        if (i > 0) text += things.size() == 2 ? " and " : i + 1 == things.size() ? ", and " : ", ";
        text += things[i];
    }
    return text;
}

}  // namespace

void Deaths::Died() {
    if (dying_) return;  // it is told of more than once
    dying_ = true;
    aftermath_.After(kCorpse, [this] { LeaveCorpse(); });
    aftermath_.After(kIntoPortal, [this] { aftermath_.client.ChangePortalMode(kEntering); });
    aftermath_.After(kOutOfPortal, [this] { Return(); });
}

// Where there is a map, the game tells of the place before the corpse is seen.
void Deaths::LeaveCorpse() {
    Client& client = aftermath_.client;
    const Object* self = client.FindObject(client.sheet.Character);
    const auto place = self ? self->Coordinates : std::nullopt;
    Object& corpse = aftermath_.Make("Corpse of " + client.sheet.Name, thing::kCorpse);
    const host::Id id = corpse.id;
    corpse.Container = 0;
    corpse.Coordinates = place;

    if (const std::string lost = TakeLoot(id); !lost.empty()) aftermath_.Say("You've lost " + lost + "!");
    if (place) aftermath_.Say("Your corpse is located at (" + PlaceText(*place) + ").");
    client.CreateObject(id);
    Decay(id);
}

// Half the money, and the dearest things that are neither worn nor hold others.
std::string Deaths::TakeLoot(host::Id corpse) {
    std::vector<std::string> lost;
    const auto money = aftermath_.Carried(kMoney);
    std::int64_t sum = 0;
    for (const Object* stack : money) sum += StackOf(*stack);
    if (sum >= 2) {
        std::int64_t open = sum / 2;
        lost.push_back(Grouped(open) + " Pyreals");
        aftermath_.Copy(*money.front(), Clamped(open), corpse);
        for (Object* stack : money) {
            const auto taken = static_cast<std::int32_t>(std::min<std::int64_t>(open, StackOf(*stack)));
            open -= taken;
            if (taken > 0) aftermath_.SetStack(*stack, StackOf(*stack) - taken);
        }
    }

    auto things = aftermath_.Carried();
    std::erase_if(things, [&](const Object* thing) {
        const bool holds = std::ranges::any_of(aftermath_.client.objects(),
                                               [&](const auto& other) { return other->Holder() == thing->id; });
        return holds || thing->Name == kMoney || Long(*thing, property::kValue) == 0 ||
               Long(*thing, property::kWornOn) != 0;
    });
    std::ranges::stable_sort(things, std::ranges::greater{},
                             [](const Object* thing) { return Long(*thing, property::kValue); });
    things.resize(std::min<std::size_t>(
        things.size(), static_cast<std::size_t>(std::max(aftermath_.client.sheet.Level / kLevelsPerThing, 0))));
    for (Object* thing : things) {
        const std::int32_t count = StackOf(*thing);
        lost.push_back(count > 1 ? fmt::format("your {} {}s", count, thing->Name) : "your " + thing->Name);
        thing->Container = corpse;
        aftermath_.client.MoveObject(thing->id);
    }
    return Enumerated(lost);
}

// At the lifestone, where there is one, weakened and without spells.
void Deaths::Return() {
    Client& client = aftermath_.client;
    Sheet& sheet = client.sheet;
    dying_ = false;
    Object* self = aftermath_.Find(sheet.Character);
    for (const auto& object : client.objects()) {
        if (self && object->Type == thing::kLifestone) self->Coordinates = object->Coordinates;
    }
    std::erase_if(client.enchantments, [](const ActiveEnchantment& spell) { return spell.ends.has_value(); });
    sheet.Vitae = std::max(sheet.Vitae, kDeepestVitae + kVitaePerDeath) - kVitaePerDeath;
    client.ChangePortalMode(kLeaving);
    const auto maxima = sheet.Vital;
    for (const auto& [vital, maximum] : maxima)
        client.ChangeVital(vital, static_cast<std::int32_t>(maximum * kRestored));
}

void Deaths::Opened(host::Id id) {
    const Object* corpse = aftermath_.client.FindObject(id);
    if (!corpse || corpse->Name != "Corpse of " + aftermath_.client.sheet.Name) return;
    opened_.insert(id);
    EndWhenEmpty(id);
}

void Deaths::Moved() {
    const std::set<host::Id> opened = opened_;
    for (const host::Id corpse : opened) EndWhenEmpty(corpse);
}

void Deaths::EndWhenEmpty(host::Id corpse) {
    if (!ContentsOf(corpse).empty()) return;
    opened_.erase(corpse);
    aftermath_.After(kEmptied, [this, corpse] {
        if (aftermath_.Find(corpse)) aftermath_.Vanish(corpse);
    });
}

void Deaths::Decay(host::Id corpse) {
    const std::int64_t seconds = std::max(aftermath_.client.sheet.Level * kSecondsPerLevel, kShortestDecay);
    aftermath_.After(milliseconds(seconds * 1000), [this, corpse] {
        if (!aftermath_.Find(corpse)) return;
        opened_.erase(corpse);
        for (const Object* thing : ContentsOf(corpse)) aftermath_.client.RemoveObject(thing->id);
        aftermath_.Vanish(corpse);
    });
}

std::vector<Object*> Deaths::ContentsOf(host::Id corpse) {
    std::vector<Object*> contents;
    for (const auto& object : aftermath_.client.objects()) {
        if (object->Holder() == corpse) contents.push_back(object.get());
    }
    return contents;
}

}  // namespace ombrel::sim
