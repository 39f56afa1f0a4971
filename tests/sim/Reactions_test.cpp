// What comes of the character's acts in a world that reacts.

#include <string>
#include <vector>

#include "adapters/sim/Aftermath.h"
#include "host/ACHooks.h"
#include "host/World.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

constexpr std::int32_t kStack = host::key::kStackCount;
constexpr std::int32_t kFull = host::key::kStackMaximum;
constexpr std::int32_t kWielder = kWielderKey;

class Reacting : public testing::Test {
protected:
    Reacting() : hooks(client.site().GetHooks()), world(client.site().GetWorld()) {
        client.reacts = true;
        client.object(client.sheet.Character).Name = "Bob";
        client.chat_listener = [this](const Client::ChatLine& line) { read.push_back(line.text); };
        hooks->StatusTextIntercept = [this](const std::string& text, bool&) { status.push_back(text); };
        world->ChangeObject = [this](host::Id id, std::int32_t kind) {
            told.push_back("change " + std::to_string(id) + " " + std::to_string(kind));
        };
        world->ReleaseObject = [this](host::Id id) { told.push_back("release " + std::to_string(id)); };
        world->CreateObject = [this](host::Id id) { told.push_back("create " + client.FindObject(id)->Name); };
    }

    Object& Carry(host::Id id, const std::string& name, std::int32_t type = 0) {
        Object& object = client.object(id);
        object.Name = name;
        object.Type = type;
        object.Container = client.sheet.Character;
        return object;
    }
    Object& CarryStack(host::Id id, const std::string& name, std::int32_t count, std::int32_t value_each) {
        Object& object = Carry(id, name);
        object.Long = {{kStack, count}, {kFull, 100}, {property::kValue, count * value_each}};
        return object;
    }
    std::int32_t Stack(host::Id id) const {
        const Object* object = client.FindObject(id);
        return object ? object->Long.at(kStack) : 0;
    }
    std::int32_t Money() const {
        std::int32_t money = 0;
        for (const auto& object : client.objects()) {
            if (object->Name == "Pyreal" && client.Carries(*object)) money += object->Long.at(kStack);
        }
        return money;
    }
    void Advance(milliseconds time) { client.clock.Advance(time); }

    Client client;
    std::unique_ptr<host::ACHooks> hooks;
    std::unique_ptr<host::World> world;
    std::vector<std::string> read, status, told;
};

TEST_F(Reacting, QuestionsAreAnsweredLaterAndInOrder) {
    Carry(5, "Ham");
    Carry(6, "Egg");
    hooks->RequestID(6);
    hooks->IdentifyObject(5);
    hooks->IdentifyObject(7);  // gone before the answer
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(client.FindObject(6)->HasIdData, 0);
    Advance(1s);
    EXPECT_THAT(told, ElementsAre("change 6 2", "change 5 2"));
    EXPECT_EQ(client.FindObject(5)->HasIdData, 1);
    EXPECT_EQ(client.FindObject(5)->LastIdTime, 1141560000);
}

TEST_F(Reacting, AStoneGivesWhatItHoldsToWhatIsWornAndAChargeGoesWithIt) {
    for (const host::Id id : {10, 11, 12}) {
        Object& ring = client.object(id);
        ring.Name = "Ring " + std::to_string(id);
        ring.Long = {{kWielder, client.sheet.Character}, {10, 1}, {107, id == 12 ? 95 : 0}, {108, 100}};
    }
    Object& charge = Carry(20, "Mana Charge", thing::kManaStone);
    charge.Long[107] = 85;
    charge.Double[property::kDestruction] = 1.0;
    hooks->UseItemOnTarget(20, client.sheet.Character);
    EXPECT_EQ(client.hooks.BusyState, 1);
    Advance(1s);
    EXPECT_EQ(client.hooks.BusyState, 0);
    EXPECT_THAT(read,
                ElementsAre("The Mana Charge gives 85 points of mana to the following items: Ring 10, Ring 11, Ring "
                            "12.\nYou need 120 more mana to fully charge your items.\n",
                            "The Mana Charge is destroyed.\n"));
    EXPECT_EQ(client.FindObject(10)->Long.at(107), 40);
    EXPECT_EQ(client.FindObject(11)->Long.at(107), 40);
    EXPECT_EQ(client.FindObject(12)->Long.at(107), 100);
    EXPECT_EQ(client.FindObject(20), nullptr);
    EXPECT_THAT(told, ElementsAre("change 10 4", "change 11 4", "change 12 4", "change 20 4", "release 20"));

    Carry(21, "Mana Stone", thing::kManaStone).Long[107] = 500;
    hooks->UseItemOnTarget(21, client.sheet.Character);
    Advance(1s);
    EXPECT_EQ(read.back(),
              "The Mana Stone gives 120 points of mana to the following items: Ring 10, Ring 11.\nYour items are fully "
              "charged.\n");
    client.object(21).Long[107] = 500;
    hooks->UseItemOnTarget(21, client.sheet.Character);
    Advance(1s);
    EXPECT_EQ(read.back(), "You have no items equipped that need mana.\n");
    EXPECT_EQ(client.FindObject(21)->Long.at(107), 500);
}

