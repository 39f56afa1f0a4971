#include <map>

#include "adapters/sim/View.h"
#include "core/time.h"
#include "stats/Statistics.h"
#include "tests/spells/SpellTest.h"

namespace ombrel::test {
namespace {

class SpellHandlerTest : public SpellTest {
protected:
    std::uint64_t Builds() const { return client.calls.Count(sim::FindOperation("EnchantmentCount").value()); }

    // The seconds from now on at which the plug-in says something in chat.
    std::map<int, std::string> Said(int seconds) {
        std::map<int, std::string> said;
        for (int second = 1; second <= seconds; ++second) {
            Forget();
            Advance(1s);
            for (const std::string& text : Texts()) said[second] += text;
        }
        return said;
    }
};

TEST_F(SpellHandlerTest, BuffsAndDebuffsCountDownInListsOfTheirOwn) {
    Cast(spell::kFocusVI, 2700);
    Cast(spell::kStrengthVI, 301);
    Cast(spell::kMajorCoordination, 0);
    Cast(spell::kImperilVI, 210);
    Cast(spell::kWeaknessVI, 15);
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 05:00", "Focus Self VI 44:59", "Major Coordination "));
    EXPECT_THAT(Debuffs(), ElementsAre("Weakness Other VI 14", "Imperil Other VI 03:29"));
    EXPECT_EQ(std::get<std::int32_t>(options().BuffList->Data(0, 0, 1)), 100668300);
    EXPECT_EQ(std::get<std::int32_t>(options().DebuffList->Data(0, 1, 1)), 100668293);
    EXPECT_EQ(spells().NextSpell, "Strength Self VI");

    Advance(13s);
    EXPECT_THAT(Debuffs(), ElementsAre("Weakness Other VI 01", "Imperil Other VI 03:16"));
    Advance(1s);  // drawn this once more, and gone with the next second
    EXPECT_THAT(Debuffs(), ElementsAre("Weakness Other VI ", "Imperil Other VI 03:15"));
    Advance(1s);
    EXPECT_THAT(Debuffs(), ElementsAre("Imperil Other VI 03:14"));
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 04:45", "Focus Self VI 44:44", "Major Coordination "));
}

TEST_F(SpellHandlerTest, AFamilyShowsItsStrongestAndOfEqualsTheLongest) {
    Know(7001, "Equal A", 1, 300);
    Know(7002, "Equal B", 1, 300);
    const struct {
        std::vector<std::pair<std::int32_t, int>> cast;
        const char* row;
    } rows[] = {
        {{{spell::kStrengthI, 1801}, {spell::kStrengthVI, 61}}, "Strength Self VI 01:00"},
        {{{spell::kStrengthVI, 61}, {spell::kStrengthI, 1801}}, "Strength Self VI 01:00"},
        {{{7001, 61}, {7002, 91}}, "Equal B 01:30"},
        {{{7001, 91}, {7002, 61}}, "Equal A 01:30"},
        {{{7001, 61}, {7002, 61}}, "Equal A 01:00"},
        {{{7002, 61}, {7001, 61}}, "Equal B 01:00"},
        {{{7001, 0}, {7002, 61}}, "Equal B 01:00"},
        {{{7001, 61}, {7002, 0}}, "Equal A 01:00"},
    };
    for (const auto& row : rows) {
        client.enchantments.clear();
        for (const auto& [id, seconds] : row.cast) Cast(id, seconds);
        Advance(1s);
        EXPECT_THAT(Buffs(), ElementsAre(row.row));
    }
}

TEST_F(SpellHandlerTest, TheListsKeepWhereThePlayerHasScrolledThem) {
    for (const std::int32_t id : {2, 24, 1421, 3, 25}) Cast(id, 300);
    Advance(1s);
    static_cast<sim::SimList&>(*options().BuffList).PutScrollPosition(2);
    static_cast<sim::SimList&>(*options().DebuffList).PutScrollPosition(1);
    Advance(3s);
    EXPECT_EQ(options().BuffList->ScrollPosition(), 2);
    EXPECT_EQ(options().DebuffList->ScrollPosition(), 1);
}

TEST_F(SpellHandlerTest, AnUnknownSpellAndTheDevelopersShowTheirNumbers) {
    Cast(60000, 301);  // read as a signed number of 16 bits, it is a cooldown
    Cast(30000, 301);
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Unknown 30000 05:00"));
    EXPECT_EQ(std::get<std::int32_t>(options().BuffList->Data(0, 0, 1)), 0x060011F8);
    client.enchantments.clear();
    Cast(spell::kWeaknessVI, 201);
    Cast(spell::kImperilVI, 501);
    Advance(1s);
    EXPECT_EQ(spells().NextSpell, "Imperil Other VI") << "with debuffs alone the last one";
    EXPECT_EQ(Tracked(), "N/A");
    Drop(spell::kWeaknessVI);
    Cast(spell::kStrengthVI, 301);
    Cast(spell::kImperilVI, 301);
    filter().DevMode = true;
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("1332 1 Strength Self VI 05:00"));
    EXPECT_THAT(Debuffs(), ElementsAre("Imperil Other VI 05:00"));
}

TEST_F(SpellHandlerTest, ThePlayerTracksASpellByNameOrFamilyWithAnOffset) {
    Cast(spell::kStrengthVI, 301);
    Cast(spell::kFocusVI, 1001);
    Cast(spell::kMajorCoordination, 0);
    Cast(spell::kImperilVI, 100);
    const struct {
        const char* selected;
        const char* offset;
        const char* tracked;
        std::vector<std::int32_t> marked;
    } rows[] = {
        {"", "0", "05:00", {0}},
        {"", "-10", "04:50", {0}},
        {"", " 30 ", "05:30", {0}},
        {"", "ten", "05:00", {0}},
        {"", "", "05:00", {0}},
        {"", "-300", "N/A", {0}},
        {"", "-301", "N/A", {0}},
        {"", "0.5", "05:00", {0}},
        {"Focus Self VI", "0", "16:40", {1}},
        {"focus self vi", "0", "N/A", {}},
        {"9", "0", "16:40", {1}},
        {"1", "60", "06:00", {0}},
        {"267", "60", "N/A", {2}},  // it doesn't end
        {"116", "0", "N/A", {}},    // a debuff
        {"Imperil Other VI", "0", "N/A", {}},
    };
    Advance(1s);
    for (const auto& row : rows) {
        options().SelectedSpell = row.selected;
        options().SpellsOffset->SetText(row.offset);
        spells().UpdateSpellList();
        EXPECT_EQ(Tracked(), row.tracked) << row.selected << ", " << row.offset;
        for (std::int32_t i = 0; i < 3; ++i) {
            const bool marked = std::ranges::find(row.marked, i) != row.marked.end();
            EXPECT_EQ(options().BuffList->Color(1, i) == 0xFFFF80, marked) << row.selected << i;
        }
    }
}

TEST_F(SpellHandlerTest, ANumberMarksEveryRowOfTheFamilyAndTheLastIsTracked) {
    Carry(5, "Plate Helm");
    Cast(spell::kStrengthVI, 301);
    spells().AddItemSpellfromData(spell::kStrengthVI, 601, "Plate Helm");
    options().SelectedSpell = "1";
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 05:00", "Strength Self VI on Plate Helm 10:00"));
    EXPECT_EQ(options().BuffList->Color(1, 0), 0xFFFF80);
    EXPECT_EQ(options().BuffList->Color(1, 1), 0xFFFF80);
    EXPECT_EQ(Tracked(), "10:00");

    options().SelectedSpell = "Strength Self VI on Plate Helm";
    Advance(1s);
    EXPECT_EQ(Tracked(), "09:59");
}

TEST_F(SpellHandlerTest, WarningsComeOnTheirSecond) {
    const std::string five = "<Ombrel> Your buffs will expire in 5 minutes!";
    const std::string three = "<Ombrel> Your buffs will expire in 3 minutes!";
    const std::string one = "<Ombrel> Your buffs will expire in 1 minute!";
    Cast(spell::kStrengthVI, 310);
    EXPECT_THAT(Said(320), ElementsAre(Pair(10, five), Pair(130, three), Pair(250, one)));

    Cast(spell::kStrengthVI, 320);
    options().SpellsOffset->SetText("-10");
    EXPECT_THAT(Said(330), ElementsAre(Pair(10, five), Pair(130, three), Pair(250, one)));

    Cast(spell::kStrengthVI, 310);
    options().SelectedSpell = "Focus Self VI";
    EXPECT_THAT(Said(320), IsEmpty());

    Cast(spell::kStrengthVI, 310);
    options().SelectedSpell = "";
    options().ChatOptions->SetData(0, options().FindName("Buffs Expiration Warning", "ChatOptions"), false);
    EXPECT_THAT(Said(320), IsEmpty());
}

TEST_F(SpellHandlerTest, ASecondThatIsMissedMissesItsWarningAndNothingElse) {
    Cast(spell::kStrengthVI, 310);
    Advance(5s);
    client.clock.Stall(10s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 04:55"));
    EXPECT_THAT(Said(200), ElementsAre(Pair(115, "<Ombrel> Your buffs will expire in 3 minutes!")));
    client.clock.Stall(200s);  // past the end: drawn this once
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI "));
    Advance(1s);
    EXPECT_TRUE(spells().AllSpells.empty());
}

TEST_F(SpellHandlerTest, AnHourOfSummerTimeChangesNoSpan) {
    client.system.zone = {.bias = -60, .daylight = false, .daylight_rule = true};
    Carry(5, "Plate Helm");
    Cast(spell::kStrengthVI, 2700);
    spells().AddItemSpellfromData(spell::kBladeBaneVI, 5000, "Plate Helm");
    Advance(10s);
    client.system.zone.daylight = true;
    Advance(10s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 44:40", "Blade Bane VI on Plate Helm 1:23:00"));
    client.system.zone.daylight = false;
    Cast(spell::kFocusVI, 1000);
    Advance(10s);
    EXPECT_THAT(Buffs(),
                ElementsAre("Focus Self VI 16:30", "Strength Self VI 44:30", "Blade Bane VI on Plate Helm 1:22:50"));
}

TEST_F(SpellHandlerTest, AClockThatIsSetBackIsMadeUpForByTheNextBuild) {
    Cast(spell::kStrengthVI, 2700);
    Advance(10s);
    client.clock.Shift(-3'600'000);
    Advance(10s);  // the session has not begun yet, by this clock: the list stands
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 44:50"));
    Vars::Statistics->TotalStartTime = NowDate();
    Advance(2s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 1:44:38"));
    client.ChangeEnchantments(0, {});
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 44:37"));

    client.clock.Shift(7'200'000);
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI "));
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 44:35"));
}

TEST_F(SpellHandlerTest, ABurstOfChangesCostsOneBuildAndASecondWithoutAnyNone) {
    Cast(spell::kFocusVI, 1000);
    for (const std::int32_t id : {2, 24, 1421, 3, 25}) Cast(id, 300);
    const std::uint64_t before = Builds();
    Advance(1s);
    EXPECT_EQ(Builds(), before + 1);
    Advance(100s);
    EXPECT_EQ(Builds(), before + 1);
}

TEST_F(SpellHandlerTest, NothingRunsBeforeTheFirstSecondOrTheLogin) {
    client.Terminate();
    Start();
    Vars::Statistics->TotalSec = 5;
    client.Enchant(spell::kStrengthVI, 300, 1);
    client.ChangeEnchantments(0, {});
    spells().BuildSpellList();
    spells().UpdateSpellList();
    EXPECT_TRUE(spells().AllSpells.empty());
    LogIn();
    EXPECT_EQ(spells().AllSpells.size(), 1u);
    EXPECT_THAT(Buffs(), IsEmpty());
    Advance(1s);
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 04:59"));
}

TEST_F(SpellHandlerTest, WithNoSpellAtAllTheListsKeepTheirLastRows) {
    Cast(spell::kStrengthVI, 300);
    Advance(1s);
    Drop(spell::kStrengthVI);
    Advance(1s);
    EXPECT_EQ(spells().NextSpell, "");
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 04:59"));
    EXPECT_EQ(Tracked(), "04:59");
}

TEST_F(SpellHandlerTest, WhatDoesNotFitTheClockIsReportedUntilItIsGone) {
    Cast(spell::kStrengthVI, 300);
    Advance(1s);
    Cast(spell::kFocusVI, 2e9);
    Advance(2s);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #6 occured in 'BuildSpellList' of class 'SpellHandler'",
                                           "Error #6 occured in 'BuildSpellList' of class 'SpellHandler'"));
    EXPECT_THAT(Buffs(), ElementsAre("Strength Self VI 04:57"));  // the old list counts on
    Drop(spell::kFocusVI);
    options().SpellsOffset->SetText("1e10");
    Advance(1s);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #6 occured in 'UpdateSpellList' of class 'SpellHandler'"));
    options().SpellsOffset->SetText("0");
    Advance(1s);
    EXPECT_EQ(Tracked(), "04:55");
}

TEST_F(SpellHandlerTest, DebugLinesTellOfBuildsAndCooldowns) {
    Vars::DebugMode = true;
    client.Enchant(spell::kBenedictionCooldown, 50, 0);
    client.ChangeEnchantments(0, {});
    Advance(1s);
    Vars::DebugMode = false;
    EXPECT_THAT(Texts(), Contains("<Ombrel-Debug> Build Spell List"));
    EXPECT_THAT(Texts(), Contains("<Ombrel-Debug> Adding Cooldown Timer: z.SpellID"));
    ASSERT_EQ(spells().CooldownTimers.size(), 1u);
    EXPECT_EQ(spells().CooldownTimers.begin()->first, spell::kBenedictionCooldown);
    client.enchantments.clear();
    spells().BuildSpellList();
    EXPECT_TRUE(spells().CooldownTimers.empty());
}

}  // namespace
}  // namespace ombrel::test
