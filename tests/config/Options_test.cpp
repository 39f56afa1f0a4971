// Every option of the view: what a change of its control brings about, and that it is there the next evening.
#include <fmt/format.h>

#include <functional>
#include <map>
#include <set>
#include <utility>

#include "automation/EventQueue.h"
#include "chat/ChatTextHandler.h"
#include "config/ControlTable.h"
#include "config/HudRows.h"
#include "core/TimerHandler.h"
#include "core/cells.h"
#include "corpses/CorpseHandler.h"
#include "hud/DX8Sound.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"
#include "spells/SpellHandler.h"
#include "tests/config/ViewTest.h"

namespace ombrel::test {
namespace {

std::string Lines(const HUDHandler& canvas) {
    std::string text;
    for (const auto& [key, item] : canvas.items())
        text += fmt::format("{}: {} {} {}\n", key, item.data, item.color, item.newline);
    return text;
}

std::string Main() { return Lines(*Vars::HUDMainHandler->MainHud); }
std::string Clock() { return Lines(*Vars::HUDClockHandler->ClockHUD); }
std::string Items() { return Lines(*Vars::HUDItemHandler->ItemHUD); }
std::string Status() { return Lines(*Vars::HUDStatusHandler->StatusHud); }

template <std::int32_t window>
std::string Output() {
    return fmt::format("{}", Vars::ChatTextHandler->GetTargetList(window, 32));
}
template <auto slider>
std::string Position() {
    return fmt::format("{}", ((*Vars::ControlHandler).*slider)->Position());
}
template <auto edit>
std::string Text() {
    return ((*Vars::ControlHandler).*edit)->Text();
}

using C = ControlHandler;

// Where an option that takes effect at once is seen, in the order of the view's tables.
const std::map<std::string_view, std::string (*)()> kEffects = {
    {"HUD_Timer_Down", &Clock},
    {"HUD_Timer_Up", &Clock},
    {"Output_Main", &Output<0>},
    {"Output_1", &Output<1>},
    {"Output_2", &Output<2>},
    {"Output_3", &Output<3>},
    {"Output_4", &Output<4>},
    {"Event_Start", [] { return fmt::format("{}", Vars::EventQueue->autorun); }},
    {"Logout_Timer", nullptr},  // calls of the client, below
    {"HUD_Clock_Disp", &Clock},
    {"HUD_Date_Disp", &Clock},
    {"HUD_Clock_24", &Clock},
    {"HUD_Clock_Label", &Clock},
    {"HUD_Clock_Short", &Clock},
    {"Spells_Item", [] { return fmt::format("{}", Vars::SpellHandler->bRebuildList); }},
    {"HUD_Main_Lbl", &Main},
    {"HUD_Items_Horz", &Items},
    {"Corpses_Absolute", &Main},
    {"Vitals_txtBlock", &Position<&C::VitalsBlockSlider>},
    {"Vitals_txtSuccess", &Position<&C::VitalsSuccessSlider>},
    {"Vitals_txtCheap", &Position<&C::VitalsCheapSlider>},
    {"Vitals_txtFallback", &Position<&C::VitalsFallbackSlider>},
    {"Util_cboVitalHealthSound", nullptr},
    {"Util_cboVitalStaminaSound", nullptr},
    {"Util_cboVitalManaSound", nullptr},
    {"HUD_Timeout", nullptr},
    {"HUD_Items_Color", &Items},
    {"HUD_Items_Icon_Size", [] { return fmt::format("{}", hud::FrameOf(hud::kItems).IconSize); }},
    {"HUD_Target_Color", [] { return Vars::HUDTargetHandler->TargetHud->FontColor; }},
    {"HUD_Status_Color", &Status},
    {"Vitals_sldrBlock", &Text<&C::VitalsBlock>},
    {"Vitals_sldrSuccess", &Text<&C::VitalsSuccess>},
    {"Vitals_sldrCheap", &Text<&C::VitalsCheap>},
    {"Vitals_sldrFallback", &Text<&C::VitalsFallback>},
};

// Those that the client is called for.
const std::map<std::string_view, std::string_view> kCalls = {
    {"Logout_Timer", "SetIdleTime seconds=2419200000"},
    {"Util_cboVitalHealthSound", "SoundLoad"},
    {"Util_cboVitalStaminaSound", "SoundLoad"},
    {"Util_cboVitalManaSound", "SoundLoad"},
    {"HUD_Timeout", "TimerStart name=TimerHandler.MainHUDTime milliseconds=2000"},
};

// What the view shows for a moment and no file keeps.
const std::set<std::string_view> kMomentary = {"Chat_Log_AFK", "Chat_Log_Search", "Chat_Log_Filter",
                                               "Chat_Color_Window"};

// A change of each kind of control, by the player's hand; and its state.
void Change(sim::SimCheckbox& box) { box.Check(!box.checked()); }
void Change(sim::SimEdit& edit) {
    edit.Type("37");
    edit.Finish();
}
void Change(sim::SimChoice& choice) { choice.Select((choice.selected() + 1) % choice.Count()); }
void Change(sim::SimSlider& slider) { slider.Move(38); }
void Change(sim::SimPushButton& button) { button.Press(); }
void Change(sim::SimList& list) { list.Click(0, 0); }

std::string State(const sim::SimCheckbox& box) { return fmt::format("{}", box.checked()); }
std::string State(const sim::SimEdit& edit) { return edit.text(); }
std::string State(const sim::SimChoice& choice) { return fmt::format("entry {}", choice.selected()); }
std::string State(const sim::SimSlider& slider) { return fmt::format("{}", slider.position()); }

// The simulated client's control of each kind.
struct SimOf {
    static sim::SimCheckbox Of(const host::Checkbox&);
    static sim::SimEdit Of(const host::Edit&);
    static sim::SimChoice Of(const host::Choice&);
    static sim::SimSlider Of(const host::Slider&);
    static sim::SimPushButton Of(const host::PushButton&);
    static sim::SimList Of(const host::List&);
};

class OptionsTest : public ViewTest {
protected:
    OptionsTest() {
        HaveSound("Gong.wav");
        HaveSound("Loop/Bell.wav");
    }

