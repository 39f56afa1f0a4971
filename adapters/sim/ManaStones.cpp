#include "adapters/sim/ManaStones.h"

#include <fmt/format.h>

#include <algorithm>

namespace ombrel::sim {
namespace {

constexpr milliseconds kUse = 300ms;

// A worn item, and what it gets.
struct Share {
    Object* item;
    std::int32_t lacks;
    std::int32_t given = 0;

    std::int32_t Open() const { return lacks - given; }
};

std::vector<Share> Thirsty(Aftermath& aftermath) {
    std::vector<Share> shares;
    for (Object* item : aftermath.Carried()) {
        const std::int32_t lacks =
            Clamped(std::int64_t{Long(*item, property::kMaximumMana)} - Long(*item, property::kMana));
        if (Long(*item, property::kWornOn) != 0 && lacks > 0) shares.push_back({item, lacks});
    }
    return shares;
}

// Hands mana out evenly; who is full leaves the rest to the others. Returns what nobody needs.
std::int32_t HandOut(std::vector<Share>& shares, std::int32_t mana) {
    while (mana > 0) {
        const auto open = std::ranges::count_if(shares, [](const Share& share) { return share.Open() > 0; });
        if (open == 0) break;
        const std::int32_t each = std::max(mana / static_cast<std::int32_t>(open), 1);
        for (Share& share : shares) {
            const std::int32_t given = std::min({each, share.Open(), mana});
            share.given += given;
            mana -= given;
        }
    }
    return mana;
}

void Pour(Aftermath& aftermath, Object& stone) {
    const std::string name = stone.Name;
    std::vector<Share> shares = Thirsty(aftermath);
    if (shares.empty()) return aftermath.Say("You have no items equipped that need mana.");

    const std::int32_t mana = Long(stone, property::kMana);
    HandOut(shares, mana);
    std::int64_t total = 0;
    std::int64_t missing = 0;
    std::string names;
    for (const Share& share : shares) {
        missing += share.Open();
        if (share.given == 0) continue;
        total += share.given;
        names += (names.empty() ? "" : ", ") + share.item->Name;
        share.item->Long[property::kMana] += share.given;
        aftermath.client.ChangeObject(share.item->id, change::kMana);
    }
    const std::string rest = missing == 0
                                 ? "Your items are fully charged."
                                 : fmt::format("You need {} more mana to fully charge your items.", Grouped(missing));
    stone.Long[property::kMana] = 0;
    aftermath.client.ChangeObject(stone.id, change::kMana);
    aftermath.Say(fmt::format("The {} gives {} points of mana to the following items: {}.\n{}", name, Grouped(total),
                              names, rest));
    if (Double(stone, property::kDestruction) < 1.0) return;
    aftermath.Vanish(stone.id);
    aftermath.Say(fmt::format("The {} is destroyed.", name));
}

}  // namespace

void UseManaStone(Aftermath& aftermath, host::Id stone) {
    aftermath.Occupy(kUse, [&aftermath, stone] {
        Object* found = aftermath.Find(stone);
        if (found && Long(*found, property::kMana) > 0) Pour(aftermath, *found);
    });
}

}  // namespace ombrel::sim
