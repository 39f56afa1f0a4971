// The pages of chat colours, rules, words and aliases.
#include <fmt/format.h>

#include "chat/ChatTextHandler.h"
#include "config/ControlTools.h"
#include "core/cells.h"
#include "tests/config/ViewTest.h"

namespace ombrel::test {
namespace {

class ChatControlsTest : public ViewTest {
protected:
    void SetUp() override {
        HaveSound("Gong.wav");
        LogIn();
        Check("Output_Main", true);
        Saved();
        Forget();
    }

    static std::vector<std::string> Column(const host::List& list, std::int32_t column) {
        std::vector<std::string> texts;
        for (std::int32_t row = 0; row < list.Count(); ++row) texts.push_back(CellText(list, column, row));
        return texts;
    }

    // A rule that answers a word with an action.
    void AddRule(std::string_view text, std::string_view window, const char* color) {
        Put("Chat_Custom_Text", text);
        Put("Chat_Custom_Window", window);
        Pick("Chat_Custom_Color", color);
        Press("Chat_Custom_Add");
    }
};

TEST_F(ChatControlsTest, TheChoicesShowTheMarkedKindOfLineAndChangeIt) {
    const std::int32_t row = options().FindName("Tells In", "ChatColor");
    Click("Chat_Color", 0, row);  // its box, too
    EXPECT_EQ(Picked("Chat_Color_Color"), "Default");
    EXPECT_EQ(Picked("Chat_Color_Window"), "D: default");
    EXPECT_EQ(Picked("Chat_Color_Sound"), "None");
    Pick("Chat_Color_Color", "Turquoise");
    Pick("Chat_Color_Window", "2: window 2");
    Pick("Chat_Color_Sound", "Gong.wav");
    EXPECT_EQ(Setting("Chat_Color", "color", row), "Turquoise");
    EXPECT_EQ(Setting("Chat_Color", "window", row), "2");
    EXPECT_EQ(Setting("Chat_Color", "sound", row), "Gong.wav");
    EXPECT_EQ(Setting("Chat_Color", "color", 0), "Default");

    client.ChatText("Tom tells you, \"hello\"\n", 3, 1);
    EXPECT_THAT(lines, ElementsAre(Line{"Tom tells you, \"hello\"", 13, 3}));
    EXPECT_THAT(CallsOf("sndPlaySound"), SizeIs(1));

    Click("Chat_Color", 1, 0);
    EXPECT_EQ(Picked("Chat_Color_Sound"), "None");
    Click("Chat_Color", 1, row);
    EXPECT_EQ(Picked("Chat_Color_Window"), "2: window 2");
    EXPECT_EQ(Picked("Chat_Color_Sound"), "Gong.wav");
    Pick("Chat_Color_Sound", "None");
    EXPECT_EQ(Setting("Chat_Color", "sound", row), "None");
}

TEST_F(ChatControlsTest, RulesAreAddedChangedAndDeleted) {
    Press("Chat_Custom_Edit");
    Press("Chat_Custom_Delete");
    EXPECT_EQ(options().ChatCustom->Count(), 0);
    Pick("Chat_Custom_Type", "2 Open chat");
    Pick("Chat_Custom_Sound", "Gong.wav");
    Put("Chat_Custom_Action", "/say hi");
    AddRule("*apples*", "M1", "Pink");
    EXPECT_TRUE(Saved());
    Pick("Chat_Custom_Type", "All");
    AddRule("*pears*", "B", "Default");
    const host::List& rules = *options().ChatCustom;
    EXPECT_THAT(Column(rules, 1), ElementsAre("*apples*", "*pears*"));
    EXPECT_THAT(Column(rules, 3), ElementsAre("2", "All"));

    // A click shows a rule, and its fields change it.
    Click("Chat_Custom", 1, 0);
    EXPECT_EQ(options().ChatCustomText->Text(), "*apples*");
    EXPECT_EQ(options().ChatCustomWindow->Text(), "M1");
    EXPECT_EQ(options().ChatCustomAction->Text(), "/say hi");
    EXPECT_EQ(Picked("Chat_Custom_Type"), "2 Open chat");
    EXPECT_EQ(Picked("Chat_Custom_Color"), "Pink");
    EXPECT_EQ(Picked("Chat_Custom_Sound"), "Gong.wav");
    Put("Chat_Custom_Window", "3");
    Press("Chat_Custom_Edit");
    EXPECT_THAT(Column(rules, 2), ElementsAre("3", "B"));
    EXPECT_EQ(Setting("Chat_Custom", "window"), "3");

    Press("Chat_Custom_Delete");
    EXPECT_THAT(Column(rules, 1), ElementsAre("*pears*"));
    Press("Chat_Custom_Delete");
    EXPECT_EQ(rules.Count(), 1) << "no rule is marked";
    client.ChatText("Tom says, \"pears\"\n", 2, 1);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(ChatControlsTest, ARuleMovesWithAllItsCellsAndItsMark) {
    Put("Chat_Custom_Action", "/say one");
    AddRule("*one*", "M", "Red");
    Put("Chat_Custom_Action", "");
    AddRule("*two*", "1", "Default");
    AddRule("*three*", "2", "Green");
    Click("Chat_Custom", 0, 0);  // off
    Saved();
    Press("Chat_Custom_Up");
    EXPECT_TRUE(Saved()) << "the first goes no higher, and is saved all the same";
    const host::List& rules = *options().ChatCustom;
    EXPECT_THAT(Column(rules, 1), ElementsAre("*one*", "*two*", "*three*"));
    Press("Chat_Custom_Down");
    Press("Chat_Custom_Down");
    Press("Chat_Custom_Down");
    EXPECT_THAT(Column(rules, 1), ElementsAre("*two*", "*three*", "*one*"));
    EXPECT_THAT(Column(rules, 0), ElementsAre("True", "True", "False"));
    EXPECT_THAT(Column(rules, 2), ElementsAre("1", "2", "M"));
    EXPECT_THAT(Column(rules, 6), ElementsAre("", "", "/say one"));
    EXPECT_EQ(Setting("Chat_Custom", "color", 2), "Red");
    const auto& view = Control<sim::SimList>("Chat_Custom");
    EXPECT_EQ(view.color(1, 2), kHighlight);
    EXPECT_NE(view.color(1, 0), kHighlight);
    Press("Chat_Custom_Up");
    EXPECT_THAT(Column(rules, 1), ElementsAre("*two*", "*one*", "*three*"));
}

TEST_F(ChatControlsTest, WordsAreAddedChangedSwitchedAndDeleted) {
    Press("Filter_Add");
    EXPECT_FALSE(Saved());
    Put("Filter_Box", "darn");
    Press("Filter_Add");
    Put("Filter_Box", "drat");
    Check("Chat_Filter_Matching", true);
    Check("Chat_Filter_Action", true);
    Press("Filter_Add");
    const host::List& words = *options().ChatFilter;
    EXPECT_THAT(Column(words, 1), ElementsAre("darn", "drat"));
    EXPECT_THAT(Column(words, 2), ElementsAre("Part", "Whole"));
    EXPECT_THAT(Column(words, 3), ElementsAre("Block", "Replace"));
    EXPECT_EQ(CellIcon(words, 4, 1), 0x60011F8);
    EXPECT_TRUE(client.ChatText("Tom says, \"darn it\"\n", 2, 1));

    Put("Filter_Box", "darn");
    Press("Filter_Add");
    EXPECT_THAT(Column(words, 3), ElementsAre("Replace", "Replace"));
    Click("Chat_Filter", 0, 0);
    EXPECT_EQ(Setting("Chat_Filter", "enabled"), "False");
    EXPECT_FALSE(client.ChatText("Tom says, \"darn it\"\n", 2, 1));
    Click("Chat_Filter", 4, 0);
    Click("Chat_Filter", 4, 7);
    EXPECT_THAT(Column(words, 1), ElementsAre("drat"));
    ComeBack();
    EXPECT_THAT(Column(*options().ChatFilter, 1), ElementsAre("drat"));
}

TEST_F(ChatControlsTest, AliasesAreAddedChangedSwitchedAndDeleted) {
    Put("Alias_Full", "be right back");
    Press("Alias_Add");
    EXPECT_FALSE(Saved());
    Put("Alias_Abbr", "brb");
    Press("Alias_Add");
    Put("Alias_Full", "back soon");
    Press("Alias_Add");
    const host::List& aliases = *options().ChatAlias;
    EXPECT_THAT(Column(aliases, 1), ElementsAre("brb"));
    EXPECT_THAT(Column(aliases, 2), ElementsAre("back soon"));
    Put("Alias_Abbr", "afk");
    Press("Alias_Add");
    Click("Chat_Alias", 1, 0);
    EXPECT_EQ(options().AliasAbbr->Text(), "brb");
    EXPECT_EQ(options().AliasFull->Text(), "back soon");
    Click("Chat_Alias", 0, 1);
    EXPECT_EQ(Setting("Chat_Alias", "enabled", 1), "False");
    Click("Chat_Alias", 3, 0);
    EXPECT_THAT(Column(aliases, 1), ElementsAre("afk"));
}

}  // namespace
}  // namespace ombrel::test
