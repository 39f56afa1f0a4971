#include <filesystem>
#include <limits>

#include "core/TimerHandler.h"
#include "hud/DX8Sound.h"
#include "hud/HUDTargetHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class FilterEvents : public PluginTest {
protected:
    static host::Id Target() {
        host::WorldObjectPtr target;
        Vars::HUDTargetHandler->GetObject(target);
        return target ? target->GUID() : 0;
    }
};

TEST_F(FilterEvents, LoginFollowsItsOrder) {
    LogIn();
    options().LogoutTimer->SetChecked(true);
    options().ToggleVitals->SetChecked(true);
    options().FillMana->SetChecked(true);
    options().Settings_Save(0);
    client.sheet.Augmentation = {{238, 2}, {232, 5}};

    Forget();
    Vars::DebugMode = true;
    client.LoginComplete();
    EXPECT_TRUE(CalledInOrder(
        {"Login Complete Begin", "Logout Extended", "SetIdleTime seconds=2419200000", "Archmage's Endurance Count: 2",
         "Starting Core Timer", "TimerStart name=TimerHandler.CoreTimer milliseconds=1000",
         "TimerStart name=TimerHandler.TargetHUDRefresh milliseconds=2000", "TimerStart name=TimerHandler.MainHUDTime",
         "Vitals Toggled", "mouse_event", "<Ombrel> Plugin Loaded! Type /m help for commands.", "Filling Mana",
         "TimerStart name=TimerHandler.StartupDelay milliseconds=3000", "Login Complete End"}));
    EXPECT_EQ(options().stVersion->Text(), "Ombrel v1.1.0.1");
}

TEST_F(FilterEvents, SettingsThatCannotBeReadLeaveThePluginInactive) {
    Start();
    options().HudList = {};  // a view without this list can't take the settings
    client.LoginComplete();
    EXPECT_FALSE(Vars::Loaded);
    EXPECT_THAT(lines, Contains(Line{"<Ombrel> Unknown settings load failure! Plugin inactive.", 6, 1}));
    EXPECT_THAT(Texts(), Not(Contains(HasSubstr("Plugin Loaded!"))));
    EXPECT_THAT(client.clock.Running(), IsEmpty());
    EXPECT_FALSE(Vars::DHSHandler);
    EXPECT_THAT(TakeReports(), Not(IsEmpty()));
}

TEST_F(FilterEvents, AFailureInTheMidstOfLoginLeavesThePluginInactive) {
    Start();
    FailNext("CharacterStats.Augmentation");
    client.LoginComplete();
    EXPECT_FALSE(Vars::Loaded);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'LoginComplete' of class 'FilterHandler'"));
    EXPECT_THAT(Texts(), Not(Contains(HasSubstr("Plugin Loaded!"))));

    client.LoginComplete();
    EXPECT_TRUE(Vars::Loaded);
    EXPECT_THAT(Texts(), Contains("<Ombrel> Plugin Loaded! Type /m help for commands."));
}

TEST_F(FilterEvents, AlarmsFollowTheirVital) {
    HaveSound("Loop/Bell.wav");
    LogIn();
    const struct {
        Owned<DX8Sound> FilterHandler::*sound;
        Ref<host::Checkbox> ControlHandler::*on;
        Ref<host::Edit> ControlHandler::*percent;
        std::int32_t sim::Sheet::*current;
        std::int32_t code;
    } vitals[] = {
        {&FilterHandler::HealthAlarm, &ControlHandler::AlarmHealthOn, &ControlHandler::AlarmHealthPer,
         &sim::Sheet::Health, 2},
        {&FilterHandler::StaminaAlarm, &ControlHandler::AlarmStaminaOn, &ControlHandler::AlarmStaminaPer,
         &sim::Sheet::Stamina, 4},
        {&FilterHandler::ManaAlarm, &ControlHandler::AlarmManaOn, &ControlHandler::AlarmManaPer, &sim::Sheet::Mana, 6},
    };
    const struct {
        const char* percent;
        std::int32_t current;
        bool on;
        bool playing;
    } steps[] = {
        {"70%", 70, true, false}, {"70", 70, true, false},   {"70", 69, true, true},
        {"70%", 1, true, true},   {"70%", 70, true, false},  {"70%", 69, false, false},
        {"70%", 69, true, true},  {"70%", 100, false, true}, {"70%", 100, true, false},
    };
    for (const auto& vital : vitals) {
        DX8Sound& sound = *(filter().*vital.sound);
        sound.SetSound("Loop\\Bell.wav");
        client.sheet.Vital[vital.code] = 100;
        for (const auto& step : steps) {
            (options().*vital.on)->SetChecked(step.on);
            (options().*vital.percent)->SetText(step.percent);
            client.ChangeVital(vital.code, step.current);
            EXPECT_EQ(sound.Status(), step.playing ? 2 : 0)
                << "vital " << vital.code << " at " << step.current << " of " << step.percent;
        }
        (options().*vital.on)->SetChecked(false);
    }
}