TEST_F(Reacting, FoodRestoresItsVitalAndTheLastOfAStackGoes) {
    client.sheet.Stamina = 50;
    Object& stew = CarryStack(5, "Hearty Beef Stew", 2, 8);
    stew.Type = thing::kFood;
    stew.Long[property::kRestoredVital] = host::vital::kStamina;
    stew.Long[property::kRestored] = 39;
    hooks->UseItemOnTarget(5, client.sheet.Character);
    hooks->UseItemOnTarget(5, client.sheet.Character);
    EXPECT_THAT(status, ElementsAre("You're too busy!"));
    Advance(2s);
    EXPECT_EQ(client.sheet.Stamina, 89);
    EXPECT_EQ(Stack(5), 1);
    hooks->UseItem(5, 0);
    Advance(2s);
    EXPECT_EQ(client.sheet.Stamina, 100) << "not above the maximum";
    EXPECT_EQ(client.FindObject(5), nullptr);
    EXPECT_THAT(read, Contains("The Hearty Beef Stew restores 39 points of your Stamina.\n"));
}

// The same kits in the same hands have the same luck in every run; the skill decides how often.
TEST_F(Reacting, HealingSucceedsAsOftenAsTheSkillAllows) {
    const auto successes = [&](std::int32_t skill, std::int32_t health) {
        Client other;
        other.reacts = true;
        other.sheet.Skill[21] = skill;
        other.sheet.Vital[2] = 300;
        Object& kit = other.object(5);
        kit.Type = thing::kHealingKit;
        kit.Container = other.sheet.Character;
        kit.Long = {{property::kUses, 1000}};
        kit.Double[property::kRestoration] = 1.0;
        int healed = 0;
        for (int use = 0; use < 200; ++use) {
            other.sheet.Health = health;
            other.site().GetHooks()->UseItemOnTarget(5, other.sheet.Character);
            other.clock.Advance(2s);
            healed += other.sheet.Health > health ? 1 : 0;
        }
        EXPECT_EQ(other.FindObject(5)->Long.at(property::kUses), 800);
        return healed;
    };
    EXPECT_EQ(successes(400, 200), successes(400, 200));
    EXPECT_GT(successes(400, 200), 190);
    EXPECT_NEAR(successes(200, 200), 100, 25);
    EXPECT_LT(successes(50, 200), 20);

    Carry(6, "Kit", thing::kHealingKit);
    hooks->UseItemOnTarget(6, client.sheet.Character);
    EXPECT_THAT(status, ElementsAre("Bob is already at full health!"));
}

TEST_F(Reacting, TheSplittingToolBreaksOnePea) {
    Carry(4, "Splitting Tool");
    CarryStack(5, "Lead Pea", 2, 500);
    CarryStack(6, "Lead Scarab", 3, 5);
    hooks->UseItemOnTarget(4, 5);
    Advance(1s);
    EXPECT_EQ(Stack(5), 1);
    EXPECT_EQ(Stack(6), 23);
    EXPECT_THAT(told, ElementsAre("change 6 0", "change 5 0"));
}

class Market : public Reacting {
protected:
    Market() {
        Object& note = client.object(90);
        note.Name = "Trade Note (250,000)";
        note.Type = thing::kTradeNote;
        note.Container = 99;
        note.Long = {{kStack, 1}, {kFull, 250}, {property::kValue, 250000}};
        client.vendor = {true, 0.9f, {90}};
    }
    void Sell(host::Id id, std::int32_t count) {
        hooks->SelectItem(id);
        hooks->SetStackSize(count);
        hooks->VendorAddSell(id);
        hooks->VendorSellAll();
        Advance(500ms);
    }
    void Buy(std::int32_t count) {
        hooks->VendorAddBuy(90, count);
        hooks->VendorBuyAll();
        Advance(500ms);
    }
};

TEST_F(Market, SoldStacksShrinkAndThePurseGrows) {
    CarryStack(5, "Pyreal Pea", 10, 50000);
    Sell(5, 4);
    EXPECT_EQ(Stack(5), 6);
    EXPECT_EQ(client.FindObject(5)->Long.at(property::kValue), 300000);
    EXPECT_EQ(Money(), 180000);
    Sell(5, 100);
    EXPECT_EQ(client.FindObject(5), nullptr) << "no more than there are";
    EXPECT_EQ(Money(), 450000);
    EXPECT_EQ(std::ranges::count(told, "create Pyreal"), 18) << "25,000 in a purse";
    hooks->VendorSellAll();
    Advance(1s);
    EXPECT_EQ(Money(), 450000) << "each entry is sold once";
}

