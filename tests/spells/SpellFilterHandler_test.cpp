#include "spells/SpellFilterHandler.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

#include "core/text.h"
#include "tests/spells/SpellTest.h"

namespace ombrel::test {
namespace {

constexpr std::string_view kHead =
    "ID|Name|Description|Diff|Icon|School|Type|Duration|Effect|EffectOnCaster|EffectOnTarget|Speed|Version|Flags|"
    "SortOrder|TargetMask|ComponentCount|ManaCost|RangeBase|RangeModifier|Researchable";

constexpr std::int32_t kDebuffFlags[] = {17,  19,  24,  26,  8337, 8346, 9361, 1169, 128, 130,
                                         131, 144, 145, 146, 147,  152,  153,  154,  155, 158};

class SpellFilterHandlerTest : public SpellTest {
protected:
    static SpellFilterHandler& table() { return *Vars::SpellFilterHandler; }

    std::vector<std::string> Exported() {
        Forget();
        EXPECT_TRUE(client.ChatParser("/m listspells"));
        return Texts();
    }
};

TEST_F(SpellFilterHandlerTest, ASpellIsLookedUpByItsIdAndItsName) {
    EXPECT_EQ(table().GetID("Strength Self VI"), spell::kStrengthVI);
    EXPECT_EQ(table().GetName(spell::kStrengthVI), "Strength Self VI");
    EXPECT_EQ(table().GetFamily(spell::kStrengthVI), 1);
    EXPECT_EQ(table().GetIcon(spell::kStrengthVI), 100668300);
    EXPECT_EQ(table().GetDifficulty(spell::kStrengthVI), 250);
    EXPECT_EQ(table().GetDuration(spell::kStrengthVI), 2700);
}

TEST_F(SpellFilterHandlerTest, AnUnknownSpellHasAnswersOfItsOwn) {
    EXPECT_EQ(table().GetID("strength self vi"), -1);
    EXPECT_EQ(table().GetName(99999), "Unknown 99999");
    EXPECT_EQ(table().GetName(-32766), "Unknown -32766");
    EXPECT_EQ(table().GetFamily(99999), -1);
    EXPECT_EQ(table().GetIcon(99999), 0x060011F8);
    EXPECT_EQ(table().GetDifficulty(99999), -1);
    EXPECT_EQ(table().GetDuration(99999), -1);
    EXPECT_FALSE(table().IsADebuff(99999));
    table().SpellInfo(99999);
    EXPECT_THAT(lines, IsEmpty());

    // Names get plain apostrophes but in the export.
    EXPECT_EQ(table().GetName(spell::kBenediction), "Asheron's Benediction");
    EXPECT_EQ(table().GetID("Asheron's Benediction"), -1);
    table().SpellInfo(spell::kBenediction);
    EXPECT_THAT(Texts(), ElementsAre(HasSubstr("|Asheron\u2019s Benediction|")));
}

TEST_F(SpellFilterHandlerTest, ADebuffIsToldByItsFlagsAsAWhole) {
    for (std::int32_t flags = 0; flags < 0x10000; ++flags) {
        Know(7, "Test", 0, 0, 0.0, flags);
        const bool listed = std::ranges::find(kDebuffFlags, flags) != std::end(kDebuffFlags);
        ASSERT_EQ(table().IsADebuff(7), listed) << flags;
    }
}

TEST_F(SpellFilterHandlerTest, ADurationIsRoundedToWholeSeconds) {
    for (const auto& [duration, seconds] : {std::pair{60.5, 60}, {61.5, 62}, {-1.0, -1}, {0.4, 0}}) {
        Know(7, "Test", 0, 0, duration);
        EXPECT_EQ(table().GetDuration(7), seconds);
    }
    Know(7, "Test", 0, 0, 1e12);
    EXPECT_EQ(table().GetDuration(7), 0);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #6 occured in 'GetDuration' of class 'SpellFilterHandler'"));
}

TEST_F(SpellFilterHandlerTest, TheExportHasARowForEverySpellUpTo5000) {
    client.spells = {};
    const sim::SpellRow row{.ID = 5000,
                            .Name = "Last",
                            .Description = "A|pipe",
                            .School = 2,
                            .Icon = 3,
                            .Effect = 4,
                            .Flags = 5,
                            .ManaCost = 6,
                            .Diff = 7,
                            .Version = 8,
                            .Type = 9,
                            .Duration = 1800.5,
                            .Researchable = true,
                            .ComponentCount = 10,
                            .TargetMask = 11,
                            .RangeBase = 0.1f,
                            .RangeModifier = -0.5f,
                            .Speed = 0.01f,
                            .SortOrder = 12,
                            .EffectOnCaster = 13,
                            .EffectOnTarget = 14};
    client.spells.Put(row);
    Know(0, "First");
    Know(5001, "Beyond");
    const std::string last = "5000|Last|A|pipe|7|3|2|9|1800.5|4|13|14|0.01|8|5|12|11|10|6|0.1|-0.5|True";
    EXPECT_THAT(Exported(), ElementsAre(kHead, "0|First||0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|False", last));
    EXPECT_EQ(CallsOf("ChatOut").back(), "ChatOut text=" + last + " color=0 window=0");

    Forget();
    table().SpellInfo(5001);
    EXPECT_THAT(Texts(), ElementsAre(StartsWith("5001|Beyond|")));
}

TEST_F(SpellFilterHandlerTest, ALookUpThatFailsIsReportedUnderItsOwnName) {
    const struct {
        const char* operation;
        const char* procedure;
        std::function<void()> look_up;
    } rows[] = {
        {"Spells.ByName", "GetID", [] { EXPECT_EQ(table().GetID("Strength Self VI"), 0); }},
        {"Spell.Name", "GetName", [] { EXPECT_EQ(table().GetName(spell::kStrengthVI), ""); }},
        {"Spell.Effect", "GetFamily", [] { EXPECT_EQ(table().GetFamily(spell::kStrengthVI), 0); }},
        {"Spell.Icon", "GetIcon", [] { EXPECT_EQ(table().GetIcon(spell::kStrengthVI), 0); }},
        {"Spell.Diff", "GetDifficulty", [] { EXPECT_EQ(table().GetDifficulty(spell::kStrengthVI), 0); }},
        {"Spell.Duration", "GetDuration", [] { EXPECT_EQ(table().GetDuration(spell::kStrengthVI), 0); }},
        {"Spell.Flags", "IsADebuff", [] { EXPECT_FALSE(table().IsADebuff(spell::kImperilVI)); }},
        {"Spell.Speed", "SpellInfo", [] { table().SpellInfo(spell::kStrengthVI); }},
    };
    for (const auto& row : rows) {
        FailNext(row.operation);
        row.look_up();
        EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in '" + std::string(row.procedure) +
                                               "' of class 'SpellFilterHandler'"));
    }
}