TEST_F(FilterEvents, AnAlarmThatCannotBeWorkedOutIsReportedAndLeftAsItIs) {
    HaveSound("Loop/Bell.wav");
    LogIn();
    filter().HealthAlarm->SetSound("Loop\\Bell.wav");
    filter().HealthAlarm->Play(true);
    options().AlarmHealthOn->SetChecked(true);

    options().AlarmHealthPer->SetText("half");
    client.ChangeVital(2, 100);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'Char_ChangeVital' of class 'FilterHandler'"));

    options().AlarmHealthPer->SetText("50%");
    client.sheet.Vital[2] = 0;
    client.ChangeVital(2, 0);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #11 occured in 'Char_ChangeVital' of class 'FilterHandler'"));
    EXPECT_EQ(filter().HealthAlarm->Status(), 2);
}

TEST_F(FilterEvents, StatusTextsAreTheClientsUnlessThePlayerWantsThemGone) {
    Start();
    options().StatusText->SetChecked(true);
    EXPECT_FALSE(client.StatusText("You're too busy!"));

    LogIn();
    options().StatusText->SetChecked(false);
    EXPECT_FALSE(client.StatusText("You're too busy!"));
    options().StatusText->SetChecked(true);
    EXPECT_TRUE(client.StatusText("You're too busy!"));

    Forget();
    client.StatusText("You are too encumbered to sell that!");
    EXPECT_THAT(Texts(), Contains("<Ombrel> Unable to sell due to being encumbered."));
}

TEST_F(FilterEvents, OnlyOurOwnLinkRunsTheQueue) {
    LogIn();
    EXPECT_TRUE(client.ChatClick("[Ombrel]", 0x710E0));
    EXPECT_FALSE(client.ChatClick("[Ombrel]", 0x710E1));
    EXPECT_FALSE(client.ChatClick("Ombrel", 0x710E0));
}

TEST_F(FilterEvents, SelectingAsksForWhatIsNotFresh) {
    client.object(7).Name = "Drudge";
    client.object(8).Name = "Lever";
    client.object(8).LastIdTime = std::numeric_limits<std::int32_t>::max();
    client.ObjectSelected(7);
    EXPECT_THAT(calls, IsEmpty());

    LogIn();
    Forget();
    client.ObjectSelected(7);
    client.ObjectSelected(8);
    EXPECT_THAT(CallsOf("IdentifyObject"), ElementsAre("IdentifyObject id=7"));
    EXPECT_EQ(Target(), 8);
    client.ObjectSelected(99);
    EXPECT_EQ(Target(), 0);

    client.ObjectSelected(7);
    client.ReleaseObject(8);
    EXPECT_EQ(Target(), 7);
    client.ReleaseObject(7);
    EXPECT_EQ(Target(), 0);
}

TEST_F(FilterEvents, FoodAndKitsThatMoveAreIdentifiedOnce) {
    const struct {
        std::int32_t type;
        std::int32_t identified;
        bool asked;
    } rows[] = {{6, 0, true}, {6, 1, false}, {29, 0, true}, {29, 1, false}, {5, 0, false}};
    LogIn();
    for (const auto& row : rows) {
        sim::Object& thing = Carry(7, "Ham");
        thing.Type = row.type;
        thing.HasIdData = row.identified;
        Forget();
        client.MoveObject(7);
        EXPECT_EQ(CallsOf("IdentifyObject").size(), row.asked ? 1u : 0u) << row.type << ' ' << row.identified;
    }
}

TEST_F(FilterEvents, TheNoteThatAVendorPaysWithIsKept) {
    LogIn();
    Carry(7, "Trade Note (250,000)");
    Carry(8, "Trade Note (100,000)");
    client.object(9).Name = "Trade Note (250,000)";
    client.CreateObject(7);
    EXPECT_EQ(filter().TradeNoteId, 0);
    filter().SellingPeas = true;
    client.CreateObject(8);
    client.CreateObject(9);
    EXPECT_EQ(filter().TradeNoteId, 0);
    client.CreateObject(7);
    EXPECT_EQ(filter().TradeNoteId, 7);
}

TEST_F(FilterEvents, EventsOfUnknownObjectsAreDebugLinesOnly) {
    LogIn();
    Vars::DebugMode = true;
    Forget();
    client.CreateObject(99);
    client.ChangeObject(99, 0);
    client.MoveObject(99);
    client.ReleaseObject(99);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel-Debug> CreateObject - Exit on Nothing",
                                     "<Ombrel-Debug> ChangeObject - Exit on Nothing",
                                     "<Ombrel-Debug> MoveObject - Exit on Nothing", "<Ombrel-Debug> ReleaseObject",
                                     "<Ombrel-Debug> ReleaseObject - Exit on Nothing"));
}

TEST_F(FilterEvents, LogoffSavesEvenWithoutALoadedCharacter) {
    LogIn();
    const auto saved = common_data.path() / "Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml";
    std::filesystem::remove(saved);
    client.Logoff(1);
    EXPECT_TRUE(std::filesystem::exists(saved));
}

}  // namespace
}  // namespace ombrel::test
