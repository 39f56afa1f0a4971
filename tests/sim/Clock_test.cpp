#include "adapters/sim/Clock.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/sim/Calls.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

using namespace std::chrono_literals;

class ClockTest : public testing::Test {
protected:
    std::unique_ptr<SimTimer> Timer(const std::string& name) {
        auto timer = std::make_unique<SimTimer>(clock, calls, name);
        timer->Timeout = [this, name] { fired.push_back(name + " " + std::to_string(clock.now())); };
        return timer;
    }

    Calls calls;
    Clock clock;
    std::vector<std::string> fired;
};

TEST_F(ClockTest, TimersFireInTheOrderOfTheirMomentsUpToTheLastOne) {
    const auto slow = Timer("slow"), quick = Timer("quick");
    slow->Start(1000);
    quick->Start(400);
    clock.AdvanceTo(1000);
    EXPECT_THAT(fired, ElementsAre("quick 400", "quick 800", "slow 1000"));
    EXPECT_EQ(clock.now(), 1000);
}

TEST_F(ClockTest, TimersOfOneMomentFireInTheOrderOfTheirLastStart) {
    const auto first = Timer("first"), second = Timer("second");
    first->Start(500);
    second->Start(500);
    first->Start(500);
    clock.Advance(1s);
    EXPECT_THAT(fired, ElementsAre("second 500", "first 500", "second 1000", "first 1000"));
    EXPECT_THAT(clock.Running(), ElementsAre(second.get(), first.get()));
}

TEST_F(ClockTest, ATimeoutMayStopRestartOrEndTimers) {
    auto stopped = Timer("stopped"), restarted = Timer("restarted"), ended = Timer("ended");
    auto victim = Timer("victim");
    stopped->Timeout = [&] { stopped->Stop(); };
    restarted->Timeout = [&] {
        fired.push_back("restarted " + std::to_string(clock.now()));
        restarted->Start(700);
    };
    // It goes while its own slot is under way: what the slot holds must last until its end.
    ended->Timeout = [&ended, &victim, &log = fired, name = std::string("a name too long for any small buffer")] {
        victim.reset();
        ended.reset();
        log.push_back(name);
    };
    for (SimTimer* timer : {stopped.get(), restarted.get(), ended.get(), victim.get()}) timer->Start(100);
    clock.Advance(1s);
    EXPECT_THAT(fired, ElementsAre("restarted 100", "a name too long for any small buffer", "restarted 800"));
    EXPECT_THAT(clock.Running(), ElementsAre(restarted.get()));
}

TEST_F(ClockTest, AfterAHangEachTimerThatFellDueFiresOnceAndKeepsItsRhythm) {
    const auto slow = Timer("slow"), quick = Timer("quick"), idle = Timer("idle");
    slow->Start(4000);
    quick->Start(1000);
    idle->Start(9000);
    clock.Stall(5500ms);
    EXPECT_THAT(fired, ElementsAre("quick 5500", "slow 5500"));
    fired.clear();
    clock.Advance(500ms);
    EXPECT_THAT(fired, ElementsAre("quick 6000"));
}

TEST_F(ClockTest, AWaitOfNothingIsAMillisecond) {
    const auto none = Timer("none"), negative = Timer("negative");
    none->Start(0);
    negative->Start(-5);
    clock.Advance(2ms);
    EXPECT_THAT(fired, ElementsAre("none 1", "negative 1", "none 2", "negative 2"));
}

TEST_F(ClockTest, AJumpOfThePlayersClockRunsNoTimer) {
    const auto timer = Timer("timer");
    timer->Start(1000);
    clock.SetEpoch(1'000'000);
    clock.Advance(600ms);
    clock.Shift(-3'600'000);
    EXPECT_THAT(fired, IsEmpty());
    EXPECT_EQ(clock.now(), 600);
    EXPECT_EQ(clock.universal(), 1'000'000 + 600 - 3'600'000);
    EXPECT_THROW(clock.AdvanceTo(599), std::invalid_argument);
}

TEST_F(ClockTest, ATimerMayOutliveItsClock) {
    auto brief = std::make_unique<Clock>();
    SimTimer timer(*brief, calls, "timer");
    brief.reset();
}

TEST_F(ClockTest, ATimerWhoseStartFailsDoesNotRun) {
    const auto timer = Timer("timer");
    calls.Fail("Timer.Start"_op, 1, 5, "");
    EXPECT_ANY_THROW(timer->Start(10));
    EXPECT_FALSE(timer->Running());
}

}  // namespace
}  // namespace ombrel::sim
