#include "automation/EventQueue.h"

#include <fmt/format.h>

#include "tests/spells/SpellTest.h"

namespace ombrel::test {
namespace {

constexpr host::Id kTool = 1, kPea = 2, kAle = 3;
constexpr host::Id kSelf = 0x50000A01;
constexpr const char* kLink = " to the event queue. <Tell:IIDString:463072:[Ombrel]>Run queued events.<\\Tell>";
constexpr const char* kPeace = "<Ombrel> Please enter peace mode to continue handling the queued events.";

class EventQueueTest : public SpellTest {
protected:
    void SetUp() override {
        Carry(kTool, "Splitting Tool");
        Carry(kPea, "Lead Pea").Long[host::key::kStackCount] = 4;
        Carry(kAle, "Tusker Spit Ale").Long[host::key::kStackCount] = 10;
        SpellTest::SetUp();
    }

    static EventQueue& queue() { return *Vars::EventQueue; }
    static void Drink() { queue().Add(EventQueue::kUseStackOnItem, kAle, kSelf, 10); }
    static void Split() { queue().Add(EventQueue::kUseItemOnStack, kTool, kPea, 4); }

    void StackIs(host::Id id, std::int32_t count) { client.object(id).Long[host::key::kStackCount] = count; }

    // What the next beats apply.
    std::vector<std::string> Applied(int beats = 1) {
        Forget();
        Advance(beats * 200ms);
        return CallsOf("UseItemOnTarget");
    }

    std::int32_t Beat() const {
        for (const sim::SimTimer* timer : client.clock.Running())
            if (timer->name() == "EventQueue.EventTimer") return timer->interval();
        return 0;
    }