    // Visits the rows of a table whose controls answer the player.
    template <class Kind, std::size_t size, class Visitor>
    void EachAnswering(const ControlRow<Kind> (&rows)[size], Visitor visit) {
        for (const auto& row : rows) {
            bool answers = row.change.index() != 0;
            bool applies = Applies(row.change);
            if constexpr (requires { row.end; }) {
                answers = answers || row.end.index() != 0;
                applies = applies || Applies(row.end);
            }
            SCOPED_TRACE(row.name);
            if (answers)
                visit(row.name, *client.view()->Get<decltype(SimOf::Of(std::declval<const Kind&>()))>(row.name),
                      applies);
        }
    }

    template <class Visitor>
    void EachOption(Visitor visit) {
        EachAnswering(kCheckboxes, visit);
        EachAnswering(kEdits, visit);
        EachAnswering(kChoices, visit);
        EachAnswering(kSliders, visit);
    }

    template <class Answer>
    static bool Applies(const Answer& answer) {
        const auto* option = std::get_if<Option>(&answer);
        return option && option->apply;
    }

    // Something for each HUD to show.
    void Furnish() {
        Carry(0x201, "Ham").Long[host::key::kIcon] = 77;
        client.object(client.sheet.Character).Coordinates = {12.3, -45.6};
        Put("HUD_Items_Text", "Ham");
        Put("HUD_Items_Count", "0");
        Press("HUD_Items_Add");
        Click("HUD_General", 0, hud::kItems);
        Click("HUD_Clock", 0, 2);  // the date
        Vars::HUDStatusHandler->AddMessage("You're too busy!");
        Vars::CorpseHandler->AddCorpsefromData(1.0, 2.0, 2000000000, false, 0, "You've lost your hat!");
        Vars::CorpseHandler->UpdateCorpseList();
        Vars::HUDMainHandler->CreateHUD();
    }
};

TEST_F(OptionsTest, BeforeLoginNoControlDoesAnything) {
    Start();
    const std::array<std::int32_t, 4> version{1, 1, 0, 1};
    options().Init_Lists(version);
    Vars::SettingsState = 2;  // saving is not what holds them back
    options().FilterBox->SetText("darn");
    options().AliasAbbr->SetText("bb");
    options().HudItemsText->SetText("Ham");
    options().VitalsAddException->SetText("Ham");
    client.hooks.CurrentSelection = Carry(0x201, "Ham").id;
    Forget();
    const auto change = [](std::string_view, auto& control, bool) { Change(control); };
    EachOption(change);
    EachAnswering(kPushButtons, change);
    EachAnswering(kLists, change);
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_FALSE(Saved());
    for (const auto& list : {options().ChatFilter, options().ChatAlias, options().HudItems, options().VitalsExceptions,
                             options().ChatCustom})
        EXPECT_EQ(list->Count(), 0);
    EXPECT_TRUE(options().SelectedSpell.empty());
    EXPECT_EQ(options().SelectedCorpse, -1);
}

TEST_F(OptionsTest, EachTakesEffectAtOnce) {
    LogIn();
    Furnish();
    std::size_t seen = 0;
    const auto visit = [&](std::string_view name, auto& control, bool applies) {
        if (!applies) return;
        ++seen;
        ASSERT_TRUE(kEffects.contains(name));
        const auto effect = kEffects.at(name);
        const std::string before = effect ? effect() : std::string();
        Saved();
        Forget();
        Change(control);
        EXPECT_TRUE(Saved());
        if (effect)
            EXPECT_NE(effect(), before);
        else
            EXPECT_FALSE(CallsOf(kCalls.at(name)).empty()) << testing::PrintToString(calls);
    };
    EachAnswering(kPushButtons, visit);
    EachOption(visit);
    EXPECT_EQ(seen, kEffects.size());
}

TEST_F(OptionsTest, EachIsSavedAtOnceAndBackTheNextEvening) {
    LogIn();
    std::map<std::string_view, std::string> left;
    EachOption([&](std::string_view name, auto& control, bool) {
        if (name == "Global_Settings") return;
        const std::string before = State(control);
        Saved();
        Change(control);
        EXPECT_TRUE(Saved());
        EXPECT_NE(State(control), before);
    });
    // All of them, since some show what another has changed.
    EachOption([&](std::string_view name, auto& control, bool) { left[name] = State(control); });
    options().Settings_Save(0);

    ComeBack();
    EachOption([&](std::string_view name, auto& control, bool) {
        if (kMomentary.contains(name)) return;
        EXPECT_EQ(State(control), left.at(name));
    });
    EXPECT_EQ(Setting("Chat_Color", "window"), "B");
}

// Left at letters, a number is kept as the player typed it, and the plug-in plays on.
TEST_F(OptionsTest, LettersInANumberAreKeptAndHurtNothingElse) {
    LogIn();
    Furnish();
    for (const char* name : {"Start_Level", "Fill_Threshold", "Pea_Threshold", "Beer_Timer", "Beer_Use_Timer",
                             "Spells_Offset", "XP_Filter_Threshold", "Chat_Log_Max", "Util_txtVitalHealthPer"})
        Enter(name, "many");
    EXPECT_EQ(Setting("Util", "beertimer"), "many");
    ComeBack();
    EXPECT_TRUE(Vars::Loaded);
    EXPECT_EQ(options().FillThreshold->Text(), "many");
    Advance(65s);
    EXPECT_THAT(TakeReports(), IsEmpty());

    // A vital whose alarm is on is told of, by its own procedure.
    Check("Util_checkVitalHealthOn", true);
    client.ChangeVital(2, 10);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'Char_ChangeVital' of class 'FilterHandler'"));
}

TEST_F(OptionsTest, ASoundThatIsGoneIsToldOfAtLoginAndNowhereElse) {
    LogIn();
    Pick("Util_cboVitalHealthSound", "Bell.wav");
    std::filesystem::remove(plugin_folder.path() / "Sounds/Loop/Bell.wav");
    ComeBack();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #53 occured in 'SetSound' of class 'DX8Sound'"));
    EXPECT_EQ(Picked("Util_cboVitalHealthSound"), "None");
    EXPECT_EQ(Setting("Vital_Alarm", "healthsound"), "None");
}

TEST_F(OptionsTest, AColourOfTheOtherTableIsWhite) {
    LogIn();
    std::string text = common_data.Read(kSettings);
    const auto replace = [&text](const std::string& from, const std::string& to) {
        const auto at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
    };
    replace("<HUD_LIST name=\"Level\" enabled=\"False\" color=\"White\"",
            "<HUD_LIST name=\"Level\" enabled=\"False\" color=\"Default\"");
    replace("window=\"D\" color=\"Default\"", "window=\"D\" color=\"Peach\"");
    common_data.Write(kSettings, text);
    ComeBack();
    EXPECT_EQ(Picked("HUD_Main_Color"), "White");
    EXPECT_EQ(Setting("HUD_LIST", "color"), "White");
    EXPECT_EQ(Setting("Chat_Color", "color"), "White");
}

}  // namespace
}  // namespace ombrel::test