TEST_F(Market, NotesCostTheirPriceAndStack) {
    CarryStack(5, "Pyreal Pea", 13, 50000);
    Buy(1);
    EXPECT_THAT(told, IsEmpty()) << "without the money";
    Sell(5, 13);
    told.clear();
    Buy(1);
    Buy(1);
    EXPECT_EQ(Money(), 585000 - 2 * 287500);
    std::vector<host::Id> notes;
    for (const auto& object : client.objects()) {
        if (object->Name == "Trade Note (250,000)" && client.Carries(*object)) notes.push_back(object->id);
    }
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_THAT(told, Contains("create Trade Note (250,000)"));
    hooks->MergeStacks(notes[1], notes[0]);
    Advance(500ms);
    EXPECT_EQ(Stack(notes[0]), 2);
    EXPECT_EQ(client.FindObject(notes[1]), nullptr);

    client.object(notes[0]).Long[kStack] = 249;
    CarryStack(7, "Trade Note (250,000)", 3, 250000);
    hooks->MergeStacks(7, notes[0]);
    Advance(500ms);
    EXPECT_EQ(Stack(notes[0]), 250) << "full";
    EXPECT_EQ(Stack(7), 2);
}

TEST_F(Market, WhoWouldBreakDownUnderTheCoinSellsNothing) {
    client.object(client.sheet.Character).Long[property::kBurdenCapacity] = 100;
    Object& purse = CarryStack(5, "Pyreal", 100, 1);
    purse.Long[property::kBurden] = 50;
    CarryStack(6, "Lead Pea", 2, 500);
    Sell(6, 2);
    EXPECT_THAT(status, ElementsAre("You are too encumbered to sell that!"));
    EXPECT_EQ(Stack(6), 2);
    Sell(6, 1);
    EXPECT_EQ(Money(), 550) << "450 pyreals weigh 225, and 300 is the most";
}

TEST_F(Reacting, TheDeadLoseSomethingComeBackAndMayFetchIt) {
    client.sheet.Level = 20;
    client.object(client.sheet.Character).Coordinates = host::Position{-33.84, 72.66};
    client.object(3).Type = thing::kLifestone;
    client.object(3).Coordinates = host::Position{10.0, 10.0};
    CarryStack(5, "Pyreal", 11, 1);
    CarryStack(6, "Gold Pea", 3, 25000);
    CarryStack(7, "Torch", 1, 5);
    std::vector<std::int32_t> portals;
    const auto character = client.site().GetCharacterStats();
    character->ChangePortalMode = [&](std::int32_t mode) { portals.push_back(mode); };
    client.Enchant(1, 600, 1);
    client.Enchant(2, 0, 2);

    client.Death("You were killed.");
    client.Death("You were killed.");
    Advance(10s);
    EXPECT_THAT(read, ElementsAre("You've lost 5 Pyreals and your 3 Gold Peas!\n",
                                  "Your corpse is located at (33.8S, 72.7E).\n"));
    EXPECT_THAT(portals, ElementsAre(0, 1));
    EXPECT_THAT(told, Contains("create Corpse of Bob"));
    EXPECT_EQ(Money(), 6);
    EXPECT_EQ(client.sheet.Vitae, 95);
    EXPECT_EQ(client.enchantments.size(), 1U);
    EXPECT_EQ(client.FindObject(client.sheet.Character)->Coordinates, (host::Position{10.0, 10.0}));

    const host::Id corpse = *client.FindObject(6)->Container;
    client.ContainerOpened(corpse);
    Advance(5s);
    ASSERT_NE(client.FindObject(corpse), nullptr) << "there is something in it";
    for (const auto& object : std::vector(client.objects())) {
        if (object->Holder() != corpse) continue;
        client.object(object->id).Container = client.sheet.Character;
        client.MoveObject(object->id);
    }
    Advance(5s);
    EXPECT_EQ(client.FindObject(corpse), nullptr);
    EXPECT_EQ(Money(), 11);
}

TEST_F(Reacting, AnswersTakeTheirTurnAmongTheTimersAndAfterAHang) {
    std::vector<std::string> order;
    SimTimer timer(client.clock, client.calls, "Test.Timer");
    timer.Timeout = [&] { order.emplace_back("timer"); };
    client.clock.After(1000ms, [&] { order.emplace_back("before"); });
    timer.Start(1000);
    client.clock.After(1000ms, [&] {
        order.emplace_back("after");
        client.clock.After(0ms, [&] { order.emplace_back("at once"); });
    });
    Advance(1s);
    EXPECT_THAT(order, ElementsAre("before", "timer", "after", "at once"));
    order.clear();
    client.clock.After(200ms, [&] { order.emplace_back("late"); });
    client.clock.Stall(5s);
    EXPECT_THAT(order, ElementsAre("late", "timer"));
}

}  // namespace
}  // namespace ombrel::sim
