#include <fmt/format.h>

#include <cmath>
#include <limits>
#include <random>

#include "core/TimerHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kSlots = 10, kValue = 19, kMana = 107, kMaximum = 108, kRate = 5;
constexpr const char* kNothingFound = "<Ombrel> Warning: Could not find anything to charge your items with!";

class ManaTest : public PluginTest {
protected:
    void SetUp() override {
        LogIn();
        options().FillThreshold->SetText("50000");
        Advance(5s);
        for (auto* timer : {&Vars::TimerHandler->CoreTimer, &Vars::TimerHandler->TargetHUDRefresh}) (*timer)->Stop();
        Forget();
    }

    sim::Object& Wear(host::Id id, std::int32_t mana, std::int32_t maximum, double rate = 0.0) {
        sim::Object& item = client.object(id);
        item.Name = fmt::format("Ring {}", id);
        item.Long = {{sim::kWielderKey, client.sheet.Character}, {kSlots, 1}, {kMana, mana}, {kMaximum, maximum}};
        item.Double = {{kRate, rate}};
        return item;
    }
    sim::Object& Hold(host::Id id, const char* name, std::int32_t mana, std::int32_t value = 1000) {
        sim::Object& stone = Carry(id, name);
        stone.HasIdData = 1;
        stone.Long = {{kMana, mana}, {kValue, value}};
        return stone;
    }
    // The game answers the question about a thing.
    void Answer(host::Id id) {
        client.object(id).LastIdTime = static_cast<std::int32_t>(client.clock.universal() / 1000);
    }

    std::vector<std::string> Timers() const { return CallsOf("TimerStart name=FilterHandler"); }
    std::vector<std::string> Used() const { return CallsOf("UseItemOnTarget"); }
};

TEST_F(ManaTest, AFillAsksForStonesChargesAndWhatIsWornInThisOrder) {
    Wear(1, 0, 10);
    Hold(2, "Mana Charge", 5);
    Hold(3, "Mana Stone", 5);
    Hold(4, "Lesser Mana Stone", 5);
    Wear(5, 0, 10);
    filter().Fill_Mana(false);
    filter().Fill_Mana(false);  // one at a time
    EXPECT_THAT(CallsOf("IdentifyObject"), ElementsAre("IdentifyObject id=3", "IdentifyObject id=2",
                                                       "IdentifyObject id=1", "IdentifyObject id=5"));
    EXPECT_THAT(Timers(), ElementsAre("TimerStart name=FilterHandler.WaitforScan milliseconds=1000"));

    // The last answer decides, and one from before the question is none.
    Answer(1);
    client.object(5).LastIdTime = 1141560000 + 4;
    Advance(5s);
    EXPECT_THAT(Texts(), IsEmpty());
    Answer(5);
    Advance(1s);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Needed mana: 20"));
}

TEST_F(ManaTest, WithNothingWornNothingStarts) {
    Hold(3, "Mana Stone", 5);
    Carry(4, "Cloak").Long = {{kSlots, 0}};
    filter().Fill_Mana(false);
    EXPECT_THAT(Timers(), IsEmpty());
}

TEST_F(ManaTest, AnItemThatGoesEndsTheWait) {
    Wear(1, 0, 10);
    filter().Fill_Mana(false);
    client.RemoveObject(1);
    Advance(3s);
    EXPECT_FALSE(filter().WaitforScan->Running());
}

// What an automatic fill makes of one worn item.
TEST_F(ManaTest, OnlyWhatIsAboutToRunDryIsFilledUnasked) {
    struct Row {
        std::int32_t mana;
        double rate;
        bool filled;
    };
    const Row kRows[] = {{119, -1.0, true},    {120, -1.0, false},    {119, 1.0, true}, {0, 0.0, false},
                         {3, -1.0 / 30, true}, {4, -1.0 / 30, false}, {0, -0.001, true}};
    for (const Row& row : kRows) {
        SCOPED_TRACE(fmt::format("{} mana at {}", row.mana, row.rate));
        Forget();
        Wear(1, row.mana, 500, row.rate);
        filter().Fill_Mana(true);
        Answer(1);
        Advance(1s);
        EXPECT_EQ(Texts().size(), row.filled ? 2U : 0U);
    }
    Wear(1, 500, 500);
    Forget();
    filter().Fill_Mana(false);
    Answer(1);
    Advance(1s);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Needed mana: 0", kNothingFound)) << "by hand always";
}

