#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <random>
#include <utility>

#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kRestoredVital = 89, kRestored = 90, kUses = 92, kRegen = 100;

class VitalsTest : public PluginTest {
protected:
    void SetUp() override {
        Start();
        options().VitalsEnabled->SetChecked(true);
        SetShares("100%", "95%", "80%", "75%");
        client.sheet.Skill[21] = 200;
        client.object(1).Name = "Rock";
    }

    void SetShares(const char* block, const char* success, const char* cheap, const char* fallback) {
        options().VitalsBlock->SetText(block);
        options().VitalsSuccess->SetText(success);
        options().VitalsCheap->SetText(cheap);
        options().VitalsFallback->SetText(fallback);
    }
    sim::Object& Food(host::Id id, std::int32_t vital, std::int32_t restores) {
        sim::Object& food = Carry(id, fmt::format("Food {}", id));
        food.Type = host::object_class::kFood;
        food.Long = {{kRestoredVital, vital}, {kRestored, restores}};
        return food;
    }
    sim::Object& Kit(host::Id id, std::int32_t bonus, double regen, std::int32_t uses) {
        sim::Object& kit = Carry(id, fmt::format("Kit {}", id));
        kit.Type = host::object_class::kHealingKit;
        kit.Long = {{kRestored, bonus}, {kUses, uses}};
        kit.Double = {{kRegen, regen}};
        return kit;
    }

    // What a key press uses; 0 for nothing.
    template <class Press>
    host::Id UsedBy(Press press) {
        Forget();
        const bool result = press();
        const auto used = CallsOf("UseItemOnTarget");
        EXPECT_LE(used.size(), 1U);
        EXPECT_EQ(result, !used.empty());
        if (used.empty()) return 0;
        EXPECT_THAT(used[0], HasSubstr(fmt::format("target={}", client.sheet.Character)));
        return std::atoi(used[0].c_str() + std::string_view("UseItemOnTarget id=").size());
    }
    host::Id Eaten(std::int32_t vital) {
        return UsedBy([&] { return filter().UseFood(vital); });
    }
    host::Id Treated(bool fallback = false) {
        return UsedBy([&] { return filter().UseKit(fallback); });
    }
    // The debug lines of a key press that have a text in them.
    template <class Press>
    std::vector<std::string> Traced(Press press, std::string_view part) {
        Forget();
        Vars::DebugMode = true;
        press();
        Vars::DebugMode = false;
        auto texts = Texts();
        std::erase_if(texts, [&](const std::string& text) { return text.find(part) == std::string::npos; });
        return texts;
    }
};

TEST_F(VitalsTest, FoodIsChosenForItsVitalByWhatIsMissing) {
    client.sheet.Health = 60;
    client.sheet.Stamina = 75;
    client.sheet.Mana = 10;
    Food(10, 2, 10);
    Food(11, 2, 45);
    Food(12, 2, 35);  // as close as the one before
    Food(13, 4, 30);
    Food(14, 6, 5);
    Carry(15, "Ale").Type = host::object_class::kFood;
    EXPECT_EQ(Eaten(2), 11);
    EXPECT_EQ(Eaten(4), 13);
    EXPECT_EQ(Eaten(6), 14);
    EXPECT_THAT(Traced([&] { filter().UseFood(2); }, ""),
                ElementsAre("<Ombrel-Debug> Needed Vital: 40", "<Ombrel-Debug> Food Match: Food 10, Restores: 10",
                            "<Ombrel-Debug> Food Match: Food 11, Restores: 45",
                            "<Ombrel-Debug> Food Match: Food 12, Restores: 35", "<Ombrel-Debug> Best Fit: 5"));

    Kit(20, 40, 1.0, 5).Long[kRestoredVital] = 2;
    EXPECT_EQ(Eaten(2), 20) << "a kit that says what it restores is taken for a meal";
    client.RemoveObject(20);

    client.sheet.Vital[2] = 60 + 1040;
    EXPECT_EQ(Eaten(2), 11) << "995 off";
    client.sheet.Vital[2] = 60 + 1044;
    EXPECT_EQ(Eaten(2), 0) << "999 off";
    options().VitalsEnabled->SetChecked(false);
    EXPECT_EQ(Eaten(4), 0);
}

