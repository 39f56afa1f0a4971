#include "core/APluginCore.h"

#include "core/TimerHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

using APluginCoreTest = PluginTest;

TEST_F(APluginCoreTest, ScreenAndFileColoursDifferInAFewRowsOnPurpose) {
    Start();
    const struct {
        std::size_t row;
        std::int32_t screen;
        const char* html;
    } rows[] = {
        {0, 0x7EFF7F, "#7FFF7E"}, {2, 0xFFFFFF, "#FFFFFF"},  {4, 0x47BBBB, "#999647"},
        {6, 0x4E54FF, "#B0342E"}, {22, 0x727BDD, "#B35B52"}, {31, 0x3AEBEB, "#EBEB3A"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Vars::ChatScreenColors[row.row], row.screen) << row.row;
        EXPECT_EQ(Vars::ChatHtmlColors[row.row], row.html) << row.row;
    }
    ASSERT_EQ(Vars::FontNames.size(), 7u);
    EXPECT_EQ(Vars::FontNames.begin()->first, "Arial");
    EXPECT_EQ(Vars::FontNames.at("Franklin"), "Franklin Gothic Medium");
}

TEST_F(APluginCoreTest, ASecondStartBeginsClean) {
    LogIn();
    Vars::DebugMode = Vars::HudFailed = Vars::XPDebug = true;
    Vars::LastKillText = "You slay the drudge!";
    Forget();
    client.Initialize();
    EXPECT_THAT(lines, IsEmpty());
    Vars::DebugSilent = true;
    client.Initialize();
    EXPECT_FALSE(Vars::Loaded || Vars::DebugMode || Vars::DebugSilent || Vars::HudFailed || Vars::XPDebug);
    EXPECT_EQ(Vars::SettingsState, 0);
    EXPECT_EQ(Vars::LastKillText, "If you are reading this then you should know: I own.");
    EXPECT_FALSE(Vars::DHSHandler);
    EXPECT_THAT(client.clock.Running(), IsEmpty());

    client.Terminate();
    client.Initialize();
    LogIn();
    EXPECT_TRUE(Vars::Loaded);
}

TEST_F(APluginCoreTest, TerminationReleasesAllButTheHotkeys) {
    LogIn();
    client.Terminate();
    EXPECT_FALSE(Vars::TimerHandler || Vars::FilterHandler || Vars::ControlHandler || Vars::HUDMainHandler);
    EXPECT_FALSE(Vars::Decal || Vars::Site);
    EXPECT_TRUE(Vars::DHSHandler);
    EXPECT_TRUE(Vars::FontNames.empty());
    client.plugin()->AddChatText("Anybody there?", 2, 1);
    client.Terminate();
}

TEST_F(APluginCoreTest, AnEndWithoutTerminationReleasesEverything) {
    Start();
    host::PluginSite& site = *Vars::Site;
    {
        APluginCore other(*Vars::Platform);
        other.IPlugin2_Initialize(site);
        client.LoginComplete();
        EXPECT_TRUE(Vars::DHSHandler);
    }
    EXPECT_FALSE(Vars::TimerHandler || Vars::FilterHandler || Vars::DHSHandler || Vars::Platform);
    EXPECT_THAT(client.clock.Running(), IsEmpty());
}

TEST_F(APluginCoreTest, AnOlderPluginLeavesTheNewerOnesHandlersAlone) {
    Start();
    host::PluginSite& site = *Vars::Site;
    APluginCore newer(*Vars::Platform);
    newer.IPlugin2_Initialize(site);
    const auto* handler = Vars::TimerHandler.get();
    client.Terminate();
    EXPECT_TRUE(handler);
    EXPECT_EQ(Vars::TimerHandler.get(), handler);
    newer.IPlugin2_Terminate();
    EXPECT_FALSE(Vars::TimerHandler);
}

TEST_F(APluginCoreTest, LinesOfOtherPluginsGoStraightToChatUntilLogin) {
    Start();
    EXPECT_THAT(lines, IsEmpty());
    client.plugin()->AddChatText("Tracker ready", 5, 2);
    EXPECT_THAT(lines, ElementsAre(Line{"Tracker ready", 5, 2}));
}

TEST_F(APluginCoreTest, AMissingServiceIsReportedAndLeavesTheRestAtWork) {
    client.missing_services = {"World"};
    Start();
    EXPECT_THAT(TakeReports(), Contains(HasSubstr("'Class_Initialize' of class 'FilterHandler'")).Times(1));
    EXPECT_THAT(lines, IsEmpty()) << "the report finds no chat yet";
    EXPECT_TRUE(filter().CharStats && filter().HealthAlarm && Vars::HUDTargetHandler);
    EXPECT_EQ(filter().GetMyCharLevel(), 42);
}

TEST_F(APluginCoreTest, AStepThatFailsEndsTheStartAndIsReported) {
    FailNext("PluginSite.GetDecal");
    Start();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'IPlugin_Initialize' of class 'APluginCore'"));
    EXPECT_FALSE(Vars::FilterHandler);
    client.plugin()->AddChatText("Anybody there?", 2, 1);
    EXPECT_FALSE(client.WindowMessage(512, 10, 10, 0, 0));
    EXPECT_THAT(lines, IsEmpty());
}

}  // namespace
}  // namespace ombrel::test