TEST_F(ManaTest, AStoneIsUsedToItsEnd) {
    Wear(1, 0, 1000);
    Hold(3, "Mana Stone", 500);
    filter().FindCHarge();
    EXPECT_THAT(Timers(), ElementsAre("TimerStart name=FilterHandler.UseCharge milliseconds=1000"));
    Forget();
    Advance(3s);
    const std::string use = fmt::format("UseItemOnTarget id=3 target={}", client.sheet.Character);
    EXPECT_THAT(CallsOf("UseItem"), ElementsAre(use, use, use)) << "once a second, as long as it doesn't drain";
    EXPECT_THAT(CallsOf("IdentifyObject"),
                ElementsAre("IdentifyObject id=3", "IdentifyObject id=3", "IdentifyObject id=3"));
    Forget();
    Advance(3600s);
    EXPECT_EQ(Used().size(), 3600U);
    client.object(3).Long[kMana] = 0;
    Forget();
    Advance(5s);
    EXPECT_THAT(CallsOf("Timer"), ElementsAre("TimerStop name=FilterHandler.UseCharge"));
}

TEST_F(ManaTest, AStoneThatIsGoneOrUnknownIsNotUsed) {
    Wear(1, 0, 1000);
    Hold(3, "Mana Stone", 500);
    filter().FindCHarge();
    client.object(3).HasIdData = 0;
    Advance(1s);
    EXPECT_FALSE(filter().UseCharge->Running());
    client.object(3).HasIdData = 1;
    client.object(3).valid = false;  // the client has dropped it, the world's record stands
    filter().FindCHarge();
    Advance(1s);
    EXPECT_FALSE(filter().UseCharge->Running());
    client.object(3).valid = true;
    filter().FindCHarge();
    client.RemoveObject(3);
    Advance(1s);
    EXPECT_FALSE(filter().UseCharge->Running());
    EXPECT_THAT(Used(), IsEmpty());
}

TEST_F(ManaTest, AThresholdThatIsNoNumberIsReported) {
    Wear(1, 0, 1000);
    options().FillThreshold->SetText("cheap");
    filter().FindCHarge();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'FindCHarge' of class 'FilterHandler'"));
    EXPECT_FALSE(filter().UseCharge->Running());
}

// The choice by another road: everything that may be used, in the order of the packs with stones first, and of it what
// comes closest; charges count only where no stone stays below the need.
TEST_F(ManaTest, ThousandsOfPacksGetTheClosestStone) {
    std::mt19937 random(61);
    const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    int stones = 0, charges = 0, nothing = 0;
    for (int round = 0; round < 4000; ++round) {
        const auto worn = between(1, 4);
        std::int64_t need = 0;
        for (host::Id id = 1; id <= worn; ++id) {
            const int maximum = between(0, round % 10 == 0 ? 90000 : 900);
            const int mana = between(0, 900);
            need += maximum - mana;
            Wear(id, mana, maximum);
        }
        std::vector<host::Id> of_stones, of_charges;
        for (host::Id id = 10; id < 10 + between(0, 8); ++id) {
            const bool stone = between(0, 1) == 0;
            const sim::Object& object = Hold(id, stone ? "Mana Stone" : "Mana Charge", between(-2, 20) * 50,
                                             between(0, 2) == 0 ? 50000 : between(0, 90000));
            if (stone && object.Long.at(kMana) > 0) of_stones.push_back(id);
            if (!stone && object.Long.at(kValue) < 50000) of_charges.push_back(id);
        }
        const auto missing = [&](host::Id id) { return need - client.object(id).Long.at(kMana); };
        const auto closest = [&](const std::vector<host::Id>& ids) {
            return std::ranges::min_element(ids, {}, [&](host::Id id) { return std::abs(missing(id)); });
        };
        std::vector<host::Id> candidates = of_stones;
        std::erase_if(candidates, [&](host::Id id) { return std::abs(missing(id)) >= 54321; });
        if (candidates.empty() || missing(*closest(candidates)) <= 0) {
            candidates.insert(candidates.end(), of_charges.begin(), of_charges.end());
            std::erase_if(candidates, [&](host::Id id) { return std::abs(missing(id)) >= 54321; });
        }

        Forget();
        filter().FindCHarge();
        Advance(1s);
        SCOPED_TRACE(fmt::format("round {}, need {}", round, need));
        ASSERT_EQ(Texts()[0], fmt::format("<Ombrel> Needed mana: {}", need));
        if (candidates.empty()) {
            ++nothing;
            ASSERT_THAT(Texts(), Contains(kNothingFound));
            ASSERT_THAT(Used(), IsEmpty());
        } else {
            const host::Id best = *closest(candidates);
            ++(client.object(best).Name == "Mana Stone" ? stones : charges);
            ASSERT_THAT(Texts(), Not(Contains(kNothingFound)));
            if (client.object(best).Long.at(kMana) > 0)
                ASSERT_THAT(Used(), ElementsAre(HasSubstr(fmt::format("id={} ", best))));
            else
                ASSERT_THAT(Used(), IsEmpty());
        }
        for (host::Id id = 1; id < 20; ++id) client.RemoveObject(id);
        Advance(1s);
    }
    EXPECT_GT(std::min({stones, charges, nothing}), 200) << "each outcome comes up";
}

}  // namespace
}  // namespace ombrel::test