// A table of the plug-in's own tongue: what it looks for by name or number is there.
TEST_F(SpellFilterHandlerTest, TheShippedTableHasEverySpellThatIsAskedFor) {
    for (const std::int32_t id : {3530, 3533, 3531, 3864, 3862, 3863, 3810, 3811, 4024}) {
        EXPECT_GT(table().GetDuration(id), 0) << id;
        EXPECT_GT(table().GetIcon(id), 0) << id;
    }
    const struct {
        const char* name;
        const char* seventh;
        std::int32_t family;
    } debuffs[] = {
        {"Vulnerability Other ", "Gravity Well", 38},
        {"Fire Vulnerability Other ", "Inferno's Gift", 110},
        {"Piercing Vulnerability Other ", "Archer's Gift", 112},
        {"Blade Vulnerability Other ", "Swordsman's Gift", 114},
        {"Acid Vulnerability Other ", "Olthoi's Gift", 102},
        {"Cold Vulnerability Other ", "Gelidite's Gift", 106},
        {"Lightning Vulnerability Other ", "Astyrrian's Gift", 108},
        {"Imperil Other ", "Gossamer Flesh", 116},
    };
    std::set<std::int32_t> families;
    for (const auto& row : debuffs) {
        families.insert(row.family);
        std::int32_t weaker = 0;
        for (const std::string level : {"I", "II", "III", "IV", "V", "VI", ""}) {
            const std::string name = level.empty() ? row.seventh : row.name + level;
            const std::int32_t id = table().GetID(name);
            EXPECT_EQ(table().GetFamily(id), row.family) << name;
            EXPECT_TRUE(table().IsADebuff(id)) << name;
            EXPECT_GT(table().GetDifficulty(id), weaker) << name;
            weaker = table().GetDifficulty(id);
        }
    }
    EXPECT_THAT(families, ElementsAre(38, 102, 106, 108, 110, 112, 114, 116));
    EXPECT_GT(table().GetDuration(table().GetID("Futility")), 0);
    EXPECT_GE(table().GetID("Major Coordination"), 0);
    EXPECT_GE(table().GetID("Epic Quickness"), 0);
}

