#include "automation/EventQueue.h"
#include "host/World.h"
#include "tests/spells/SpellTest.h"

namespace ombrel::test {
namespace {

constexpr host::Id kBlackmoorsGem = 0x61, kBenedictionGem = 0x62, kLesserGem = 0x63;

class GemsTest : public SpellTest {
protected:
    void SetUp() override {
        Carry(kBlackmoorsGem, "Blackmoor's Favor");
        Carry(kBenedictionGem, "Asheron's Benediction");
        Carry(kLesserGem, "Asheron's Lesser Benediction");
        SpellTest::SetUp();
        options().UseGems->SetChecked(true);
    }

    // The gems that the next second uses.
    std::vector<std::string> Used() {
        Forget();
        Advance(1s);
        return CallsOf("UseItem");
    }

    const std::string favor = "UseItem id=97 flag=0";
    const std::string benediction = "UseItem id=98 flag=0";
    const std::string lesser = "UseItem id=99 flag=0";
};

TEST_F(GemsTest, AGemIsUsedEachSecondUntilItsSpellArrives) {
    Cast(spell::kStrengthVI, 1000);
    EXPECT_THAT(Used(), ElementsAre(benediction, lesser, favor));
    EXPECT_THAT(Used(), ElementsAre(benediction, lesser, favor));
    Cast(spell::kBenediction, 86400);
    EXPECT_THAT(Used(), ElementsAre(lesser, favor));
    Cast(spell::kFavor, 86400);
    EXPECT_THAT(Used(), ElementsAre(lesser));
    Drop(spell::kBenediction);
    Cast(spell::kLesserBenediction, 86400);
    EXPECT_THAT(Used(), ElementsAre(benediction));
    options().UseGems->SetChecked(false);
    EXPECT_THAT(Used(), IsEmpty());
}

TEST_F(GemsTest, TheGamesCooldownHoldsItsGemsBack) {
    Cast(spell::kStrengthVI, 1000);
    Cast(spell::kBenedictionCooldown, 10);
    EXPECT_THAT(Used(), ElementsAre(favor));
    Cast(spell::kFavorCooldown, 10);
    EXPECT_THAT(Used(), IsEmpty());
    Drop(spell::kBenedictionCooldown);
    EXPECT_THAT(Used(), ElementsAre(benediction, lesser));
}

TEST_F(GemsTest, WithNoSpellAtAllEveryGemIsUsedWhateverCoolsDown) {
    Cast(spell::kBenedictionCooldown, 10);
    Cast(spell::kFavorCooldown, 10);
    EXPECT_THAT(Used(), ElementsAre(benediction, lesser, favor));
    options().UseGems->SetChecked(false);
    EXPECT_THAT(Used(), IsEmpty());
}

TEST_F(GemsTest, GemsAreLookedForAtLoginAlone) {
    Vars::DebugMode = true;
    client.LoginComplete();
    Vars::DebugMode = false;
    EXPECT_TRUE(testing::Value(Texts(), IsSupersetOf({"<Ombrel-Debug> Asheron's Benediction gem found",
                                                      "<Ombrel-Debug> Blackmoor's Favor gem found",
                                                      "<Ombrel-Debug> Asheron's Lesser Benediction gem found"})));
    client.RemoveObject(kBlackmoorsGem);
    client.RemoveObject(kLesserGem);
    client.LoginComplete();
    Carry(kLesserGem, "Asheron's Lesser Benediction");
    options().UseGems->SetChecked(true);
    Vars::DebugMode = true;
    EXPECT_THAT(Used(), ElementsAre(benediction));
    Vars::DebugMode = false;
    EXPECT_THAT(Texts(), Contains("<Ombrel-Debug> Benediction spell not found, using gem"));
    EXPECT_EQ(spells().lLesserBenediction, -1);
}

constexpr host::Id kAle = 0x71;

class BeersTest : public SpellTest {
protected:
    void SetUp() override {
        SpellTest::SetUp();
        // Picked up in another order than they are drunk in.
        for (const char* name : {"Hunter's Stock Amber", "Duke Raoul's Distillation", "Apothecary Zongo's Stout",
                                 "Bobo's Stout", "Amber Ape", "Tusker Spit Ale"})
            Carry(next_--, name).Long[host::key::kStackCount] = 10;
        Cast(spell::kArmorVI, 5000);
        options().UseBeers->SetChecked(true);
        TickBeers({});
    }

