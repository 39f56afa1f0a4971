#include <fmt/format.h>

#include <optional>
#include <pugixml.hpp>
#include <set>

#include "automation/EventQueue.h"
#include "chat/ChatTextHandler.h"
#include "config/SettingsTable.h"
#include "config/ViewHandler.h"
#include "core/Hub.h"
#include "core/cells.h"
#include "hud/HUDTargetHandler.h"
#include "stats/Statistics.h"
#include "tests/support/Mishaps.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

using settings::Attribute;
using settings::Element;
using settings::Rows;

constexpr std::string_view kOwn = "Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml";
constexpr std::string_view kGlobal = "Ombrel/Settings/Ombrel_Global_Settings.xml";
constexpr std::string_view kDefaults = "Ombrel/Settings/Ombrel_Settings.xml";

std::string Document(std::string_view elements, std::string_view version = "1.1.0.1") {
    return fmt::format("<Ombrel Version=\"{}\">{}</Ombrel>", version, elements);
}

class SettingsTest : public PluginTest {
protected:
    void SetUp() override {
        HaveSound("Loop/Bell.wav");
        std::filesystem::remove_all(common_data.path() / "Ombrel");
        Start();
    }

    void Load(std::string_view text) {
        common_data.Write(kOwn, text);
        options().Settings_Load(0);
    }

    std::string Saved() const { return common_data.Read(kOwn); }

    // An attribute of the saved file.
    std::string Value(std::string_view element, std::string_view attribute, std::string_view name = {}) const {
        pugi::xml_document document;
        const std::string text = Saved();
        EXPECT_TRUE(document.load_buffer(text.data(), text.size())) << text;
        const std::string tag(element);  // outlives the walk
        for (const pugi::xml_node& node : document.document_element().children(tag.c_str())) {
            if (name.empty() || node.attribute("name").value() == name)
                return node.attribute(std::string(attribute).c_str()).as_string("(missing)");
        }
        return "(no element)";
    }

    std::set<std::string> Files() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(common_data.path() / "Ombrel/Settings"))
            names.insert(entry.path().filename().string());
        return names;
    }

    // An element that stands once, or the first row of its list.
    static std::string Tag(const Element& element, std::string_view attribute = {}, std::string_view value = {}) {
        std::string text = fmt::format("<{}", element.name);
        if (element.rows != Rows::kOnce && element.rows != Rows::kAppended)
            text += fmt::format(" name=\"{}\"", CellText(*(options().*element.list), 1, 0));
        if (!attribute.empty()) text += fmt::format(" {}=\"{}\"", attribute, value);
        return text + "/>";
    }
};

// A value that differs from the default; nothing where the player's list names the value itself.
std::optional<std::string> Sample(const Attribute& attribute) {
    struct Visitor {
        const Attribute& attribute;
        using Text = std::optional<std::string>;

        Text Flipped() const { return attribute.missing == "True" ? "False" : "True"; }
        Text operator()(const settings::InCheckbox&) const { return Flipped(); }
        Text operator()(const settings::InEdit&) const { return "57 &lt;or &quot;more&quot;&amp;&#10;"; }
        Text operator()(const settings::InPercent&) const { return "35%"; }
        Text operator()(const settings::InChoice&) const { return "2"; }
        Text operator()(const settings::InSound&) const { return "Bell.wav"; }
        Text operator()(const settings::InFlag&) const { return Flipped(); }
        Text operator()(const settings::InText&) const {
            return attribute.name == "font" ? "Verdana" : attribute.name == "alpha" ? "30%" : "M &amp; 2";
        }
        Text operator()(const settings::InNumber&) const { return "12"; }
        Text operator()(const settings::InHudColor&) const { return "Light Orange"; }
        Text operator()(const settings::InChatColor&) const { return "Purple"; }
        Text operator()(const settings::InName&) const { return {}; }
        Text operator()(const settings::InOlderFlag&) const { return {}; }
        Text operator()(settings::InCanvas part) const {
            return part == settings::InCanvas::kX || part == settings::InCanvas::kY ? "33" : Flipped();
        }
        Text operator()(settings::InView) const { return "77"; }
        Text operator()(const settings::InSelectedSpell&) const { return "Strength Self VI"; }
    };
    return std::visit(Visitor{attribute}, attribute.place);
}