TEST_F(VitalsTest, AVitalAboveTheBlockIsLeftAlone) {
    Food(10, 2, 10);
    Kit(20, 50, 1.0, 5);
    struct Row {
        std::int32_t health;
        const char* block;
        bool used;
    };
    for (const Row& row :
         {Row{100, "100%", true}, Row{100, "99%", false}, Row{80, "80%", true}, Row{81, "80", false}}) {
        SCOPED_TRACE(fmt::format("{} of 100 at {}", row.health, row.block));
        client.sheet.Health = row.health;
        options().VitalsBlock->SetText(row.block);
        EXPECT_EQ(Eaten(2) != 0, row.used);
        EXPECT_EQ(Treated() != 0, row.used);
    }
    EXPECT_THAT(Traced([&] { filter().UseFood(2); }, "Blocked"),
                ElementsAre("<Ombrel-Debug> Use Food Blocked due to high vital"));
    EXPECT_THAT(Traced([&] { filter().UseKit(true); }, "Blocked"),
                ElementsAre("<Ombrel-Debug> Use Kit Blocked due to high health"));
}

TEST_F(VitalsTest, FiguresThatAreNoneAreReportedAndNothingIsUsed) {
    Food(10, 2, 10);
    Kit(20, 50, 1.0, 5);
    client.sheet.Vital[2] = 0;
    EXPECT_EQ(Eaten(2), 0);
    EXPECT_EQ(Treated(), 0);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #11 occured in 'UseFood' of class 'FilterHandler'",
                                           "Error #11 occured in 'UseKit' of class 'FilterHandler'"));
    client.sheet.Vital[2] = 100;
    SetShares("full", "95%", "80%", "75%");
    EXPECT_EQ(Eaten(2), 0);
    SetShares("100%", "95%", "", "75%");
    EXPECT_EQ(Treated(), 0);
    SetShares("100%", "95%", "80%", "75%");
    client.object(10).Long[kRestored] = std::numeric_limits<std::int32_t>::min();
    client.sheet.Health = 50;
    EXPECT_EQ(Eaten(2), 0);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'UseFood' of class 'FilterHandler'",
                                           "Error #13 occured in 'UseKit' of class 'FilterHandler'",
                                           "Error #6 occured in 'UseFood' of class 'FilterHandler'"));
}

TEST_F(VitalsTest, TheDifficultyGrowsWithTheWoundTheFightAndExhaustion) {
    struct Row {
        std::int32_t health, stamina, mode;
        const char* difficulty;
    };
    const Row kRows[] = {
        {75, 100, 1, "75"}, {75, 100, 2, "90"}, {75, 100, 8, "90"}, {75, 4, 1, "75"}, {75, 3, 1, "1075"}};
    for (const Row& row : kRows) {
        client.sheet.Health = row.health;
        client.sheet.Stamina = row.stamina;
        client.hooks.CombatMode = row.mode;
        EXPECT_THAT(
            Traced([&] { filter().UseKit(false); }, "Difficulty"),
            ElementsAre(fmt::format("<Ombrel-Debug> Healing - Needed Health: 25, Difficulty: {}", row.difficulty)));
    }
}

TEST_F(VitalsTest, TheWornKitOfTwoAlikeGoesFirst) {
    for (const auto& [first, second] : {std::pair{5, 12}, {12, 5}}) {
        Kit(20, 50, 1.5, first);
        Kit(21, 50, 1.5, second);
        for (const std::int32_t health : {90, 70}) {  // sparing and not
            client.sheet.Health = health;
            EXPECT_EQ(Treated(), first < second ? 20 : 21);
        }
    }
}

