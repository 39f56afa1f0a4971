#include "core/TimerHandler.h"

#include "chat/LogHandler.h"
#include "stats/Statistics.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class TimerHandlerTest : public PluginTest {
protected:
    static TimerHandler& timers() { return *Vars::TimerHandler; }

    std::vector<std::string> Running() const {
        std::vector<std::string> names;
        for (const sim::SimTimer* timer : client.clock.Running()) names.push_back(timer->name());
        return names;
    }
};

TEST_F(TimerHandlerTest, NothingTicksBeforeLogin) {
    Start();
    EXPECT_THAT(Running(), IsEmpty());

    timers().StartCoreTimer();
    client.object(7).Type = host::object_class::kCreature;
    Vars::Statistics->TotalSec = 5;
    Advance(3s);
    EXPECT_EQ(Vars::Statistics->TotalSec, 5);
}

TEST_F(TimerHandlerTest, ASecondLoginStartsTheHeartbeatAnew) {
    LogIn();
    Advance(1500ms);
    Forget();
    client.LoginComplete();
    EXPECT_THAT(CallsOf("TimerStart name=TimerHandler.CoreTimer"), SizeIs(1));
    EXPECT_THAT(CallsOf("TimerStart name=TimerHandler.TargetHUDRefresh"), SizeIs(1));
    EXPECT_THAT(CallsOf("TimerStop name=TimerHandler.CoreTimer"), SizeIs(1));
}

TEST_F(TimerHandlerTest, AnotherChangeKeepsTheXpLineUpForLonger) {
    LogIn();
    Vars::Statistics->ShowXPChange = true;
    timers().StartShowChangeTimer();
    Advance(4s);
    timers().StartShowChangeTimer();
    Advance(4900ms);
    EXPECT_TRUE(Vars::Statistics->ShowXPChange);
    Advance(100ms);
    EXPECT_FALSE(Vars::Statistics->ShowXPChange);
    EXPECT_FALSE(timers().ShowChange->Running());
}

TEST_F(TimerHandlerTest, ANewLevelIsPhotographedOnceFromTheLevelThatThePlayerSet) {
    LogIn();
    client.key_map["CaptureScreenshot"] = 44;
    options().LevelSS->SetChecked(true);
    const struct {
        std::int32_t level;
        const char* from;
        bool taken;
    } rows[] = {{41, "42", false}, {42, "42", true}, {43, "42", true}};
    for (const auto& row : rows) {
        client.sheet.Level = row.level;
        options().StartLevel->SetText(row.from);
        Forget();
        timers().StartTakeSS();
        Advance(5s);
        EXPECT_THAT(CallsOf("MapKey"), SizeIs(row.taken ? 1 : 0)) << row.level;
    }

    options().LevelSS->SetChecked(false);
    Forget();
    timers().StartTakeSS();
    Advance(5s);
    EXPECT_THAT(CallsOf("MapKey"), IsEmpty());
}

TEST_F(TimerHandlerTest, AScreenshotThatFailsIsTriedUntilItIsTaken) {
    LogIn();
    options().LevelSS->SetChecked(true);
    options().StartLevel->SetText("many");
    timers().StartTakeSS();
    Advance(2s);
    const auto report = "Error #13 occured in 'TakeSS' of class 'TimerHandler'";
    EXPECT_THAT(TakeReports(), ElementsAre(report, report));

    options().StartLevel->SetText("1");
    Forget();
    Advance(5s);
    EXPECT_THAT(CallsOf("MapKey"), SizeIs(1));
    EXPECT_THAT(TakeReports(), IsEmpty());
}

TEST_F(TimerHandlerTest, ACreatureThatIsSelectedIsAskedAboutAgain) {
    client.object(7).Name = "Drudge";
    client.object(7).Type = host::object_class::kCreature;
    client.object(8).Name = "Lever";
    LogIn();
    client.ObjectSelected(7);
    Forget();
    Advance(4s);
    EXPECT_THAT(CallsOf("IdentifyObject"), ElementsAre("IdentifyObject id=7", "IdentifyObject id=7"));

    client.object(7).Type = 24;
    for (const host::Id id : {7, 8}) {
        client.ObjectSelected(id);
        Forget();
        Advance(4s);
        EXPECT_THAT(CallsOf("IdentifyObject"), IsEmpty()) << "neither a player nor a thing";
    }
}

TEST_F(TimerHandlerTest, FriendsAreAskedForThreeSecondsAfterLogin) {
    LogIn();
    const std::int32_t row = options().FindName("Show Friends Online on Login", "ChatOptions");
    ASSERT_GE(row, 0);
    options().ChatOptions->SetData(0, row, true);
    Advance(2999ms);
    EXPECT_THAT(CallsOf("InvokeChatParser"), IsEmpty());
    Advance(10s);
    EXPECT_THAT(CallsOf("InvokeChatParser"), ElementsAre("InvokeChatParser text=/friends online"));
    EXPECT_TRUE(filter().FriendsCheck);
}

TEST_F(TimerHandlerTest, AFailedTickIsReportedAndTheNextOneComes) {
    LogIn();
    Vars::LogHandler.Release();
    Advance(2s);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #91 occured in 'CoreTimer_Timeout' of class 'TimerHandler'",
                                           "Error #91 occured in 'CoreTimer_Timeout' of class 'TimerHandler'"));
}

TEST_F(TimerHandlerTest, ATimerThatCannotBeMadeLeavesTheOthers) {
    FailNext("PluginSite.CreateTimer");  // the first is FilterHandler's
    Start();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'Class_Initialize' of class 'FilterHandler'"));
    EXPECT_FALSE(filter().WaitforScan);
    EXPECT_TRUE(filter().UseCharge);
    EXPECT_TRUE(timers().CoreTimer);
}

TEST_F(TimerHandlerTest, TerminationStopsAllTimersInTheirOrder) {
    LogIn();
    Forget();
    client.Terminate();
    EXPECT_THAT(std::vector<std::string>(CallsOf("TimerStop name=TimerHandler.")),
                ElementsAre("TimerStop name=TimerHandler.CoreTimer", "TimerStop name=TimerHandler.MainHUDTime",
                            "TimerStop name=TimerHandler.ShowChange", "TimerStop name=TimerHandler.TakeSS",
                            "TimerStop name=TimerHandler.TargetHUDRefresh", "TimerStop name=TimerHandler.StartupDelay",
                            "TimerStop name=TimerHandler.SellingPeas"));
    Forget();
    Advance(10s);
    EXPECT_THAT(Running(), IsEmpty());
    EXPECT_THAT(calls, IsEmpty());
}

}  // namespace
}  // namespace ombrel::test