std::string Unescaped(const std::string& text) {
    pugi::xml_document document;
    document.load_string(("<a b=\"" + text + "\"/>").c_str());
    return document.document_element().attribute("b").value();
}

TEST_F(SettingsTest, EveryAttributeComesBackAndFallsToItsDefault) {
    Load(Document(""));
    for (const Element& element : settings::kElements) {
        for (const Attribute& attribute : element.attributes) {
            const auto sample = Sample(attribute);
            if (!sample) continue;
            SCOPED_TRACE(fmt::format("{} {}", element.name, attribute.name));
            const bool follows_row_0 = element.name == "HUD_Clock" && attribute.name == "color";
            const auto written = [&] { return Value(element.name, attribute.name); };

            Load(Document(Tag(element, attribute.name, *sample)));
            EXPECT_EQ(written(), follows_row_0 ? "0" : Unescaped(*sample));
            const std::string first = Saved();

            Load(Document(Tag(element)));
            const bool chat_color = std::holds_alternative<settings::InChatColor>(attribute.place);
            EXPECT_EQ(written(), chat_color ? "White" : attribute.missing);

            Load(first);
            EXPECT_EQ(Saved(), first);
        }
    }
}

TEST_F(SettingsTest, AWrongValueEndsTheLoadAndLeavesTheFile) {
    const auto wants_number_or_flag = [](const settings::Place& place) {
        return !std::holds_alternative<settings::InEdit>(place) && !std::holds_alternative<settings::InText>(place) &&
               !std::holds_alternative<settings::InPercent>(place) &&
               !std::holds_alternative<settings::InSound>(place) &&
               !std::holds_alternative<settings::InHudColor>(place) &&
               !std::holds_alternative<settings::InChatColor>(place) &&
               !std::holds_alternative<settings::InName>(place) &&
               !std::holds_alternative<settings::InSelectedSpell>(place);
    };
    Load(Document(""));
    int tried = 0;
    for (const Element& element : settings::kElements) {
        for (const Attribute& attribute : element.attributes) {
            if (!wants_number_or_flag(attribute.place)) continue;
            SCOPED_TRACE(fmt::format("{} {}", element.name, attribute.name));
            const std::string text = Document("<Exp filterthreshold=\"12\"/>" + Tag(element, attribute.name, "seven"));
            Load(text);
            EXPECT_EQ(Vars::SettingsState, 1);
            EXPECT_EQ(options().XPFilterThreshold->Text(), "12") << "read before the wrong value";
            EXPECT_THAT(documents.Read("Asheron's Call/Ombrel Errors.txt"),
                        HasSubstr(fmt::format("({} {})", element.name, attribute.name)));
            EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'Settings_Load 1' of class 'ControlHandler'"));
            options().Settings_Save(0);
            EXPECT_EQ(Saved(), text);
            ++tried;
            Load(Document(""));
        }
    }
    EXPECT_GT(tried, 90);
}

TEST_F(SettingsTest, ValuesThatNothingAnswersToAreFailures) {
    for (const auto& [elements, report] : {std::pair{"<HUD_LIST name=\"Fame\"/>", "Error #9"},
                                           {"<Clock_List enabled=\"True\"/>", "Error #9"},
                                           {"<Location x=\"2147483647\"/>", "Error #6"},
                                           {"<Location x=\"3000000000\"/>", "Error #6"}}) {
        Load(Document(elements));
        EXPECT_EQ(Vars::SettingsState, 1) << elements;
        EXPECT_THAT(TakeReports(), ElementsAre(StartsWith(report))) << elements;
    }
    Load(Document("", "one"));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'Settings_Load 1' of class 'ControlHandler'"));
}

TEST_F(SettingsTest, AnEntryThatAChoiceLacksLeavesItAsItWas) {
    Load(Document("<HUD_Main timeout=\"7\"/><HUD_Status lines=\"4\"/><HUD_Target color=\"2\"/>"));
    Load(Document("<HUD_Main timeout=\"8\"/><HUD_Status lines=\"2147483647\"/><HUD_Target color=\"-2\"/>"));
    EXPECT_EQ(Vars::SettingsState, 2);
    EXPECT_EQ(Value("HUD_Main", "timeout"), "7");
    EXPECT_EQ(Value("HUD_Status", "lines"), "4");
    EXPECT_EQ(Value("HUD_Target", "color"), "2");
}

