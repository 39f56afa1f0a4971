// Experience as the player reads it: in the options view, in chat and in reports.
#include "stats/Statistics.h"

#include "hud/HUDMainHandler.h"
#include "stats/NetEchoHandler.h"
#include "tests/support/Messages.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class StatisticsTest : public PluginTest {
protected:
    // A character on its way from 1,167,788,081 to 1,226,755,584.
    void SetUp() override {
        client.sheet.Level = 96;
        client.sheet.Followers = 2;
        client.sheet.AllegianceSize = 31;
        Start();
        ServerSays(client, LoginSnapshot(1'200'000'000, 1'234'567));
        client.LoginComplete();
        Tell({"Show All XP Changes"});
        options().AllegChange->SetChecked(true);
        Forget();
    }

    static Statistics& stats() { return *Vars::Statistics; }

    // Switches these rows of the chat options on, and all others off.
    static void Tell(std::initializer_list<std::string_view> names) {
        host::List& list = *options().ChatOptions;
        for (std::int32_t row = 0; row < list.Count(); ++row) list.SetData(0, row, false);
        for (const std::string_view name : names) list.SetData(0, options().FindName(name, "ChatOptions"), true);
    }

    void Reach(std::uint64_t total, std::uint64_t unassigned) {
        ServerSays(client, Quality(kTotalXP, total));
        ServerSays(client, Quality(kUnassignedXP, unassigned));
    }

    // More experience, of which some part is unassigned.
    void Gain(std::uint64_t total, std::uint64_t unassigned) {
        const NetEchoHandler& server = *Vars::NetEchoHandler;
        Reach(static_cast<std::uint64_t>(server.TotalXP) + total,
              static_cast<std::uint64_t>(server.UnassignedXP) + unassigned);
    }
};

TEST_F(StatisticsTest, ALevelBeginsAndEndsWhereTheGameSays) {
    const struct {
        std::int32_t level;
        double begins, ends;
    } rows[] = {
        {1, 0, 1000},
        {2, 1000, 2777},
        {3, 2777, 5697},
        {42, 25'481'915, 28'310'688},
        {97, 1'226'755'584, 1'288'081'441},
        {125, 4'125'476'914, 4'286'609'098},  // up
        {126, 4'286'609'097, 4'452'737'184},  // to the nearest
        {127, 4'452'737'184, 4'623'976'457},
        {275, 191'226'310'247, 194'665'544'181},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.level);
        client.sheet.Level = row.level;
        stats().Level();
        EXPECT_EQ(stats().XPAtThisLevel, row.begins);
        EXPECT_EQ(stats().XPAtNextLevel, row.ends);
        EXPECT_EQ(stats().XPForThisLevel, row.ends - row.begins);
        EXPECT_EQ(stats().XPToNextLevel, row.ends - 1'200'000'000);
        EXPECT_EQ(options().LevelNum->Text(), std::to_string(row.level));

        stats().XPAtThisLevel = stats().XPAtNextLevel = 0;
        stats().InitStatistics();
        EXPECT_EQ(stats().XPAtThisLevel, row.begins);
        EXPECT_EQ(stats().XPAtNextLevel, row.ends);
    }
}

TEST_F(StatisticsTest, LoginShowsTheCharacter) {
    EXPECT_EQ(options().CharName->Text(), "Aldra");
    EXPECT_EQ(options().LevelNum->Text(), "96");
    EXPECT_EQ(options().XPTotal->Text(), "1,200,000,000");
    EXPECT_EQ(options().XPUn->Text(), "1,234,567");
    EXPECT_EQ(options().XPNext->Text(), "26,755,584");
    EXPECT_EQ(stats().BarPercent, 54.6);
    EXPECT_EQ(options().XPBar->Value(), 55);
    for (const auto& text : {options().TotalXP, options().TotalXPHour, options().TotalXPMin, options().XPChange,
                             options().XP5Min, options().XPSession, options().XPHour, options().XPMin, options().Kills})
        EXPECT_EQ(text->Text(), "0");
    EXPECT_EQ(options().SessionTime->Text(), "00:00:00");
    EXPECT_EQ(stats().TimetoLevel(), "Infinity");
    EXPECT_EQ(stats().KillsLevel, 0);
    EXPECT_THAT(stats().MinuteSamples, ElementsAre(0, 0, 0, 0, 0));
}

TEST_F(StatisticsTest, AKillIsEstimatedAndToldAndRated) {
    Advance(10s);
    Gain(8500, 8500);
    EXPECT_EQ(stats().XPTotalChange, 8500);
    EXPECT_EQ(stats().XPUnChange, 8500);
    EXPECT_EQ(stats().MonsterXP, 8500);
    EXPECT_EQ(stats().KillsLevel, 3147);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> XP: 8,500."));
    EXPECT_EQ(options().XPChange->Text(), "8,500");
    EXPECT_EQ(options().XPTotal->Text(), "1,200,008,500");
    EXPECT_EQ(options().XPUn->Text(), "1,243,067");
    EXPECT_EQ(options().XPNext->Text(), "26,747,084");
    EXPECT_EQ(options().XPSession->Text(), "8,500");
    EXPECT_EQ(options().TotalXP->Text(), "8,500");
    EXPECT_EQ(options().XPMin->Text(), "51,000");
    EXPECT_EQ(options().XPHour->Text(), "3,060,000");
    EXPECT_EQ(options().TotalXPMin->Text(), "51,000");
    EXPECT_EQ(options().TotalXPHour->Text(), "3,060,000");
    EXPECT_EQ(stats().TimeToLevelText, "8 Hours, 44 Minutes, 27 Seconds");

    Advance(10s);
    EXPECT_EQ(options().SessionTime->Text(), "00:00:20");
    EXPECT_EQ(options().TotalTime->Text(), "00:00:20");
    EXPECT_EQ(options().XPHour->Text(), "1,530,000");
    EXPECT_EQ(stats().TimeToLevelText, "8 Hours, 44 Minutes, 27 Seconds");
    EXPECT_EQ(stats().TimetoLevel(), "17 Hours, 28 Minutes, 54 Seconds");
}

TEST_F(StatisticsTest, ATenthOfWhatSkillsTookIsTakenOffTheKill) {
    const struct {
        std::uint64_t total, unassigned;
        double monster, kills;
    } rows[] = {
        {100, 100, 100, 267'555}, {110, 100, 99, 270'257},  // ten went to a skill
        {111, 100, 98, 273'013},                            // a tenth of eleven, rounded up
        {1000, 0, 0, -1},                                   // all of it
        {1000, 10, 0, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.total);
        Gain(row.total, row.unassigned);
        EXPECT_EQ(stats().MonsterXP, row.monster);
        EXPECT_EQ(stats().KillsLevel, row.kills);
    }
}

TEST_F(StatisticsTest, TheLineTellsWhatThePlayerAskedFor) {
    Tell({"Show All XP Changes", "Add XP/Hr", "Add XP to Level", "Add Time to Level"});
    Advance(10s);
    Gain(8500, 8500);
    Gain(110, 100);
    Tell({"Show All XP Changes", "Add XP/Hr"});
    Gain(0, 5);
    Gain(500, 500);
    Tell({"Add XP/Hr"});
    Gain(500, 500);
    EXPECT_THAT(
        Texts(),
        ElementsAre("<Ombrel> XP: 8,500. [ 3,060,000 XP/Hr ] [ 26,747,084 XP to level ]"
                    " [ 8 Hours, 44 Minutes, 27 Seconds to level ]",
                    "<Ombrel> XP: 110 (Unassigned: 100, Skill: 10).  [ 3,099,600 XP/Hr ] [ 26,746,974 XP to level ]"
                    " [ 8 Hours, 37 Minutes, 45 Seconds to level ]",
                    "<Ombrel> XP: 500. [ 3,279,600 XP/Hr ]"));
    EXPECT_EQ(options().XPChange->Text(), "500");
}

TEST_F(StatisticsTest, SmallGainsAreFilteredFromChatAlone) {
    stats().XPChangeOn = true;
    options().XPFilter->SetChecked(true);
    options().XPFilterThreshold->SetText("1000");
    Gain(999, 999);
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(options().XPTotal->Text(), "1,200,000,999");
    EXPECT_EQ(options().XPChange->Text(), "0");
    EXPECT_FALSE(stats().ShowXPChange);
    Gain(1000, 1000);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> XP: 1,000."));
    EXPECT_TRUE(stats().ShowXPChange);
    options().XPFilter->SetChecked(false);
    Gain(1, 1);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> XP: 1,000.", "<Ombrel> XP: 1."));

    options().XPFilterThreshold->SetText("few");
    Gain(1, 1);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'ChangeXP' of class 'Statistics'"));
    EXPECT_EQ(options().XPTotal->Text(), "1,200,002,001");
}

TEST_F(StatisticsTest, SpentExperienceShowsAtOnceAndIsNotTold) {
    Advance(5s);
    Gain(8500, 8500);
    Forget();
    ServerSays(client, Quality(kUnassignedXP, 1'000'000));
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(options().XPUn->Text(), "1,000,000");
    EXPECT_EQ(stats().XPUnChange, -243'067);
    EXPECT_EQ(stats().XPTotalChange, 0);
    EXPECT_EQ(stats().MonsterXP, 8500) << "the last kill's";

    // The pair that follows tells of what is new alone.
    Gain(300, 300);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> XP: 300."));
}

TEST_F(StatisticsTest, AGainOfOverTenTimesTheSessionBeginsAnew) {
    options().XPAuto->SetChecked(true);
    Gain(100, 100);
    Advance(30s);
    stats().IncKills();
    Gain(1000, 1000);
    EXPECT_EQ(options().XPSession->Text(), "1,100") << "ten times is not over";
    Gain(11'001, 11'001);
    EXPECT_EQ(options().XPSession->Text(), "11,001");
    EXPECT_EQ(options().Kills->Text(), "0");
    EXPECT_EQ(options().SessionTime->Text(), "00:00:00");
    EXPECT_EQ(options().TotalXP->Text(), "12,101");

    options().XPAuto->SetChecked(false);
    Gain(1'000'000, 1'000'000);
    EXPECT_EQ(options().XPSession->Text(), "1,011,001");
}

TEST_F(StatisticsTest, ANewSessionForgetsTheOldOneButNotTheEvening) {
    Advance(10s);
    Gain(8500, 8500);
    stats().IncKills();
    stats().ResetSession();
    for (const auto& text : {options().XPSession, options().XPHour, options().XPMin, options().Kills})
        EXPECT_EQ(text->Text(), "0");
    EXPECT_EQ(options().SessionTime->Text(), "00:00:00");
    EXPECT_EQ(stats().TimetoLevel(), "Infinity");
    EXPECT_EQ(stats().KillsLevel, 0);
    EXPECT_EQ(stats().XPTotalChange, 0);

    Advance(10s);
    EXPECT_EQ(options().SessionTime->Text(), "00:00:10");
    EXPECT_EQ(options().XPHour->Text(), "0") << "a rate stands while nothing is earned";
    EXPECT_EQ(options().TotalXPHour->Text(), "1,530,000");
    EXPECT_EQ(options().TotalTime->Text(), "00:00:20");
}

TEST_F(StatisticsTest, TheAverageCountsTheLastFiveMinutes) {
    Advance(10s);
    Gain(8500, 8500);
    EXPECT_EQ(options().XP5Min->Text(), "0");
    Advance(50s);
    EXPECT_EQ(options().XP5Min->Text(), "102,000");
    Advance(30s);
    Gain(500, 500);
    Advance(30s);
    EXPECT_EQ(options().XP5Min->Text(), "108,000");
    Advance(4min);
    EXPECT_EQ(options().XP5Min->Text(), "6,000") << "the first kill is too old";
    Advance(1min);
    EXPECT_EQ(options().XP5Min->Text(), "0");
}

TEST_F(StatisticsTest, ASecondLoginKeepsTenSamplesOfWhichFiveCount) {
    Advance(10s);
    Gain(8500, 8500);
    Advance(50s);
    client.LoginComplete();
    EXPECT_THAT(stats().MinuteSamples, ElementsAre(0, 0, 0, 0, 8500, 0, 0, 0, 0, 0));
    EXPECT_EQ(options().TotalXP->Text(), "0");
    Gain(200, 200);
    Advance(1min);
    EXPECT_THAT(stats().MinuteSamples, ElementsAre(0, 0, 0, 8500, 0, 0, 0, 0, 0, 200));
    EXPECT_EQ(options().XP5Min->Text(), "102,000");
    Advance(5min);
    EXPECT_EQ(options().XP5Min->Text(), "2,400") << "five minutes late";
}

TEST_F(StatisticsTest, ANewLevelMovesTheBar) {
    Tell({});
    Advance(1s);
    Reach(1'226'755'600, 27'990'167);
    EXPECT_EQ(options().XPNext->Text(), "-16");
    EXPECT_EQ(options().XPBar->Value(), 100);
    client.sheet.Level = 97;
    client.ChatText("You are now level 97!\nYou have 27,990,167 experience points available.\n", 13, 1);
    EXPECT_EQ(options().LevelNum->Text(), "97");
    EXPECT_EQ(options().XPNext->Text(), "61,325,841");
    EXPECT_EQ(stats().BarPercent, 0);
    EXPECT_EQ(options().XPBar->Value(), 0);
    EXPECT_THAT(CallsOf("TimerStart name=TimerHandler.TakeSS"),
                ElementsAre("TimerStart name=TimerHandler.TakeSS milliseconds=1000"));

    client.sheet.Level = 98;
    stats().Level();
    EXPECT_LT(stats().BarPercent, 0);
    EXPECT_EQ(options().XPBar->Value(), 0);
}

TEST_F(StatisticsTest, FollowersWhoComeAndGoAreTold) {
    client.sheet.Followers = 3;
    client.sheet.AllegianceSize = 32;
    Advance(2s);
    client.sheet.AllegianceSize = 30;
    Advance(2s);
    client.sheet.Followers = 1;
    client.sheet.AllegianceSize = 28;
    Advance(2s);
    options().AllegChange->SetChecked(false);
    client.sheet.AllegianceSize = 5;
    Advance(2s);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Number of followers under you has changed: 3(1), Guild:31",
                                     "<Ombrel> Number of followers in the monarchy has changed: 29(-2)",
                                     "<Ombrel> Number of followers under you has changed: 1(-2), Guild:27"));
}

TEST_F(StatisticsTest, DiagnosticsTellTheFiguresOfTheEstimate) {
    Vars::XPDebug = true;
    Gain(110, 100);
    Gain(0, 7);
    Vars::XPDebug = false;
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Monster XP: 99 XPChange: 110 XPUnChange: 100",
                                     "<Ombrel> XP: 110 (Unassigned: 100, Skill: 10). "));
}

using StatisticsBeforeLogin = PluginTest;

TEST_F(StatisticsBeforeLogin, NothingIsCounted) {
    Start();
    ServerSays(client, Quality(kTotalXP, 500));
    ServerSays(client, Quality(kUnassignedXP, 400));
    EXPECT_EQ(Vars::Statistics->CharTotalXP, 0);
    EXPECT_THAT(lines, IsEmpty());
}

// Experience in the very second of a login leaves the overall rate without a divisor, for that second.
TEST_F(StatisticsTest, ARateOverNoTimeIsReportedOnce) {
    stats().SessionSec = 3;
    Gain(100, 100);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #11 occured in 'UpdateXP' of class 'Statistics'"));
    EXPECT_THAT(Texts(), Contains("<Ombrel> XP: 100.")) << "what follows still happens";
    Advance(2s);
    EXPECT_EQ(options().TotalXPMin->Text(), "3,000");
}

}  // namespace
}  // namespace ombrel::test
