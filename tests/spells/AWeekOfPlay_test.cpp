// Days of play on end: buffs are cast again, items enchanted, beers drunk, the queue is busy and free. What the lists
// show is held against the client's own enchantments and a book of the item spells.
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "automation/EventQueue.h"
#include "core/Hub.h"
#include "spells/SpellFilterHandler.h"
#include "spells/Tables.h"
#include "stats/Statistics.h"
#include "tests/spells/SpellTest.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // GCC ships no header for it
#endif

namespace ombrel::test {
namespace {

constexpr int kDay = 86'400;

std::size_t LiveBytes() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}

struct Habit {
    std::int32_t spell;
    int lasts;
    int again;  // every so many seconds; later than it lasts where the player is careless
};

constexpr Habit kBuffs[] = {
    {spell::kStrengthVI, 2700, 2500},
    {spell::kMight, 3600, 3000},
    {spell::kFocusVI, 2700, 2700},
    {spell::kArmorVI, 2700, 3100},
    {1354, 2700, 1201},
    {1308, 1800, 7000},
    {spell::kImperilVI, 210, 500},
    {spell::kWeaknessVI, 210, 211},
    {spell::kArmorI, 1800, 1999},
};

constexpr Habit kItems[] = {
    {spell::kImpenetrabilityVI, 2700, 2650}, {spell::kBladeBaneVI, 2700, 2701}, {spell::kImpenetrabilityI, 1800, 5000}};
constexpr const char* kWorn[] = {"Plate Helm", "Plate Gauntlets", "your armor."};

class AWeekOfPlay : public SpellTest {
protected:
    void SetUp() override {
        Carry(0x60, "Asheron's Benediction");
        Carry(0x61, kWorn[0]);
        Carry(0x62, kWorn[1]);
        for (const Beer& beer : BeerTable()) Ale(beer).Long[host::key::kStackCount] = 40;
        SpellTest::SetUp();
        options().UseGems->SetChecked(true);
        options().UseBeers->SetChecked(true);
        options().ChatLogEnable->SetChecked(false);
        options().ChatOptions->SetData(0, options().FindName("Combine Item Spell Cast and Expire", "ChatOptions"),
                                       false);
        Vars::EventQueue->autorun = true;
        Cast(spell::kMajorCoordination, 0);

        client.calls.listener = nullptr;  // a week of them is no use to anybody
        client.chat_listener = [this](const auto& line) {
            peace_lines_ += line.text.find("enter peace") != line.text.npos;
        };
        client.reacts = true;
        client.reaction = [this](const sim::Action& action) { React(action); };
    }

    sim::Object& Ale(const Beer& beer) { return Carry(beer.spell, std::string(beer.item)); }

    // What the game makes of a gem and of a beer.
    void React(const sim::Action& action) {
        if (action.id == 0x60) {
            Cast(spell::kBenediction, 40'000);
            Cast(spell::kBenedictionCooldown, 600);
            return;
        }
        const std::int32_t left = client.object(action.id).Long[host::key::kStackCount] - 1;
        client.object(action.id).Long[host::key::kStackCount] = left > 0 ? left : 40;
        client.hooks.BusyState = 1;
        free_again_ = client.clock.now() + 2500;
        Cast(action.id, 1800);
        ++drunk_;
    }

    void Second(int second) {
        if (client.clock.now() >= free_again_) client.hooks.BusyState = 0;
        client.hooks.CombatMode = second % 1000 < 300 ? 2 : 1;
        for (const Habit& habit : kBuffs)
            if (second % habit.again == 7) Cast(habit.spell, habit.lasts);
        for (const Habit& habit : kItems)
            if (second % habit.again == 11) Enchant(kWorn[second / habit.again % 3], habit);
        Advance(1s);
    }

    void Enchant(const std::string& item, const Habit& habit) {
        const std::string name = client.spells.ByID(habit.spell)->Name;
        client.ChatText("You cast " + name + " on " + item + "\n", 7, 1);
        auto& [known, ends] = book_[{item, client.spells.ByID(habit.spell)->Effect}];
        const std::int64_t now = client.clock.now() / 1000;
        if (ends > now && client.spells.ByName(known)->Diff > client.spells.ByID(habit.spell)->Diff) return;
        known = name;
        ends = now + habit.lasts;
    }

    // What the lists must show, in any order.
    std::vector<std::string> Expected() const {
        std::map<std::int32_t, std::pair<std::int32_t, std::int64_t>> families;  // id, and seconds left
        for (const sim::ActiveEnchantment& entry : client.enchantments) {
            const std::int64_t left = entry.ends ? (*entry.ends - client.clock.now() + 999) / 1000 : 0;
            if (entry.SpellID <= 0 || (entry.ends && left <= 0)) continue;
            auto& best = families.try_emplace(entry.Family, entry.SpellID, left).first->second;
            if (client.spells.ByID(entry.SpellID)->Diff > client.spells.ByID(best.first)->Diff)
                best = {entry.SpellID, left};
        }
        std::vector<std::string> rows;
        for (const auto& [family, best] : families)
            rows.push_back(Vars::SpellFilterHandler->GetName(best.first) + " " +
                           ConvTime(static_cast<double>(best.second)));
        for (const auto& [key, entry] : book_) {
            const std::int64_t left = entry.second - client.clock.now() / 1000;
            if (left > 0) rows.push_back(entry.first + " on " + key.first + " " + ConvTime(static_cast<double>(left)));
        }
        std::ranges::sort(rows);
        return rows;
    }

    static std::vector<std::string> Shown() {
        std::vector<std::string> rows = Buffs();
        std::ranges::copy(Debuffs(), std::back_inserter(rows));
        std::ranges::sort(rows);
        return rows;
    }

    int drunk_ = 0;
    int peace_lines_ = 0;

private:
    std::int64_t free_again_ = 0;
    std::map<std::pair<std::string, std::int32_t>, std::pair<std::string, std::int64_t>> book_;  // name and end
};

TEST_F(AWeekOfPlay, ShowsTheTruthAtEveryLookAndKeepsNothing) {
    const int days = std::getenv("OMBREL_LONG") ? 7 : 1;
    const int ticks = days * kDay;
    std::size_t early = 0, late = 0;
    for (int second = 0; second < ticks; ++second) {
        Second(second);
        if (second % 37 != 36 || spells().bRebuildList) continue;  // a line that has just ended is drawn once more
        ASSERT_EQ(Shown(), Expected()) << second;
        std::size_t& most = second < ticks / 4 ? early : late;
        most = std::max(most, LiveBytes());
    }
    EXPECT_EQ(Vars::Statistics->TotalSec, ticks);
    EXPECT_LE(late, early + 16'384);
    EXPECT_LE(spells().ItemSpells.size(), std::size(kWorn));
    EXPECT_GE(drunk_, days * 250);
    EXPECT_GT(peace_lines_, 0);
    EXPECT_LE(peace_lines_, ticks / 1000 + 1);
    Vars::EventQueue->Clear();
    client.hooks = {};
    Advance(1s);
    EXPECT_EQ(Vars::EventQueue->running, 0);
}

}  // namespace
}  // namespace ombrel::test