    static void TickBeers(std::initializer_list<host::Checkbox*> ticked) {
        for (host::Checkbox* box : All()) box->SetChecked(std::ranges::find(ticked, box) != ticked.end());
    }
    static std::vector<host::Checkbox*> All() {
        auto& o = options();
        return {o.BeerFocus.get(), o.BeerCoord.get(), o.BeerQuick.get(),
                o.BeerStr.get(),   o.BeerSelf.get(),  o.BeerEnd.get()};
    }
    static host::Checkbox* Focus() { return options().BeerFocus.get(); }

    // What the next seconds order.
    std::vector<std::string> Ordered(std::chrono::seconds time = 1s) {
        Forget();
        Advance(time);
        std::vector<std::string> ordered;
        for (const std::string& text : Texts()) {
            if (text.starts_with("<Ombrel> Adding ")) ordered.push_back(text.substr(16, text.find(" to the") - 16));
        }
        return ordered;
    }

    void LetQueueRunEmpty() {
        Vars::EventQueue->Clear();
        Vars::EventQueue->running = 0;
    }

private:
    host::Id next_ = kAle + 5;
};

TEST_F(BeersTest, MissingBeersAreOrderedInTheirOrderAndWaitInTheQueue) {
    TickBeers({Focus(), options().BeerCoord.get(), options().BeerQuick.get(), options().BeerStr.get(),
               options().BeerSelf.get(), options().BeerEnd.get()});
    EXPECT_THAT(Ordered(), ElementsAre("Tusker Spit Ale", "Amber Ape", "Bobo's Stout", "Apothecary Zongo's Stout",
                                       "Duke Raoul's Distillation", "Hunter's Stock Amber"));
    EXPECT_EQ(spells().LowBeer, 99999);
    EXPECT_THAT(CallsOf("UseItemOnTarget"), IsEmpty());
    EXPECT_EQ(Vars::EventQueue->running, 1);
    EXPECT_THAT(Ordered(60s), IsEmpty());

    Vars::EventQueue->Run();
    Forget();
    Advance(200ms);
    EXPECT_THAT(CallsOf("UseItemOnTarget"), ElementsAre("UseItemOnTarget id=113 target=1342179841"));
}

TEST_F(BeersTest, AnOrderIsRepeatedAfterFivePassesOfAnIdleQueue) {
    TickBeers({Focus()});
    EXPECT_THAT(Ordered(), ElementsAre("Tusker Spit Ale"));
    LetQueueRunEmpty();
    EXPECT_THAT(Ordered(4s), IsEmpty());
    EXPECT_THAT(Ordered(), ElementsAre("Tusker Spit Ale"));

    EXPECT_THAT(Ordered(20s), IsEmpty());  // while the queue holds it, the wait stands still
    LetQueueRunEmpty();
    EXPECT_THAT(Ordered(4s), IsEmpty());
    EXPECT_THAT(Ordered(), ElementsAre("Tusker Spit Ale"));
}

TEST_F(BeersTest, ABeerIsOrderedBelowTheThreshold) {
    const struct {
        const char* threshold;
        const char* use_timer;
        int remaining;
        bool ordered;
    } rows[] = {
        {"120", "0", 119, true},  {"120", "0", 120, false}, {"", "0", 119, true},   {"", "0", 120, false},
        {"soon", "0", 119, true}, {"60", "0", 61, false},   {"60", "0", 59, true},  {"60.5", "0", 60, true},
        {"120", "", 119, false},  {"120", "x", 119, false}, {"0", "0", 119, false},
    };
    TickBeers({Focus()});
    for (const auto& row : rows) {
        LetQueueRunEmpty();
        options().UseBeers->SetChecked(false);
        Advance(6s);
        options().UseBeers->SetChecked(true);
        options().BeerTimer->SetText(row.threshold);
        options().BeerUseTimer->SetText(row.use_timer);
        Cast(spell::kKetnansEye, row.remaining + 1);
        EXPECT_EQ(Ordered().size(), row.ordered ? 1u : 0u) << row.threshold << row.use_timer << row.remaining;
    }
}

TEST_F(BeersTest, TheLowestTickedBeerIsKnownToTheMainDisplay) {
    options().UseBeers->SetChecked(false);
    TickBeers({Focus(), options().BeerStr.get()});
    Cast(spell::kKetnansEye, 301);
    Cast(spell::kZongosFist, 201);
    Cast(3531, 101);
    Advance(1s);
    EXPECT_EQ(spells().LowBeer, 200);
    options().BeerUseTimer->SetText("");
    Advance(10s);
    EXPECT_EQ(spells().LowBeer, 200);
    options().BeerUseTimer->SetText("120");
    TickBeers({});
    Advance(1s);
    EXPECT_EQ(spells().LowBeer, 99999);
}

TEST_F(BeersTest, WhoDrinksByHandIsWarnedOnceAtTheThreshold) {
    TickBeers({Focus()});
    options().UseBeers->SetChecked(false);
    Cast(spell::kKetnansEye, 122);
    Advance(1s);
    Forget();
    Advance(1s);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Your beer spells are getting low!"));
    Forget();
    Advance(30s);
    EXPECT_THAT(Texts(), IsEmpty());

    options().UseBeers->SetChecked(true);
    Cast(spell::kKetnansEye, 121);
    Forget();
    Advance(1s);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(BeersTest, DrinkingIsHeldBackWhileTheTrackedBuffIsLowOrNone) {
    TickBeers({Focus()});
    options().BeerUseCheck->SetChecked(true);
    options().BeerUseTimer->SetText("120");
    Cast(spell::kStrengthVI, 120);
    EXPECT_THAT(Ordered(), IsEmpty());
    Cast(spell::kStrengthVI, 121);
    EXPECT_THAT(Ordered(), ElementsAre("Tusker Spit Ale"));
    LetQueueRunEmpty();
    options().SelectedSpell = "No Such Spell";
    EXPECT_THAT(Ordered(10s), IsEmpty());
    options().BeerUseTimer->SetText("0");
    EXPECT_THAT(Ordered(), ElementsAre("Tusker Spit Ale"));
}

TEST_F(BeersTest, TheHotkeyDrinksAllThatAreTickedAtOnce) {
    options().UseBeers->SetChecked(false);
    TickBeers({Focus(), options().BeerEnd.get()});
    Cast(spell::kKetnansEye, 1800);
    Advance(1s);
    Forget();
    EXPECT_TRUE(client.Hotkey("OM:DrinkBeersNow"));
    EXPECT_THAT(Texts(),
                ElementsAre(HasSubstr("Adding Tusker Spit Ale to"), HasSubstr("Adding Hunter's Stock Amber to")));
    EXPECT_EQ(Vars::EventQueue->running, 2);
    Vars::EventQueue->Clear();
    TickBeers({});
    EXPECT_TRUE(client.Hotkey("OM:DrinkBeersNow"));
    EXPECT_EQ(Vars::EventQueue->running, 2);

    LetQueueRunEmpty();
    client.RemoveObject(kAle);
    TickBeers({Focus()});
    options().UseBeers->SetChecked(true);
    Drop(spell::kKetnansEye);
    Forget();
    Advance(60s);
    EXPECT_THAT(Texts(), IsEmpty()) << "what is not carried is passed over";
}

}  // namespace
}  // namespace ombrel::test
