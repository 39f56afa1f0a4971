// What the card says of each kind of thing.
#include <algorithm>
#include <fstream>

#include "core/text.h"
#include "tests/hud/TargetTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kMaximumDamage = 0x0D000022;
constexpr std::int32_t kSpell = 0x0D000008;
constexpr std::int32_t kVariance = 0x0A00000B;
constexpr std::int32_t kAttackBonus = 0x0A00000C;
constexpr std::int32_t kDamageMultiplier = 0x0A00000E;
constexpr std::int32_t kSalvageWorkmanship = 0x0A000009;

struct ThingRow {
    std::string name;
    std::int32_t type;
    std::map<std::int32_t, std::int32_t> longs = {};
    std::map<std::int32_t, double> doubles = {};
    std::map<std::int32_t, bool> bools = {};
    std::vector<std::string> rows = {};  // under the name
};

const ThingRow kThings[] = {
    {.name = "Silver Simi",
     .type = 1,
     .longs = {{5, 320},
               {19, 7600},
               {36, 9999},
               {105, 6},
               {107, 900},
               {108, 1200},
               {109, 160},
               {158, 1},
               {159, 11},
               {160, 325},
               {171, 3},
               {kMaximumDamage, 34}},
     .doubles = {{29, 1.08}, {150, 1.005}, {kVariance, 0.35}, {kAttackBonus, 1.12}},
     .bools = {{91, false}, {100, true}},
     .rows = {"7,600p, 320bu, D U, Sw 325", "22.1-34, 12 8 0.5, Wk 6, Tk 3", "Lr 160, 900m"}},
    {.name = "Training Sword",
     .type = 1,
     .longs = {{kMaximumDamage, 3}},
     .doubles = {{kVariance, 0.75}},
     .rows = {"0p, 0bu", "0.75-3, Wk 0, Tk 0"}},
    {.name = "Covenant Shield",
     .type = 2,
     .longs =
         {{5, 900}, {19, 6000}, {28, 380}, {33, 1}, {105, 7}, {107, 0}, {108, 1000}, {114, 1}, {158, 7}, {160, 100}},
     .bools = {{91, true}},
     .rows = {"6,000p, 900bu, A B R, Lv 100", "AL 380, Wk 7, Tk 0", "0m"}},
    {.name = "Silk Robe",
     .type = 3,
     .longs = {{5, 210}, {19, 350}, {107, 10}, {108, 800}, {109, 90}, {110, 4}, {115, 200}, {176, 14}, {188, 2}},
     .bools = {{99, true}},
     .rows = {"350p, 210bu, I", "AL 0, Wk 0, Tk 0", "Lr 90, Sho, Ma 200, Rk 4, 10m"}},
    {.name = "Silver Ring",
     .type = 4,
     .longs = {{5, 30}, {19, 5100}, {105, 8}, {107, 77}, {108, 1300}},
     .rows = {"5,100p, 30bu", "Wk 8, Tk 0", "77m"}},
    {.name = "Healing Pizza",
     .type = 6,
     .longs = {{5, 50}, {19, 85}, {89, 2}, {90, 30}},
     .rows = {"85p, 50bu", "Health 30"}},
    {.name = "Pie", .type = 6, .longs = {{89, 4}, {90, -20}}, .rows = {"0p, 0bu", "Stamina -20"}},
    {.name = "Mana Potion", .type = 6, .longs = {{89, 6}, {90, 25}}, .rows = {"0p, 0bu", "Mana 25"}},
    {.name = "Amber Ape",
     .type = 6,
     .longs = {{5, 50}, {19, 10}, {kSpell, 3533}},
     .rows = {"10p, 50bu", "Casts Coordination Beer"}},
    {.name = "Odd Brew", .type = 6, .longs = {{kSpell, 70000}}, .rows = {"0p, 0bu", "Casts Unknown 70000"}},
    {.name = "Copper Frost Bow",
     .type = 9,
     .longs =
         {{5, 720}, {19, 8800}, {105, 8}, {158, 1}, {159, 2}, {160, 270}, {171, 2}, {204, 12}, {kMaximumDamage, 0}},
     .doubles = {{29, 1.06}, {kAttackBonus, 1.07}, {kDamageMultiplier, 2.35}},
     .rows = {"8,800p, 720bu, Bo 270", "0 235%[12], 7 6, Wk 8, Tk 2"}},
    {.name = "Iron Chest",
     .type = 10,
     .longs = {{5, 6005}, {19, 200}, {38, 150}},
     .bools = {{2, false}, {3, true}},
     .rows = {"200p, 6,005bu", "Locked, Diff 150"}},
    {.name = "Sack", .type = 10, .longs = {{5, 15}, {19, 65}}, .rows = {"65p, 15bu", "Unlocked"}},
    {.name = "Black Opal", .type = 11, .longs = {{19, 4000}, {105, 9}}, .rows = {"4,000p, 0bu", "Wk 9, Tk 0"}},
    {.name = "Glenden Wood Portal", .type = 14, .longs = {{86, 10}, {87, 60}, {111, 1}}, .rows = {"Level 10-60"}},
    {.name = "Nest", .type = 14, .longs = {{86, 80}, {111, 17}}, .rows = {"Level 80+ No Sum"}},
    {.name = "Hall", .type = 14, .longs = {{26, 1}, {87, 15}, {111, 33}}, .rows = {"Level <15, TOD No Rec/Tie"}},
    {.name = "Gateway", .type = 14, .longs = {{111, 49}}, .rows = {"None No Rec/Tie/Sum"}},
    {.name = "Odd Portal", .type = 14, .longs = {{26, 1}, {111, 2}}, .rows = {"None, TOD No "}},
    {.name = "Mana Stone",
     .type = 16,
     .longs = {{5, 50}, {19, 1000}, {107, 812}},
     .doubles = {{87, 0.6}, {137, 0.1}},
     .rows = {"1,000p, 50bu", "812, 60% T, 10% D"}},
    {.name = "Door, locked",
     .type = 26,
     .longs = {{38, 50}},
     .bools = {{2, false}, {3, true}},
     .rows = {"Locked, Diff 50"}},
    {.name = "Door, open", .type = 26, .longs = {{38, 50}}, .bools = {{2, true}, {3, true}}, .rows = {"Open"}},
    {.name = "Door, closed", .type = 26, .bools = {{3, false}}, .rows = {"Unlocked"}},
    {.name = "Corpse of Aldra", .type = 27, .longs = {{5, 6310}, {19, 4}}, .rows = {"6,310bu"}},
    {.name = "Excellent Healing Kit",
     .type = 29,
     .longs = {{5, 50}, {19, 500}, {89, 2}, {90, 10}, {91, 35}, {92, 34}},
     .doubles = {{100, 1.75}},
     .rows = {"500p, 50bu", "34/35, 175%, +10 Heal"}},
    {.name = "Good Lockpick",
     .type = 30,
     .longs = {{5, 50}, {19, 500}, {91, 35}, {92, 21}},
     .rows = {"500p, 50bu", "21/35"}},
    {.name = "Fire Baton",
     .type = 31,
     .longs = {{5, 50},
               {19, 9100},
               {105, 7},
               {107, 1010},
               {108, 2000},
               {109, 190},
               {158, 2},
               {159, 34},
               {160, 290},
               {171, 6}},
     .doubles = {{29, 1.12}, {144, 0.08}, {150, 1.03}, {152, 1.09}},
     .rows = {"9,100p, 50bu, WM 290", "9%, 8 12 3, Wk 7, Tk 6", "Lr 190, 1010m"}},
    {.name = "Plain Orb", .type = 31, .rows = {"0p, 0bu", "0%, 0, Wk 0, Tk 0"}},
    {.name = "Salvaged Steel",
     .type = 39,
     .longs = {{5, 100}, {19, 10}, {170, 100}},
     .doubles = {{kSalvageWorkmanship, 8.74}},
     .rows = {"10p, 100bu", "Wk 9, From 100"}},
    // What has no rows, and what is only worth something.
    {.name = "Something", .type = 0, .longs = {{19, 5}}},
    {.name = "Life Stone", .type = 28},
    {.name = "Sign", .type = 35, .longs = {{5, 9000}, {19, 125}}},
    {.name = "Ust", .type = 40, .longs = {{5, 10}, {19, 10}}},
    {.name = "Service", .type = 41},
    {.name = "Scroll", .type = 42, .longs = {{5, 30}, {19, 2000}}, .rows = {"2,000p, 30bu"}},
    {.name = "Pyreal", .type = 7, .longs = {{5, 0}, {19, 12450}}, .rows = {"12,450p, 0bu"}},
};

