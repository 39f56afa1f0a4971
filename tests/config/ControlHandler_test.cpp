#include "config/ControlHandler.h"

#include <fmt/format.h>

#include "adapters/sim/Controls.h"
#include "adapters/sim/View.h"
#include "config/ControlTable.h"
#include "config/HudRows.h"
#include "config/ViewHandler.h"
#include "core/cells.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

template <class Visitor>
void ForEachRow(Visitor visit) {
    const auto each = [&](const auto& rows) {
        for (const auto& row : rows) visit(row);
    };
    each(kStaticTexts);
    each(kPushButtons);
    each(kCheckboxes);
    each(kNotebooks);
    each(kEdits);
    each(kChoices);
    each(kLists);
    each(kProgresses);
    each(kSliders);
}

class ControlTest : public PluginTest {
protected:
    // Starts the plug-in with a view description of the test's own making.
    void StartWith(const std::string& from, const std::string& to) {
        HaveSound("Loop/Bell.wav");
        std::string view = plugin_folder.Read("Ombrel_View.xml");
        const auto at = view.find(from);
        ASSERT_NE(at, std::string::npos);
        plugin_folder.Write("Ombrel_View.xml", view.replace(at, from.size(), to));
        Start();
    }
};

TEST_F(ControlTest, TheShippedViewHasEveryControl) {
    Start();
    int bound = 0;
    ForEachRow([&](const auto& row) {
        EXPECT_TRUE(options().*row.member) << row.name;
        ++bound;
    });
    EXPECT_EQ(bound, 161);

    options().ReleaseControls();
    ForEachRow([&](const auto& row) { EXPECT_FALSE(options().*row.member) << row.name; });
}

TEST_F(ControlTest, AMissingControlIsReportedOnceAndTheOthersWork) {
    StartWith("name=\"XP_Auto\"", "name=\"XP_Outo\"");
    EXPECT_THAT(documents.Read("Asheron's Call/Ombrel Errors.txt"), HasSubstr("\"XP_Auto\""));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #91 occured in 'InitControls' of class 'ControlHandler'"));
    int missing = 0;
    ForEachRow([&](const auto& row) { missing += !(options().*row.member); });
    EXPECT_EQ(missing, 1);
    EXPECT_THROW(options().XPAuto->Checked(), Failure);
}

TEST_F(ControlTest, AControlOfAnotherKindIsNoneAtAll) {
    StartWith("progid=\"DecalControls.Checkbox\" name=\"XP_Auto\"", "progid=\"DecalControls.Edit\" name=\"XP_Auto\"");
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'InitControls' of class 'ControlHandler'"));
    EXPECT_FALSE(options().XPAuto);
    EXPECT_TRUE(options().XPFilter);
}

TEST_F(ControlTest, WithoutAViewThePlugInSaysSoOnceAStep) {
    HaveSound("Bell.wav");
    std::filesystem::remove(plugin_folder.path() / "Ombrel_View.xml");
    Start();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #53 occured in 'FileToString' of class 'ViewHandler'",
                                           HasSubstr("occured in 'CreateMainView' of class 'ViewHandler'"),
                                           "Error #91 occured in 'InitControls' of class 'ControlHandler'"));
}

TEST_F(ControlTest, SoundChoicesHoldTheFilesOfTheirFoldersAndStartAtNone) {
    for (const char* file : {"gong.wav", "Bell.WAV", "notes.txt", "Loop/Horn.wav"}) HaveSound(file);
    for (const char* shipped : {"Sounds/Loop", "Sounds"})
        for (const auto& file : std::filesystem::directory_iterator(plugin_folder.path() / shipped))
            if (file.is_regular_file() && file.file_size() > 4) std::filesystem::remove(file);
    Start();
    const auto texts = [](const host::Choice& choice) {
        std::vector<std::string> all;
        for (std::int32_t i = 0; i < choice.Count(); ++i) all.push_back(choice.Text(i));
        return all;
    };
    for (const auto& choice : {options().ChatColorSound, options().ChatCustomSound}) {
        EXPECT_THAT(texts(*choice), ElementsAre("None", "Bell.WAV", "gong.wav"));
        EXPECT_EQ(choice->Selected(), 0);
    }
    for (const auto& choice : {options().AlarmHealthSound, options().AlarmStaminaSound, options().AlarmManaSound}) {
        EXPECT_THAT(texts(*choice), ElementsAre("None", "Horn.wav"));
        EXPECT_EQ(choice->Selected(), 0);
    }
}

TEST_F(ControlTest, AControlMayOutliveItsReader) {
    Start();
    const std::array<std::int32_t, 1> version{1};
    options().Init_Lists(version);
    Vars::Loaded = true;
    auto& box = *client.view()->Get<sim::SimCheckbox>("HUD_On");
    for (const bool on : {true, false}) {
        box.Check(on);
        EXPECT_EQ(hud::FrameOf(hud::kMain).Enabled(), on);
    }
    options().ReleaseControls();
    box.Check(true);
    EXPECT_FALSE(hud::FrameOf(hud::kMain).Enabled());
}