    const std::string splitting = "UseItemOnTarget id=1 target=2";
    const std::string drinking = "UseItemOnTarget id=3 target=1342179841";
};

TEST_F(EventQueueTest, WhatIsAddedIsAnnouncedOnceWithALink) {
    Split();
    Drink();
    queue().Add(EventQueue::kUseItem, kTool, kPea, 0);
    StackIs(kPea, 3);
    queue().Add(EventQueue::kUseItemOnStack, kTool, kPea, 3);
    EXPECT_THAT(Texts(), ElementsAre(std::string("<Ombrel> Adding Lead Pea") + kLink,
                                     std::string("<Ombrel> Adding Tusker Spit Ale") + kLink,
                                     std::string("<Ombrel> Adding Splitting Tool") + kLink));
}

TEST_F(EventQueueTest, EntriesWaitForTheLinkTheCommandOrTheHotkey) {
    const std::function<void()> starts[] = {
        [&] { EXPECT_TRUE(client.ChatClick("[Ombrel]", 463072)); },
        [&] { EXPECT_TRUE(client.ChatParser("/m runevents")); },
        [&] { EXPECT_TRUE(client.Hotkey("OM:RunEvents")); },
    };
    for (const auto& start : starts) {
        Split();
        EXPECT_EQ(queue().running, 1);
        EXPECT_FALSE(client.ChatClick("[Ombrel]", 463071));
        EXPECT_FALSE(client.ChatClick("[ombrel]", 463072));
        EXPECT_THAT(Applied(100), IsEmpty());
        start();
        EXPECT_EQ(queue().running, 2);
        EXPECT_EQ(Beat(), 200);
        EXPECT_THAT(Applied(), ElementsAre(splitting));
        EXPECT_TRUE(client.ChatParser("/m clearevents"));
        EXPECT_THAT(Texts(), Contains("<Ombrel> Event Queue Cleared"));
        EXPECT_EQ(queue().running, 0);
        EXPECT_EQ(Beat(), 200);
        Advance(400ms);  // the result of the last is waited for, then the queue is empty
        EXPECT_EQ(Beat(), 0);
    }
}

TEST_F(EventQueueTest, WithAutorunAnEntryStartsTheQueue) {
    queue().autorun = true;
    Split();
    EXPECT_EQ(queue().running, 2);
    EXPECT_THAT(Applied(), ElementsAre(splitting));
}

TEST_F(EventQueueTest, AnEntryIsAppliedAgainUntilItsEffectShows) {
    Drink();
    Split();
    queue().Run();
    EXPECT_THAT(Applied(1), ElementsAre(drinking));
    EXPECT_THAT(Applied(1), IsEmpty());  // the game is asked whether it has done with the last
    EXPECT_THAT(Applied(1), ElementsAre(drinking));
    client.hooks.BusyState = 1;
    EXPECT_THAT(Applied(20), IsEmpty());
    client.hooks.BusyState = 0;
    StackIs(kAle, 9);
    EXPECT_THAT(Applied(2), IsEmpty());  // the wait, and the removal
    EXPECT_THAT(Applied(1), ElementsAre(splitting));
    client.RemoveObject(kPea);
    EXPECT_THAT(Applied(2), IsEmpty());
    EXPECT_EQ(queue().running, 2);
    EXPECT_THAT(Applied(1), IsEmpty());
    EXPECT_EQ(queue().running, 0);
    EXPECT_EQ(Beat(), 0);
}

TEST_F(EventQueueTest, AnEntryWhoseEffectHasShownIsRemovedWithoutUse) {
    const struct {
        std::int32_t type;
        host::Id arg1, arg2;
        std::int32_t arg3;
        bool applied;
    } rows[] = {
        {1, kTool, kPea, 0, true},  {1, kTool, 99, 0, false},   {1, 99, kPea, 0, false},    {1, kTool, kPea, 77, true},
        {2, kTool, kPea, 4, true},  {2, kTool, kPea, 3, false}, {2, 99, kPea, 4, false},    {2, kTool, 99, 4, false},
        {2, kAle, kPea, 10, false}, {3, kAle, kSelf, 10, true}, {3, kAle, kSelf, 9, false}, {3, 99, kSelf, 10, false},
        {3, 99, kSelf, -1, false},  {3, kAle, 99, 10, false},
    };
    for (const auto& row : rows) {
        queue().Add(row.type, row.arg1, row.arg2, row.arg3);
        TakeReports();  // a thing that is gone has no name
        queue().Run();
        EXPECT_THAT(Applied(), SizeIs(row.applied ? 1 : 0)) << row.type << ' ' << row.arg1 << ' ' << row.arg2;
        if (row.applied) queue().Clear();
        Advance(400ms);
        EXPECT_EQ(queue().running, 0);
    }
}

TEST_F(EventQueueTest, AnUnknownKindIsQueuedInSilenceAndStaysAtTheHead) {
    queue().Add(4, kTool, kPea, 0);
    EXPECT_THAT(Texts(), IsEmpty());
    Split();
    queue().Run();
    EXPECT_THAT(Applied(50), IsEmpty());
    EXPECT_EQ(queue().running, 2);
    queue().Clear();
}

TEST_F(EventQueueTest, EachWaitForPeaceIsToldOfOnce) {
    client.hooks.CombatMode = 2;
    Drink();
    Forget();
    queue().Run();
    Advance(20s);
    EXPECT_THAT(Texts(), ElementsAre(kPeace));
    client.hooks.CombatMode = 1;
    EXPECT_THAT(Applied(1), ElementsAre(drinking));
    client.hooks.CombatMode = 8;
    EXPECT_THAT(Applied(100), IsEmpty());
    EXPECT_THAT(Texts(), IsEmpty());  // the last action is still under way
    client.hooks.CombatMode = 1;
    Advance(200ms);
    client.hooks.BusyState = 3;
    Forget();
    Advance(20s);
    EXPECT_THAT(Texts(), ElementsAre(kPeace));
}

TEST_F(EventQueueTest, AnEmptyQueueWatchesABusyCharacterAtASlowerBeat) {
    client.hooks.BusyState = 1;
    queue().Run();
    Advance(200ms);
    EXPECT_EQ(queue().running, 2);
    EXPECT_EQ(Beat(), 3000);
    Forget();
    Advance(2999ms);
    EXPECT_THAT(CallsOf("TimerStart name=EventQueue"), IsEmpty());
    client.hooks.BusyState = 0;
    Advance(1ms);
    EXPECT_EQ(queue().running, 0);
    EXPECT_THAT(CallsOf("TimerStop name=EventQueue"), SizeIs(1));
}

TEST_F(EventQueueTest, ClearDuringAWaitLetsTheFirstBeatAskForTheResult) {
    Drink();
    queue().Run();
    Advance(200ms);
    queue().Clear();
    client.hooks.BusyState = 1;
    Advance(600ms);
    EXPECT_EQ(Beat(), 200);  // still the wait, not the empty queue
    client.hooks.BusyState = 0;
    Advance(200ms);
    EXPECT_EQ(Beat(), 200);
    Advance(200ms);
    EXPECT_EQ(Beat(), 0);
}

TEST_F(EventQueueTest, NamesBecomeItemsOrAWarning) {
    queue().AddByName(2, "Splitting Tool", "Lead Pea");
    queue().AddByName(3, "Tusker Spit Ale", "Aldra");
    queue().AddByName(1, "Splitting Tool", "Tusker Spit Ale");
    EXPECT_THAT(Texts(), SizeIs(3));
    Forget();
    queue().AddByName(2, "Cleaver", "Lead Pea");
    queue().AddByName(2, "Splitting Tool", "Iron Pea");
    queue().AddByName(2, "Cleaver", "Iron Pea");
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Warning: You have no Cleaver", "<Ombrel> Warning: You have no Iron Pea",
                                     "<Ombrel> Warning: You have no Cleaver"));
    queue().Run();
    EXPECT_THAT(Applied(1), ElementsAre(splitting));
    StackIs(kPea, 3);
    EXPECT_THAT(Applied(3), ElementsAre(drinking));
    StackIs(kAle, 9);
    EXPECT_THAT(Applied(3), ElementsAre("UseItemOnTarget id=1 target=3"));
}