class TargetRows : public TargetTest {
protected:
    std::vector<std::string> RowsOf(const ThingRow& row, host::Id id) {
        sim::Object& thing = Thing(row.type, row.name, id);
        thing.Long = row.longs;
        thing.Double = row.doubles;
        thing.Bool = row.bools;
        client.ObjectSelected(0);
        Forget();
        client.ObjectSelected(id);
        return canvas().Rows();
    }
};

TEST_F(TargetRows, FollowTheClassOfTheThing) {
    sim::SpellRow beer;
    beer.ID = 3533;
    beer.Name = "Coordination Beer";
    client.spells.Put(beer);

    host::Id id = kTarget;
    for (const ThingRow& row : kThings) {
        SCOPED_TRACE(row.name);
        std::vector<std::string> expected = row.rows;
        expected.insert(expected.begin(), row.name);
        EXPECT_EQ(RowsOf(row, ++id), expected);
        Forget();
        canvas().Refresh();
        EXPECT_EQ(DrawnTexts(), expected) << "on the surface";
    }
}

TEST_F(TargetRows, ShowTheLevelOfWhateverLives) {
    for (const std::int32_t type : {5, 24, 25, 37}) {
        EXPECT_THAT(RowsOf({.name = "Somebody", .type = type, .longs = {{19, 5}, {25, 96}}}, kTarget + type),
                    ElementsAre("Somebody", "Level 96"));
    }
    EXPECT_THAT(RowsOf({.name = "Chicken", .type = 5}, kTarget), ElementsAre("Chicken"));
}

