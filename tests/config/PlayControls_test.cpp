// Corpses, spells, vitals, and the buttons of the settings file.
#include <fmt/format.h>

#include "config/ControlTools.h"
#include "config/HudRows.h"
#include "core/cells.h"
#include "corpses/CorpseHandler.h"
#include "hud/DX8Sound.h"
#include "hud/HUDMainHandler.h"
#include "spells/SpellHandler.h"
#include "stats/Statistics.h"
#include "tests/config/ViewTest.h"

namespace ombrel::test {
namespace {

class PlayControlsTest : public ViewTest {
protected:
    void SetUp() override {
        HaveSound("Loop/Bell.wav");
        HaveSound("Loop/Horn.wav");
        client.object(client.sheet.Character).Coordinates = {10.0, 20.0};
        LogIn();
        Check("Output_Main", true);
        Saved();
        Forget();
    }

    std::string Data() const { return common_data.Read("Ombrel/Data/Ombrel_Data_Frostfell_Aldra.xml"); }

    static DX8Sound& alarm() { return *filter().HealthAlarm; }

    std::vector<std::string> Exceptions() {
        std::vector<std::string> names;
        for (std::int32_t row = 0; row < options().VitalsExceptions->Count(); ++row)
            names.push_back(CellText(*options().VitalsExceptions, 0, row));
        return names;
    }
};

TEST_F(PlayControlsTest, ACorpseIsFollowedReadAndDropped) {
    Vars::CorpseHandler->AddCorpsefromData(12.0, 20.0, 2000000000, false, 1, "You've lost your hat!");
    Vars::CorpseHandler->AddCorpsefromData(15.0, 20.0, 2000000000, false, 2, "You've lost your boots!");
    Vars::CorpseHandler->UpdateCorpseList();
    const auto& list = Control<sim::SimList>("Corpses_List");
    EXPECT_EQ(list.color(0, 0), kHighlight);

    Click("Corpses_List", 0, 1);
    EXPECT_EQ(options().SelectedCorpse, 1);
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(list.color(0, 1), kHighlight);
    EXPECT_NE(list.color(0, 0), kHighlight);
    EXPECT_EQ(Vars::HUDMainHandler->MainHud->items().at("Bod").data, "Corpse: 5.0S, 0.0E");
    EXPECT_THAT(Data(), HasSubstr("hat"));
    Click("Corpses_List", 2, 0);
    Click("Corpses_List", 1, 1);
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> You've lost your hat!", "<Ombrel> You've lost your boots!"));

    Click("Corpses_List", 3, 1);
    EXPECT_EQ(options().SelectedCorpse, -1);
    EXPECT_EQ(options().CorpsesList->Count(), 1);
    EXPECT_EQ(list.color(0, 0), kHighlight);
    EXPECT_THAT(Data(), Not(HasSubstr("boots")));
    Click("Corpses_List", 3, 1);
    Click("Corpses_List", 0, -1);
    EXPECT_EQ(options().CorpsesList->Count(), 1);
    EXPECT_EQ(options().SelectedCorpse, -1);
}

TEST_F(PlayControlsTest, TheFollowedSpellIsKeptByItsName) {
    client.LoadSpells(SpellTablePath());
    client.Enchant(2, 600, 2);
    client.Enchant(5, 900, 67);
    client.ChangeEnchantments(0, {});
    Advance(2s);
    const host::List& buffs = *options().BuffList;
    ASSERT_EQ(buffs.Count(), 2);
    const std::string second = CellText(buffs, 1, 1);

    Click("Buff_List", 1, 1);
    EXPECT_EQ(options().SelectedSpell, second);
    EXPECT_EQ(Setting("Spells", "selected"), second);
    Advance(1s);
    EXPECT_EQ(options().SpellsTracked->Text(), "14:57");
    Enter("Spells_Offset", "-57");
    Advance(1s);
    EXPECT_EQ(options().SpellsTracked->Text(), "13:59");
    ComeBack();
    EXPECT_EQ(options().SelectedSpell, second);

    // The same again: the next to run out is followed.
    Advance(2s);
    Click("Buff_List", 1, 1);
    EXPECT_EQ(options().SelectedSpell, "");
    Click("Buff_List", 1, 9);
    EXPECT_EQ(Setting("Spells", "selected"), "");
}

TEST_F(PlayControlsTest, APercentageStandsInItsEditAndOnItsSlider) {
    const struct {
        const char *edit, *slider, *attribute, *standard;
        std::int32_t position;
    } pairs[] = {{"Vitals_txtBlock", "Vitals_sldrBlock", "block", "100%", 100},
                 {"Vitals_txtSuccess", "Vitals_sldrSuccess", "success", "95", 95},
                 {"Vitals_txtCheap", "Vitals_sldrCheap", "cheap", "80%", 80},
                 {"Vitals_txtFallback", "Vitals_sldrFallback", "fallback", "75%", 75}};
    for (const auto& pair : pairs) {
        SCOPED_TRACE(pair.edit);
        auto& edit = Control<sim::SimEdit>(pair.edit);
        auto& slider = Control<sim::SimSlider>(pair.slider);
        const struct {
            const char* typed;
            std::string text;
            std::int32_t position;
        } steps[] = {{"40", "40%", 40},   {"41%", "41%", 41},
                     {"%4%2", "42%", 42}, {"abc", pair.standard, pair.position},
                     {"7", "7%", 7},      {"", pair.standard, pair.position},
                     {"-5", "-5%", 0},    {"99999999999", "99999999999%", 100}};
        for (const auto& step : steps) {
            edit.Type(step.typed);
            EXPECT_EQ(edit.text(), step.text) << step.typed;
            EXPECT_EQ(slider.position(), step.position) << step.typed;
            EXPECT_EQ(Setting("One_Touch", pair.attribute), step.text);
        }
        edit.PutText("63");
        edit.Finish();
        EXPECT_EQ(edit.text(), "63%");
        slider.Move(64);
        EXPECT_EQ(edit.text(), "64%");
        EXPECT_EQ(Setting("One_Touch", pair.attribute), "64%");
    }
    EXPECT_THAT(TakeReports(), IsEmpty());
}

TEST_F(PlayControlsTest, ExceptionsAreAddedByNameOrSelectionAndDeleted) {
    Press("Vitals_btnAddException");
    Press("Vitals_btnAddSelected");
    EXPECT_FALSE(Saved());
    Put("Vitals_txtAddException", "Ham");
    Press("Vitals_btnAddException");
    EXPECT_TRUE(Saved());
    client.hooks.CurrentSelection = Carry(0x301, "Pie").id;
    Press("Vitals_btnAddSelected");
    EXPECT_THAT(Exceptions(), ElementsAre("Ham", "Pie"));
    EXPECT_EQ(CellIcon(*options().VitalsExceptions, 1, 1), 0x60011F8);
    EXPECT_EQ(Setting("One_Touch_Exception", "name", 1), "Pie");
    Click("Vitals_listExceptions", 0, 0);
    Click("Vitals_listExceptions", 1, 3);
    EXPECT_THAT(Exceptions(), ElementsAre("Ham", "Pie"));
    Click("Vitals_listExceptions", 1, 0);
    EXPECT_THAT(Exceptions(), ElementsAre("Pie"));
    ComeBack();
    EXPECT_THAT(Exceptions(), ElementsAre("Pie"));
}

TEST_F(PlayControlsTest, AnAlarmSoundsFromBelowItsThresholdUntilTheVitalIsBack) {
    Pick("Util_cboVitalHealthSound", "Bell.wav");
    Enter("Util_txtVitalHealthPer", "50%");
    Check("Util_checkVitalHealthOn", true);
    Forget();
    for (const std::int32_t health : {80, 51, 50}) client.ChangeVital(2, health);
    EXPECT_THAT(CallsOf("SoundPlay"), IsEmpty());
    for (const std::int32_t health : {49, 30, 1}) client.ChangeVital(2, health);
    EXPECT_THAT(CallsOf("SoundPlay"), ElementsAre(EndsWith("Loop\\Bell.wav loop=true")));

    // Another sound takes its place, and is heard with the next change.
    Pick("Util_cboVitalHealthSound", "Horn.wav");
    EXPECT_THAT(CallsOf("SoundRelease"), ElementsAre(EndsWith("Bell.wav")));
    EXPECT_EQ(alarm().Status(), 0);
    client.ChangeVital(2, 20);
    EXPECT_THAT(CallsOf("SoundPlay").back(), EndsWith("Loop\\Horn.wav loop=true"));

    // A lower threshold ends it, a higher one starts it again.
    Enter("Util_txtVitalHealthPer", "10");
    client.ChangeVital(2, 20);
    EXPECT_THAT(CallsOf("SoundStop"), ElementsAre(EndsWith("Horn.wav")));
    Enter("Util_txtVitalHealthPer", "90%");
    client.ChangeVital(4, 100);  // any vital's change looks at all three
    EXPECT_EQ(alarm().Status(), 2);

    // None, and one that is missing: silence.
    Forget();
    Pick("Util_cboVitalHealthSound", "None");
    EXPECT_THAT(CallsOf("SoundLoad"), IsEmpty());
    client.ChangeVital(2, 5);
    EXPECT_EQ(Setting("Vital_Alarm", "healthsound"), "None");
    std::filesystem::remove(plugin_folder.path() / "Sounds/Loop/Horn.wav");
    Pick("Util_cboVitalHealthSound", "Horn.wav");
    EXPECT_THAT(TakeReports(), ElementsAre("Error #53 occured in 'SetSound' of class 'DX8Sound'"));
    EXPECT_EQ(Setting("Vital_Alarm", "healthsound"), "Horn.wav");
    client.ChangeVital(2, 4);
    EXPECT_THAT(CallsOf("SoundPlay"), IsEmpty());
}

class NoSoundCardTest : public ViewTest {};

TEST_F(NoSoundCardTest, EachAlarmSaysSoOnceAndThePlayerPlaysOnInSilence) {
    HaveSound("Loop/Bell.wav");
    client.calls.Fail(sim::FindOperation("Platform.DirectSoundCreate").value(), 3, 5, "no card");
    LogIn();
    EXPECT_THAT(TakeReports(), SizeIs(3));
    Pick("Util_cboVitalHealthSound", "Bell.wav");
    Enter("Util_txtVitalHealthPer", "50%");
    Check("Util_checkVitalHealthOn", true);
    client.ChangeVital(2, 1);
    client.ChangeVital(2, 100);
    EXPECT_THAT(CallsOf("Sound"), IsEmpty());
    EXPECT_EQ(Setting("Vital_Alarm", "healthsound"), "Bell.wav");
}

TEST_F(PlayControlsTest, SettingsAreReloadedAndBecomeTheDefaults) {
    Enter("Start_Level", "77");
    Click("HUD_LIST", 0, 0);
    Control<sim::SimList>("HUD_LIST").PutData(0, 0, false);  // nobody has saved these
    options().StartLevel->SetText("1");
    Press("Reload_Settings");
    EXPECT_THAT(Texts(), Contains("<Ombrel> Attempting to Reload Your Settings"));
    EXPECT_EQ(options().StartLevel->Text(), "77");
    EXPECT_EQ(Vars::HUDMainHandler->MainHud->items().at("Lev").data, "Level: 42") << "the HUDs are drawn anew";
    Press("Reload_Default");
    EXPECT_THAT(Texts(), Contains("<Ombrel> Attempting to Load Default Settings"));
    EXPECT_EQ(options().StartLevel->Text(), "6");
    EXPECT_EQ(Setting("Util", "startlevel"), "6") << "they are the character's own now";

    Enter("Start_Level", "88");
    Press("Set_Default");
    EXPECT_EQ(Texts().back(), "<Ombrel> Settings Saved as Default");
    EXPECT_THAT(common_data.Read("Ombrel/Settings/Ombrel_Settings.xml"), HasSubstr("startlevel=\"88\""));
}

TEST_F(PlayControlsTest, GlobalSettingsAreAFileOfTheirOwn) {
    Enter("Start_Level", "77");
    Check("Global_Settings", true);
    const char* global = "Ombrel/Settings/Ombrel_Global_Settings.xml";
    EXPECT_THAT(Texts(), Contains("<Ombrel> Failed to find global settings, loading defaults"));
    EXPECT_EQ(options().StartLevel->Text(), "6");
    Enter("Start_Level", "55");
    EXPECT_THAT(common_data.Read(global), HasSubstr("startlevel=\"55\""));
    EXPECT_EQ(Setting("Util", "startlevel"), "77");

    ComeBack();
    EXPECT_TRUE(options().GlobalSettings->Checked());
    EXPECT_EQ(options().StartLevel->Text(), "55");
    Check("Global_Settings", false);
    EXPECT_EQ(options().StartLevel->Text(), "77");
}

TEST_F(PlayControlsTest, ANewSessionIsNoOption) {
    Vars::Statistics->Kills = 5;
    Saved();
    Press("Reset_Time");
    EXPECT_EQ(Vars::Statistics->Kills, 0);
    EXPECT_FALSE(Saved());
}

}  // namespace
}  // namespace ombrel::test
