// Each second every spell counts down and both lists are filled anew: what the plug-in needs for it, apart from what
// the client's lists need, and whether it grows with the number of spells alone.
#include <fmt/format.h>

#include <string>

#include "bench/Game.h"
#include "bench/Subjects.h"
#include "bench/Table.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"
#include "spells/SpellHandler.h"

namespace ombrel::bench {
namespace {

constexpr std::int32_t kEnchantments = 60;
constexpr std::int32_t kItemSpells = 40;

// A list that takes everything and keeps nothing.
class NoList final : public host::List {
public:
    void Clear() override { rows_ = 0; }
    std::int32_t AddRow() override { return rows_++; }
    void DeleteRow(std::int32_t) override { --rows_; }
    std::int32_t Count() const override { return rows_; }
    const host::Cell& Data(std::int32_t, std::int32_t, std::int32_t) const override { return cell_; }
    void SetData(std::int32_t, std::int32_t, host::Cell value, std::int32_t) override {
        benchmark::DoNotOptimize(value);
    }
    std::int32_t Color(std::int32_t, std::int32_t) const override { return 0; }
    void SetColor(std::int32_t, std::int32_t, std::int32_t) override {}
    std::int32_t ScrollPosition() const override { return 0; }
    void SetScrollPosition(std::int32_t) override {}
    std::uint32_t Revision() const override { return 0; }

private:
    host::Cell cell_;
    std::int32_t rows_ = 0;
};

// A spell of a family of its own.
std::int32_t Learn(Game& game, std::int32_t number) {
    sim::SpellRow row;
    row.ID = 10'000 + number;
    row.Name = fmt::format("Practical Protection {}", number);
    row.Effect = 2'000 + number;
    row.Duration = 3600.0 + number * 37 % 1000;
    game.client.spells.Put(row);
    return row.ID;
}

void HaveSpells(Game& game, std::int32_t times) {
    sim::Client& client = game.client;
    for (std::int32_t i = 0; i < kEnchantments * times; ++i) {
        const std::int32_t id = Learn(game, i);
        client.Enchant(id, 3600 + i * 91 % 1000, 2'000 + i);
    }
    for (std::int32_t i = 0; i < kItemSpells * times; ++i) {
        const std::string item = fmt::format("Plate Helm {}", i % (10 * times));
        sim::Object& thing = client.object(0x100 + i % (10 * times));
        thing.Name = item;
        thing.Container = client.sheet.Character;
        Vars::SpellHandler->AddItemSpellfromData(Learn(game, 1'000 + i), 3600 + i * 53 % 1000, item);
    }
    Vars::SpellHandler->RebuildList(true);
    client.clock.Advance(std::chrono::seconds(2));
}

enum class Lists { kNone, kClients };
enum class Work { kCountDown, kBuild };

void Second(benchmark::State& state, std::int32_t times, Lists lists, Work work) {
    Game game;
    HaveSpells(game, times);
    SpellHandler& spells = *Vars::SpellHandler;
    ControlHandler& controls = *Vars::ControlHandler;
    const auto spells_count = (kEnchantments + kItemSpells) * times;
    if (static_cast<std::int32_t>(spells.AllSpells.size()) != spells_count)
        return state.SkipWithError("spells are missing");

    const auto buffs = controls.BuffList;
    const auto debuffs = controls.DebuffList;
    NoList none;
    if (lists == Lists::kNone) controls.BuffList = controls.DebuffList = Ref<host::List>(&none);
    Measure(state, spells_count, [&] {
        if (work == Work::kBuild) spells.RebuildList(true);
        spells.UpdateSpellList();
    });
    controls.BuffList = buffs;
    controls.DebuffList = debuffs;
}

void AddSizes(const std::string& subject, Lists lists, Work work) {
    for (const std::int32_t times : {1, 2, 4}) {
        const std::string who =
            fmt::format("{}/{} enchantments, {} on items", subject, kEnchantments * times, kItemSpells * times);
        benchmark::RegisterBenchmark(who.c_str(), Second, times, lists, work);
    }
}

}  // namespace

void AddSpells() {
    AddSizes("A spell in a second's count-down, the plug-in's share", Lists::kNone, Work::kCountDown);
    AddSizes("A spell in a second's count-down, with the client's lists", Lists::kClients, Work::kCountDown);
    AddSizes("A spell in a second with a new list, the plug-in's share", Lists::kNone, Work::kBuild);
}

}  // namespace ombrel::bench