TEST_F(TargetRows, CountWhatIsStacked) {
    const struct {
        const char* name;
        std::int32_t count;
        const char* plural;
        const char* text;
    } rows[] = {
        {"Arrow", 0, "", "Arrow"},       {"Arrow", 1, "Arrows", "Arrow"},        {"Arrow", 2, "", "2 Arrows"},
        {"Arrows", 2, "", "2 Arrowses"}, {"Brush", 30, "Brushes", "30 Brushes"}, {"Note", 1000, "", "1000 Notes"}};
    for (const auto& row : rows) {
        sim::Object& thing = Thing(0, row.name);
        thing.Long[host::key::kStackCount] = row.count;
        if (*row.plural) thing.String[0x0B000000] = row.plural;
        client.ObjectSelected(kTarget);
        EXPECT_THAT(canvas().Rows(), ElementsAre(row.text));
        thing.String.clear();
    }
}

TEST_F(TargetRows, NameTheBestSpells) {
    for (const auto& [id, name] : {std::pair{2108, "Brogard's Defiance"},
                                   {2581, "Major Focus"},
                                   {4019, "Epic Quickness"},
                                   {2582, "Minor Self"}}) {
        sim::SpellRow spell;
        spell.ID = id;
        spell.Name = name;
        client.spells.Put(spell);
    }
    Thing(4, "Ring");
    client.ObjectSelected(kTarget);
    TellSpells({2108, 2581, 2582, 4019});
    EXPECT_THAT(canvas().Rows(), ElementsAre("Ring", "0p, 0bu", "Wk 0, Tk 0", "Major Focus, Epic Quickness"));

    client.ObjectSelected(kTarget);
    EXPECT_THAT(canvas().Rows(), SizeIs(3)) << "until the server has told again";
}

// The name, class, longs, doubles and bools of a line of the table of things, which gives each key with its value.
template <class Map, class Convert>
void ReadProperties(std::string_view field, Map& map, Convert convert) {
    for (const std::string_view pair : Split(field, ";")) {
        if (const auto parts = Split(pair, "="); parts.size() == 2)
            map[static_cast<std::int32_t>(std::stoul(std::string(parts[0]), nullptr, 0))] =
                convert(std::string(parts[1]));
    }
}

TEST_F(TargetRows, TakeTheThingsOfTheGame) {
    std::ifstream file(GameData("world-objects.tsv"));
    if (!file) GTEST_SKIP() << "waits for real objects: set OMBREL_DATA to a folder with world-objects.tsv";

    std::string line;
    std::getline(file, line);
    int count = 0;
    for (; std::getline(file, line); ++count) {
        SCOPED_TRACE(line);
        const auto fields = Split(line, "\t");
        ASSERT_GE(fields.size(), 14u);
        const host::Id id = kTarget + count;
        sim::Object& thing = Thing(std::stoi(std::string(fields[2])), std::string(fields[1]), id);
        thing.HasIdData = fields[10] == "1";
        const auto whole = [](const std::string& text) { return static_cast<std::int32_t>(std::stoll(text)); };
        for (const auto& [field, key] : {std::pair{4, host::key::kIcon}, {6, 5}, {7, 19}})
            thing.Long[key] = whole(std::string(fields[static_cast<std::size_t>(field)]));
        ReadProperties(fields[11], thing.Long, whole);
        ReadProperties(fields[12], thing.Double, [](const std::string& text) { return std::stod(text); });
        ReadProperties(fields[13], thing.Bool, [](const std::string& text) { return text == "True"; });
        client.ObjectSelected(id);

        const auto rows = canvas().Rows();
        ASSERT_THAT(rows, Not(IsEmpty()));
        EXPECT_EQ(rows[0], fields[1]);
        EXPECT_LE(rows.size(), 6u);
        const auto skill = thing.Long.find(159);
        const bool unnamed = skill != thing.Long.end() && skill->second > 45;
        EXPECT_THAT(TakeReports(), SizeIs(unnamed ? 1 : 0));
    }
    EXPECT_GT(count, 100);
}

}  // namespace
}  // namespace ombrel::test