TEST_F(SettingsTest, FlagsMayBeNumbersAndTextsStayAsTheyAre) {
    Load(
        Document("<Exp auto=\"-1\" filter=\"0\"/><Spells selected=\"-1\"/><Chat_Color name=\"Emotes\" enabled=\"1\"/>"
                 "<Chat_Alias full=\"x\"/><Corpses track=\"TRUE\"/>"
                 "<One_Touch block=\"90%\" success=\"90\" cheap=\"many\" fallback=\"62%\"/>"));
    EXPECT_EQ(Value("Exp", "auto"), "True");
    EXPECT_EQ(Value("Exp", "filter"), "False");
    EXPECT_EQ(Value("Spells", "selected"), "");
    EXPECT_EQ(Value("Chat_Color", "enabled", "Emotes"), "True");
    EXPECT_EQ(Value("Chat_Alias", "abbr"), "False");
    EXPECT_EQ(Value("Corpses", "track"), "True");
    EXPECT_EQ(options().VitalsBlock->Text(), "90%");
    EXPECT_EQ(options().VitalsBlockSlider->Position(), 90);
    EXPECT_EQ(options().VitalsSuccess->Text(), "90");
    EXPECT_EQ(options().VitalsSuccessSlider->Position(), 90);
    EXPECT_EQ(options().VitalsCheap->Text(), "80%");
    EXPECT_EQ(options().VitalsCheapSlider->Position(), 80);
    EXPECT_EQ(options().VitalsFallbackSlider->Position(), 62);

    Load(Document("<Chat_Log max=\"99999999999\"/><One_Touch block=\"99999999999%\" success=\"-1e40\"/>"));
    EXPECT_EQ(Vars::SettingsState, 2) << "what can be typed can be loaded";
    EXPECT_EQ(options().VitalsBlockSlider->Position(), 100);
    EXPECT_EQ(options().VitalsSuccessSlider->Position(), 0);
}

TEST_F(SettingsTest, WhatItDoesNotKnowIsPassedOver) {
    Load(Document(
        "\r\t<!-- by hand --><exp auto=\"True\"/><Wings on=\"yes\"/>text<Chat_Option name=\"Gone\" enabled=\"x\"/>"
        "<Chat_Color name=\"\"/><Chat_Log_Option view=\"True\"/>"
        "<Exp filterthreshold=\"9\" colour=\"red\"/>\r"));
    EXPECT_EQ(Vars::SettingsState, 2);
    EXPECT_EQ(Value("Exp", "filterthreshold"), "9");
    EXPECT_EQ(Value("Exp", "auto"), "False");
    EXPECT_EQ(Saved().find("Gone"), std::string::npos);
    EXPECT_EQ(Saved().find("Wings"), std::string::npos);
}

TEST_F(SettingsTest, TheOrderOfHudLinesIsThePlayers) {
    Load(Document(
        "<HUD_LIST name=\"Coords\" enabled=\"True\" color=\"Peach\"/><HUD_LIST name=\"XP/Hr\" enabled=\"True\"/>"
        "<HUD_LIST name=\"XP Change\" enabled=\"True\"/>"));
    const auto name = [](std::int32_t row) { return CellText(*options().HudList, 1, row); };
    EXPECT_EQ(name(0), "Coords");
    EXPECT_EQ(name(1), "Session XP/Hour");
    EXPECT_EQ(name(2), "XP Change");
    EXPECT_EQ(name(11), "Level") << "the rows that were in the way stand where the others came from";
    EXPECT_EQ(name(3), "Session Time");
    EXPECT_EQ(Value("HUD_LIST", "color", "Coords"), "Peach");
    EXPECT_EQ(options().FindName("Session XP/Hour", "HudList"), 1);
    EXPECT_TRUE(Vars::Statistics->XPChangeOn);

    Load(Document("<HUD_LIST name=\"XP Change\"/>"));
    EXPECT_FALSE(Vars::Statistics->XPChangeOn);
    EXPECT_EQ(name(1), "Session Time");
}