TEST_F(VitalsTest, AScratchGetsTheLeastKitAndAWoundTheBest) {
    Kit(20, 25, 2.0, 12);
    Kit(21, 100, 1.6, 100);
    Kit(22, 50, 1.0, 20);
    client.sheet.Health = 81;
    EXPECT_EQ(Treated(), 22);
    EXPECT_THAT(Traced([&] { filter().UseKit(false); }, "path"),
                ElementsAre("<Ombrel-Debug> Conservation path, least 'valuable' kit",
                            "<Ombrel-Debug> Conservation path, least 'valuable' kit"));
    client.sheet.Health = 80;
    EXPECT_EQ(Treated(), 20) << "a share on the line is not above it";
    EXPECT_THAT(Traced([&] { filter().UseKit(false); }, "path"),
                ElementsAre("<Ombrel-Debug> Best success path, best restore bonus"));
}

TEST_F(VitalsTest, WherePoorChancesAreLeftTheSmartKeyEats) {
    client.sheet.Health = 60;
    client.sheet.Stamina = 0;
    Kit(20, 25, 2.0, 12);
    Kit(21, 100, 1.6, 100);
    EXPECT_EQ(Treated(true), 21) << "no food: the kit that may work";
    EXPECT_THAT(Traced([&] { filter().UseKit(true); }, "Heal"),
                ElementsAre(HasSubstr("Difficulty: 1105"), HasSubstr("Healing Best Fit - Success: "),
                            "<Ombrel-Debug> Healing Smart Mode - Too low chance of success, using health food",
                            "<Ombrel-Debug> Healing with kit 21"));
    Food(10, 2, 40);
    EXPECT_EQ(Treated(true), 10);
    EXPECT_EQ(Treated(false), 21);
    client.RemoveObject(20);
    client.RemoveObject(21);
    EXPECT_EQ(Treated(true), 10) << "without a kit";
    EXPECT_EQ(Treated(false), 0);
}

TEST_F(VitalsTest, HotkeysReachEachOfThem) {
    LogIn();
    client.sheet.Health = client.sheet.Stamina = client.sheet.Mana = 50;
    Food(10, 2, 40);
    Food(11, 4, 40);
    Food(12, 6, 40);
    Kit(20, 50, 1.0, 5);
    const std::pair<const char*, host::Id> kKeys[] = {{"OM:OneKeyHealth", 10},
                                                      {"OM:OneKeyStamina", 11},
                                                      {"OM:OneKeyMana", 12},
                                                      {"OM:OneKeyHeal", 20},
                                                      {"OM:OneKeySmartHeal", 20}};
    for (const auto& [key, id] : kKeys) EXPECT_EQ(UsedBy([&] { return client.Hotkey(key); }), id) << key;
    options().VitalsEnabled->SetChecked(false);
    for (const auto& [key, id] : kKeys) EXPECT_EQ(UsedBy([&] { return client.Hotkey(key); }), 0) << key;
}

TEST_F(VitalsTest, FoodAndKitsAreAskedAboutAtLogin) {
    Food(10, 2, 40);
    Kit(20, 50, 1.0, 5);
    Food(11, 2, 40);
    LogIn();
    EXPECT_THAT(CallsOf("IdentifyObject"),
                ElementsAre("IdentifyObject id=10", "IdentifyObject id=11", "IdentifyObject id=20"));
}