TEST_F(ControlTest, ListsStartFromTheirBuiltInRows) {
    Start();
    const std::array<std::int32_t, 4> version{1, 1, 0, 1};
    for (int round = 0; round < 2; ++round) {
        options().Init_Lists(version);
        struct Row {
            Ref<host::List> list;
            std::int32_t count;
            std::string_view last;
        };
        const Row rows[] = {
            {options().HudGeneral, 5, "Target"},       {options().ChatOptions, 19, "Show Friends Online on Login"},
            {options().ChatColor, 38, "Kill Message"}, {options().HudList, 15, "XP Change"},
            {options().ChatLogOptions, 19, "Other"},   {options().HudClockList, 30, "M"},
        };
        for (const auto& row : rows) {
            ASSERT_EQ(row.list->Count(), row.count);
            EXPECT_EQ(CellText(*row.list, 1, row.count - 1), row.last);
        }
        for (const auto& list : {options().ChatAlias, options().ChatFilter, options().HudItems, options().ChatCustom,
                                 options().VitalsExceptions}) {
            EXPECT_EQ(list->Count(), 0);
            list->AddRow();
        }
        for (const auto& list :
             {options().ChatColor, options().HudList, options().HudGeneral, options().HudClockList}) {
            EXPECT_EQ(list->Color(1, 0), 0xFFFF80);
            EXPECT_NE(list->Color(1, 1), 0xFFFF80);
        }
        EXPECT_TRUE(CellFlag(*options().HudGeneral, 0, 4));
        EXPECT_EQ(CellText(*options().HudGeneral, 2, 0), "Arial");
        EXPECT_EQ(CellIcon(*options().HudGeneral, 4, 0), 116);
        EXPECT_EQ(CellText(*options().ChatColor, 2, 7), "D");
        EXPECT_EQ(CellIcon(*options().ChatColor, 3, 7), 114);
        EXPECT_EQ(CellText(*options().ChatColor, 4, 7), "None");
        EXPECT_FALSE(CellFlag(*options().HudList, 0, 5));
        EXPECT_EQ(CellText(*options().HudClockList, 1, 13), "AST");
        EXPECT_EQ(CellText(*options().HudClockList, 2, 13), "-4");
        EXPECT_EQ(CellText(*options().HudClockList, 2, 3), "");
        options().HudList->SetData(0, 5, true);
    }
    const std::array<std::int32_t, 4> old{0, 0, 0, 0};
    options().Init_Lists(old);
    for (const std::int32_t row : {4, 5, 6, 7, 8})
        EXPECT_EQ(CellFlag(*options().HudList, 0, row), row >= 5 && row <= 7);
}

TEST_F(ControlTest, RowsAreFoundByNameWhateverHappensToTheList) {
    Start();
    const std::array<std::int32_t, 1> version{1};
    options().Init_Lists(version);
    struct Row {
        std::string_view name;
        std::string_view list;
        std::int32_t row;
    };
    const Row rows[] = {
        {"Level", "HudList", 0},      {"Level", "ChatLog", 15},      {"Date", "HudClock", 2},
        {"Tells In", "ChatColor", 4}, {"tells in", "ChatColor", -1}, {"Add XP/Hr", "ChatOptions", 2},
        {"Level", "ChatOptions", -1}, {"Level", "Hud List", -1},     {"", "ChatColor", -1},
    };
    for (int round = 0; round < 2; ++round) {
        for (const auto& row : rows) EXPECT_EQ(options().FindName(row.name, row.list), row.row) << row.name;
    }
    options().ChatColor->DeleteRow(0);
    EXPECT_EQ(options().FindName("Tells In", "ChatColor"), 3);
    options().ChatColor->SetData(1, 0, std::string("Tells In"));
    EXPECT_EQ(options().FindName("Tells In", "ChatColor"), 0) << "the first of two";
    EXPECT_EQ(options().FindName("Open Chat In", "ChatColor"), -1);
    options().ChatColor->Clear();
    EXPECT_EQ(options().FindName("Tells In", "ChatColor"), -1);
}

TEST_F(ControlTest, TogglesFlipTheRowTheHudAndTheFile) {
    Start();
    const std::array<std::int32_t, 1> version{1};
    options().Init_Lists(version);
    Vars::SettingsState = 2;
    options().HudOn->SetChecked(true);
    struct Row {
        void (ControlHandler::*toggle)();
        std::int32_t row;
        std::string_view element;
    };
    const Row rows[] = {
        {&ControlHandler::ToggleMain, hud::kMain, "HUD_Main"},
        {&ControlHandler::ToggleItem, hud::kItems, "HUD_Items"},
        {&ControlHandler::ToggleClock, hud::kClock, "HUD_Clock"},
        {&ControlHandler::ToggleTarget, hud::kTarget, "HUD_Target"},
        {&ControlHandler::ToggleStatus, hud::kStatus, "HUD_Status"},
    };
    for (const auto& row : rows) {
        for (const bool on : {false, true}) {
            (options().*row.toggle)();
            EXPECT_EQ(hud::FrameOf(row.row).Enabled(), on) << row.element;
            EXPECT_THAT(common_data.Read("Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml"),
                        HasSubstr(fmt::format("<{} on=\"{}\"", row.element, on ? "True" : "False")));
        }
    }
    options().ToggleAll();
    EXPECT_FALSE(hud::FrameOf(hud::kClock).Enabled());
    options().ToggleClock();
    options().ToggleClock();
    EXPECT_FALSE(hud::FrameOf(hud::kClock).Enabled()) << "HUDs are off as a whole";
    options().ToggleAll();
    EXPECT_TRUE(hud::FrameOf(hud::kClock).Enabled());

    options().OutputMain->SetChecked(true);
    Forget();
    options().ToggleBeers();
    EXPECT_TRUE(options().UseBeers->Checked());
    options().ToggleAFK();
    EXPECT_TRUE(options().ChatLogAFK->Checked());
    EXPECT_THAT(calls, Contains(HasSubstr("*afk*")));
}

}  // namespace
}  // namespace ombrel::test