TEST_F(SettingsTest, AnOldFileHoldsNumbersInPlaceOfNames) {
    Load(
        "<Ombrel><Selected_Spell>Armor Self I</Selected_Spell>"
        "<HUD_Main on=\"-1\" font=\"3\" size=\"2\" bgcolor=\"16\" alpha=\"4\"/>"
        "<HUD_Clock font=\"1\" date=\"-1\" gt=\"True\"/><HUD_Items size=\"0\"/>"
        "<HUD_Status font=\"Times\" size=\"14\"/></Ombrel>");
    EXPECT_EQ(options().SelectedSpell, "Armor Self I");
    EXPECT_EQ(Value("HUD_Main", "font"), "Impact");
    EXPECT_EQ(Value("HUD_Main", "size"), "10");
    EXPECT_EQ(Value("HUD_Main", "bgcolor"), "Orange");
    EXPECT_EQ(Value("HUD_Main", "alpha"), "60%");
    EXPECT_EQ(Value("HUD_Clock", "font"), "Courier");
    EXPECT_EQ(Value("HUD_Clock", "size"), "16");
    EXPECT_EQ(Value("HUD_Clock", "gt"), "(missing)");
    EXPECT_EQ(Value("Clock_List", "enabled", "Date"), "True");
    EXPECT_EQ(Value("Clock_List", "enabled", "Game Time"), "True");
    EXPECT_EQ(Value("HUD_Items", "size"), "8");
    EXPECT_EQ(Value("HUD_Status", "font"), "Times");
    EXPECT_EQ(Value("HUD_LIST", "enabled", "Total XP"), "True");
    EXPECT_EQ(Value("HUD_LIST", "enabled", "Level"), "False");

    for (const std::string_view font : {"Arial", "7", "-1"}) {
        Load(fmt::format("<Ombrel Version=\"0.9\"><HUD_Main font=\"{}\"/></Ombrel>", font));
        EXPECT_EQ(Vars::SettingsState, 1) << font;
        EXPECT_EQ(TakeReports().size(), 1U) << font;
    }
}

TEST_F(SettingsTest, ALoadReachesWhatKeepsACopy) {
    Load(Document(
        "<Util eventstart=\"True\"/><Output_Windows main=\"True\" win2=\"True\"/><HUD_All on=\"True\"/>"
        "<Location x=\"11\" y=\"22\"/>"
        "<HUD_Main on=\"True\" font=\"Times\" size=\"20\" alpha=\"50%\" timeout=\"3\" outline=\"True\" x=\"7\"/>"
        "<HUD_Status on=\"True\" alpha=\"100%\" bgcolor=\"Blue\"/><HUD_Items iconsize=\"2\" on=\"False\"/>"
        "<HUD_Target on=\"True\" color=\"3\" alpha=\"0%\" bgcolor=\"Red\" y=\"9\"/>"
        "<Vital_Alarm healthsound=\"Bell.wav\"/>"));
    EXPECT_TRUE(Vars::EventQueue->autorun);
    for (const std::int32_t window : {0, 1, 2, 3, 4})
        EXPECT_EQ(Vars::ChatTextHandler->GetTargetList(window, 32), window == 0 || window == 2) << window;
    EXPECT_EQ(Vars::ViewHandler->MainView->Position(), (host::Rect{11, 22, 241, 282}));
    const auto running = client.clock.Running();
    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(running[0]->interval(), 5000) << "the main HUD's";

    const auto& main = hud::FrameOf(hud::kMain);
    EXPECT_TRUE(main.Enabled());
    EXPECT_EQ(main.FontFace(), "Times New Roman");
    EXPECT_EQ(main.FontSize(), 20);
    EXPECT_EQ(main.BackgroundColor, ConvertColor("Black", 5));
    EXPECT_TRUE(main.Outline);
    EXPECT_EQ(main.x(), 7);
    EXPECT_EQ(hud::FrameOf(hud::kStatus).BackgroundColor, ConvertColor("Blue", 0));
    EXPECT_EQ(hud::FrameOf(hud::kItems).IconSize, 24);
    EXPECT_FALSE(hud::FrameOf(hud::kItems).Enabled());
    const auto& target = hud::FrameOf(hud::kTarget);
    EXPECT_EQ(target.BackgroundColor, ConvertColor("Red", 10));
    EXPECT_EQ(Vars::HUDTargetHandler->TargetHud->FontColor, "Red");
    EXPECT_EQ(target.y(), 9);

    Load(Document("<HUD_All on=\"False\"/><HUD_Main on=\"True\"/>"));
    EXPECT_FALSE(hud::FrameOf(hud::kMain).Enabled()) << "HUDs are off as a whole";
}