TEST_F(EventQueueTest, DebugLinesTellEachStep) {
    Vars::DebugMode = true;
    Split();
    queue().Run();
    Advance(400ms);
    StackIs(kPea, 3);
    Advance(200ms);
    queue().Clear();
    Vars::DebugMode = false;
    std::vector<std::string> steps;
    for (const std::string& text : Texts())
        if (text.starts_with("<Ombrel-Debug> ")) steps.push_back(text.substr(15));
    EXPECT_THAT(steps, ElementsAre("Adding Event: 2 1 2 4", "Event Queue Run", "Handling EVENT_USE_ITEM_ON_STACK",
                                   "Ready Check: True 1 0 0", "Applying Item", "Ready Check: True 1 0 0",
                                   "Handling EVENT_USE_ITEM_ON_STACK", "Removing 2", "Event Queue Clear"));
}

TEST_F(EventQueueTest, AQueueThatNobodyWorksOffIsBounded) {
    for (host::Id id = 0; id < 10'002; ++id) queue().Add(9, kTool, id, 0);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> The event queue is full: its oldest events are lost."));
}

TEST_F(EventQueueTest, ATickThatFailsIsReportedAndTheNextGoesOn) {
    Drink();
    queue().Run();
    const struct {
        const char* operation;
        const char* report;
    } rows[] = {{"ACHooks.CombatMode", "'GetCombatMode' of class 'FilterHandler'"},
                {"ACHooks.IsValidObject", "'GetItemStackCount' of class 'FilterHandler'"}};
    for (const auto& row : rows) {
        FailNext(row.operation);
        Advance(200ms);
        EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr(row.report)));
    }
}

}  // namespace
}  // namespace ombrel::test