TEST_F(SpellFilterHandlerTest, TheGamesWholeTableIsReadLookedUpAndExported) {
    const std::string file = GameData("spells.tsv");
    if (!std::filesystem::exists(file))
        GTEST_SKIP() << "waits for the game's spell table: set OMBREL_DATA to a folder with spells.tsv";
    client.LoadSpells(file);

    std::size_t exported = 1, debuffs = 0;
    std::set<std::int32_t> flags;
    for (std::int32_t id = 0; id < 0x10000; ++id) {
        const auto row = client.spells.ByID(id);
        ASSERT_EQ(table().GetFamily(id), row ? row->Effect : -1) << id;
        ASSERT_EQ(table().GetDifficulty(id), row ? row->Diff : -1) << id;
        ASSERT_EQ(table().GetDuration(id), row ? static_cast<std::int32_t>(row->Duration) : -1) << id;
        ASSERT_EQ(table().GetIcon(id), row ? row->Icon : 0x060011F8) << id;
        ASSERT_EQ(table().GetName(id).find("\u2019"), std::string::npos) << id;
        if (!row) continue;
        ASSERT_LE(table().GetID(row->Name), id);  // of one name, the first
        exported += id <= 5000;
        if (!table().IsADebuff(id)) continue;
        ++debuffs;
        flags.insert(row->Flags);
    }
    EXPECT_GT(debuffs, 500u);
    EXPECT_THAT(flags, testing::UnorderedElementsAreArray(kDebuffFlags));

    const std::vector<std::string> rows = Exported();
    EXPECT_EQ(rows.size(), exported);
    for (const std::string& row : rows) ASSERT_EQ(std::ranges::count(row, '|'), 20) << row;
}

TEST(SpellFilterHandlerWithoutTable, TellsThePlayerOnceAndKnowsNoSpell) {
    GameSession session;
    session.client.spells_available = false;
    session.Start();
    EXPECT_THAT(session.Texts(), IsEmpty());
    session.client.Enchant(spell::kStrengthVI, 300, 1);
    session.LogIn();
    session.Advance(5s);
    const auto texts = session.Texts();
    EXPECT_EQ(std::ranges::count(texts,
                                 "<Ombrel> The framework's spell table is missing: spells have no names and no "
                                 "timers."),
              1);
    EXPECT_EQ(Vars::SpellFilterHandler->GetName(spell::kStrengthVI), "Unknown 1332");
    EXPECT_EQ(Vars::SpellHandler->NextSpell, "Unknown 1332");
    Vars::SpellFilterHandler->SpellExport();
    EXPECT_EQ(session.lines.back().text, kHead);
    session.client.Terminate();
    EXPECT_THAT(session.TakeReports(), IsEmpty());
}

}  // namespace
}  // namespace ombrel::test