TEST_F(SettingsTest, DetailChoicesShowTheFirstRows) {
    Load(
        Document("<Chat_Color name=\"Ombrel\" color=\"Pink\"/><Clock_List name=\"Down Timer\" color=\"Yellow\"/>"
                 "<HUD_LIST name=\"Kills\" color=\"Grey\"/><HUD_Main font=\"Impact\" size=\"9\" alpha=\"0%\"/>"));
    const auto text = [](const host::Choice& choice) { return choice.Text(choice.Selected()); };
    EXPECT_EQ(text(*options().ChatColorColor), "Pink");
    EXPECT_EQ(text(*options().HudClockColor), "Yellow");
    EXPECT_EQ(text(*options().HudMainColor), "Grey");
    EXPECT_EQ(text(*options().HudGeneralFont), "Impact");
    EXPECT_EQ(text(*options().HudGeneralSize), "9");
    EXPECT_EQ(text(*options().HudGeneralBGAlpha), "0%");
    EXPECT_EQ(text(*options().HudGeneralBGColor), "Black");
}

TEST_F(SettingsTest, WhatCannotBeFoundGivesWayToDefaults) {
    const std::string defaults = Document("<Exp filterthreshold=\"1\"/>");
    const std::string shipped = Document("<Exp filterthreshold=\"2\"/>");
    const std::string own_missing = "<Ombrel> Failed to find character's settings, loading defaults";
    const std::string global_missing = "<Ombrel> Failed to find global settings, loading defaults";
    const std::string failed = "<Ombrel> Loading setting defaults failed.";
    const struct {
        std::int32_t action;
        bool global, have_defaults, have_shipped;
        std::vector<std::string> said;
        std::string threshold;  // empty when nothing is loaded
    } rows[] = {{1, false, true, true, {}, "1"},
                {1, true, false, true, {failed}, ""},
                {0, false, true, true, {own_missing}, "1"},
                {0, false, false, true, {own_missing, failed}, ""},
                {0, true, true, true, {global_missing}, "2"},
                {0, true, true, false, {global_missing, failed}, ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(fmt::format("action {} global {}", row.action, row.global));
        for (const auto file : {kOwn, kGlobal, kDefaults}) std::filesystem::remove(common_data.path() / file);
        std::filesystem::remove(plugin_folder.path() / kDefaults);
        if (row.have_defaults) common_data.Write(kDefaults, defaults);
        if (row.have_shipped) plugin_folder.Write(kDefaults, shipped);
        options().GlobalSettings->SetChecked(row.global);
        Forget();

        options().Settings_Load(row.action);
        EXPECT_EQ(Texts(), row.said);
        EXPECT_EQ(Vars::SettingsState, row.threshold.empty() ? 0 : 2);
        const std::string written = common_data.Read(row.global ? kGlobal : kOwn);
        if (row.threshold.empty())
            EXPECT_EQ(written, "");
        else
            EXPECT_THAT(written, HasSubstr(fmt::format("filterthreshold=\"{}\"", row.threshold)));
    }
}

TEST_F(SettingsTest, ABrokenFileIsKeptBesideWhatTakesItsPlace) {
    common_data.Write(kDefaults, Document("<Exp/>"));
    Load(Document("<Exp filterthreshold=\"5\"/>"));
    const std::string whole = Saved();

    std::vector<std::string> broken{"", "no XML at all", std::string(4096, '\0'), "<Ombrel", "\xFF\xFE<\0O"};
    for (std::size_t cut = 1; cut < whole.size() - 1; cut += whole.size() / 23) broken.push_back(whole.substr(0, cut));
    for (const std::string& text : broken) {
        SCOPED_TRACE(text.substr(0, 40));
        std::filesystem::remove_all(common_data.path() / "Ombrel/Settings");
        common_data.Write(kDefaults, Document("<Exp/>"));
        Forget();
        Load(text);
        EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Failed to find character's settings, loading defaults"));
        EXPECT_EQ(Vars::SettingsState, 2);
        EXPECT_EQ(Value("Exp", "filterthreshold"), "750");
        ASSERT_EQ(Files().size(), 3U);
        for (const auto& name : Files()) {
            if (name.find("(unreadable ") == std::string::npos) continue;
            EXPECT_EQ(common_data.Read("Ombrel/Settings/" + name), text);
        }
        options().Settings_Save(0);
        EXPECT_EQ(Files().size(), 3U) << "one copy is enough";
    }
}

TEST_F(SettingsTest, WhatIsNotTakenOverIsKeptToo) {
    common_data.Write(kDefaults, Document("<Exp/>"));
    const auto kept = [this](const std::string& text) {
        for (const auto& name : Files()) {
            if (name.find("(not taken over ") != std::string::npos &&
                common_data.Read("Ombrel/Settings/" + name) == text)
                return true;
        }
        return false;
    };

    const std::string foreign = "<Garage Version=\"3\"><Car/></Garage>";
    Load(foreign);
    EXPECT_EQ(Vars::SettingsState, 2);
    EXPECT_TRUE(kept(foreign));

    // The load fails, and the player goes back to the defaults.
    const std::string wrong = Document("<Exp filterthreshold=\"5\"/><Corpses track=\"maybe\"/>");
    Load(wrong);
    EXPECT_EQ(TakeReports().size(), 1U);
    EXPECT_EQ(Saved(), wrong);
    options().Settings_Load(1);
    EXPECT_EQ(Value("Exp", "filterthreshold"), "750");
    EXPECT_TRUE(kept(wrong));

    // Defaults that nobody has opened yet.
    common_data.Write(kDefaults, "scrap");
    Vars::SettingsState = 2;
    options().Settings_Load(1);
    options().Settings_Load(0);
    options().Settings_Save(1);
    EXPECT_EQ(Files().size(), 5U);
}

TEST_F(SettingsTest, NothingIsSavedBeforeSettingsAreComplete) {
    for (const std::int32_t state : {0, 1}) {
        Vars::SettingsState = state;
        options().Settings_Save(0);
        options().Settings_Save(1);
    }
    EXPECT_FALSE(std::filesystem::exists(common_data.path() / "Ombrel"));

    options().Init_Lists({});
    Vars::SettingsState = 2;
    options().Settings_Save(1);
    EXPECT_THAT(Files(), ElementsAre("Ombrel_Settings.xml"));
}

TEST_F(SettingsTest, TheShippedDefaultsComeBackByteForByte) {
    const std::string shipped = plugin_folder.Read(kDefaults);
    ASSERT_FALSE(shipped.empty());
    common_data.Write(kDefaults, shipped);
    LogIn();
    EXPECT_TRUE(Vars::Loaded);
    EXPECT_EQ(Saved(), shipped);
}

TEST_F(SettingsTest, AKillOrAFullDiskAtAnyMomentLeavesAWholeFile) {
    Load(Document("<Exp filterthreshold=\"0\"/>"));
    const std::size_t size = Saved().size();
    const auto save = [](int i) {
        options().XPFilterThreshold->SetText(std::to_string(i % 10));
        options().Settings_Save(0);
    };
    for (int kill = 0; kill < Kills(); ++kill) {
        KillWhileDoing(save);
        EXPECT_EQ(Saved().size(), size) << "kill " << kill;
        options().Settings_Load(0);
        ASSERT_EQ(Vars::SettingsState, 2) << "kill " << kill;
        EXPECT_THAT(Texts(), IsEmpty());
    }
    const std::string before = Saved();
    {
        const FullDisk full;
        save(6);
    }
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("occured in 'Settings_Save' of class 'ControlHandler'")));
    EXPECT_EQ(Saved(), before);
    EXPECT_EQ(Files().size(), 1U);
    save(6);
    EXPECT_EQ(Value("Exp", "filterthreshold"), "6");
}

TEST_F(SettingsTest, DebugLinesTellOfEachLoadAndSave) {
    Vars::DebugMode = true;
    Load(Document("<Location x=\"1\" y=\"2\"/>"));
    Vars::DebugMode = false;
    const std::string log = documents.Read("Asheron's Call/Ombrel Debug.txt");
    EXPECT_THAT(log, HasSubstr(" - Settings Load with action 0"));
    EXPECT_THAT(log, HasSubstr(" - 2, 1, 231, 262"));
    EXPECT_THAT(log, HasSubstr(" - Settings Save with action 0, settings state 2"));
}

}  // namespace
}  // namespace ombrel::test