TEST_F(VitalsTest, ThousandsOfPacksGetTheClosestFood) {
    std::mt19937 random(62);
    const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    int eaten = 0;
    for (int round = 0; round < 4000; ++round) {
        const std::int32_t vital = 2 * between(1, 3);
        client.sheet.Vital[vital] = between(1, 3000);
        const std::int32_t current = between(0, client.sheet.Vital[vital]);
        (vital == 2 ? client.sheet.Health : vital == 4 ? client.sheet.Stamina : client.sheet.Mana) = current;
        const std::int32_t needed = client.sheet.Vital[vital] - current;
        std::map<std::int32_t, host::Id> by_distance;  // the first of each
        for (host::Id id = 10; id < 10 + between(0, 10); ++id) {
            const std::int32_t other = 2 * between(1, 3), restores = between(-5, 60) * 25;
            Food(id, other, restores);
            if (other == vital) by_distance.emplace(std::abs(restores - needed), id);
        }
        const bool found = !by_distance.empty() && by_distance.begin()->first < 999;
        ASSERT_EQ(Eaten(vital), found ? by_distance.begin()->second : 0) << "round " << round;
        eaten += found ? 1 : 0;
        for (host::Id id = 10; id < 20; ++id) client.RemoveObject(id);
    }
    EXPECT_GT(eaten, 1000);
    EXPECT_LT(eaten, 3900);
}

// The choice by another road: of the kits that are sure enough the least or the best, without such a kit the surest;
// the first of these, and of its equals the one that is worn most.
TEST_F(VitalsTest, ThousandsOfPacksGetTheRightKit) {
    std::mt19937 random(63);
    const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    std::map<std::string, int> outcomes;
    for (int round = 0; round < 6000; ++round) {
        client.sheet.Vital[2] = between(50, 400);
        client.sheet.Health = between(client.sheet.Vital[2] / 4, client.sheet.Vital[2]);
        client.sheet.Stamina = between(0, 9) == 0 ? 2 : 100;
        client.sheet.Skill[21] = between(0, 500);
        client.hooks.CombatMode = between(0, 1) == 0 ? 1 : 2;
        const double share = static_cast<double>(client.sheet.Health) / client.sheet.Vital[2];
        const std::int32_t missing = client.sheet.Vital[2] - client.sheet.Health;
        const double difficulty = std::nearbyint(missing * (client.hooks.CombatMode == 1 ? 2.0 : 2.6) + 25) +
                                  (client.sheet.Stamina < 4 ? 1000 : 0);
        struct Candidate {
            host::Id id;
            std::int32_t bonus, uses;
            double regen, chance;
        };
        std::vector<Candidate> kits;
        for (host::Id id = 20; id < 20 + between(0, 7); ++id) {
            const Candidate kit{id, 25 * between(0, 4), between(1, 6), 0.5 * between(0, 4), 0.0};
            Kit(id, kit.bonus, kit.regen, kit.uses);
            kits.push_back(kit);
            kits.back().chance = 1 - 1 / (1 + std::exp(0.03 * (client.sheet.Skill[21] + kit.bonus - difficulty)));
        }
        const bool sparing = share > 0.8;
        std::vector<Candidate> sure = kits;
        std::erase_if(sure, [&](const Candidate& kit) { return kit.chance <= 0.95 || (!sparing && kit.regen <= 0); });
        const auto rank = [&](const Candidate& kit) {  // the lowest is best
            return sure.empty() ? -kit.chance : sparing ? kit.regen * 100 + kit.bonus : -kit.regen;
        };
        auto field = sure.empty() ? kits : sure;
        std::erase_if(field, [](const Candidate& kit) { return kit.chance <= 0.0; });
        host::Id expected = 0;
        if (!field.empty()) {
            const Candidate best = *std::ranges::min_element(field, {}, rank);
            std::vector<Candidate> equals = field;
            std::erase_if(equals,
                          [&](const Candidate& kit) { return kit.bonus != best.bonus || kit.regen != best.regen; });
            expected = std::ranges::min_element(equals, {}, &Candidate::uses)->id;
        }
        ASSERT_EQ(Treated(), expected) << "round " << round;
        ++outcomes[kits.empty() ? "none" : sure.empty() ? "unsure" : sparing ? "sparing" : "best"];
        for (host::Id id = 20; id < 30; ++id) client.RemoveObject(id);
    }
    for (const char* outcome : {"none", "unsure", "sparing", "best"}) EXPECT_GT(outcomes[outcome], 200) << outcome;
}

}  // namespace
}  // namespace ombrel::test
