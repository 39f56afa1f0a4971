#include <fmt/format.h>

#include "core/Hub.h"
#include "tests/chat/ChatTest.h"

namespace ombrel::test {
namespace {

using ChatRulesTest = ChatTest;

TEST_F(ChatRulesTest, FilterWordsAreMaskedWhereTheyStandExactly) {
    const struct {
        const char *word, *mode, *text, *result;
    } rows[] = {
        {"darn", "Whole", "Darned! darn it", "Darned! #### it"},
        {"darn", "Whole", "Darn it", "Darn it"},
        {"darn", "Whole", "darn", "####"},
        {"darn", "Whole", "DARN, darning", "DARN, ####ing"},
        {" Darn ", "Whole", "darn darn", "#### ####"},
        {"darn", "Part", "darned Darn darn", "####ed Darn ####"},
        {"d?rn", "Whole", "a darn shame", "a darn shame"},
        {"b\u00EAte", "Whole", "la b\u00EAte!", "la ####!"},
        {"\u00E9t\u00E9", "Whole", "\u00E9t\u00E9 \u00E9t\u00E9 \u00C9T\u00C9 \u00E9t\u00E9",
         "### ### \u00C9T\u00C9 ###"},
    };
    for (const auto& row : rows) {
        options().ChatFilter->Clear();
        FilterWord(row.word, row.mode, "Replace");
        const auto written = Written(row.text, 2);
        if (written.empty()) {
            EXPECT_EQ(shown.back(), std::string(row.result) + "\n") << row.word;
        } else {
            EXPECT_THAT(written, ElementsAre(Line{row.result, 2, 1})) << row.word;
        }
    }
}

TEST_F(ChatRulesTest, ABlockedWordStopsTheLineEvenBehindAMaskedOne) {
    FilterWord("darn", "Whole", "Replace");
    FilterWord("spam", "Part", "Block");
    EXPECT_FALSE(Shown("darn SPAMMERS", 2));
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_TRUE(Shown("spa m", 2));
    EXPECT_THAT(Written("+spam for all", 2), ElementsAre(Line{"+spam for all", 2, 1}));
    options().ChatFilter->SetData(0, 1, false);
    EXPECT_THAT(Written("darn SPAMMERS", 2), ElementsAre(Line{"#### SPAMMERS", 2, 1}));
}

TEST_F(ChatRulesTest, AWordWithABrokenListFailsOnlyWholeWordSearches) {
    FilterWord("[z-a", "Whole", "Block");
    EXPECT_TRUE(Shown("hello", 2));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #93 occured in 'IncomingText' of class 'ChatTextHandler'"));
    options().ChatFilter->SetData(2, 0, std::string("Part"));
    EXPECT_FALSE(Shown("the [Z-A", 2));
}

TEST_F(ChatRulesTest, NameLinksGoWhenThePlayerWantsPlainText) {
    const std::string line = "<Tell:IIDString:5:Bob>Bob<\\Tell> says, \"hi\"";
    EXPECT_TRUE(Shown(line, 2));
    Switch("No Clickable Names");
    EXPECT_THAT(Written(line, 2), ElementsAre(Line{"Bob says, \"hi\"", 2, 1}));
    EXPECT_THAT(Written("[Trade] <Tell:IIDString:0:Bj\u00F6rn>Bj\u00F6rn<\\Tell> says, \"hi\"", 28),
                ElementsAre(Line{"[Trade] Bj\u00F6rn says, \"hi\"", 28, 1}));
    // A ">" before the link, and a link without an end.
    EXPECT_THAT(Written("a > <Tell:IIDString:5:Bob>Bob<\\Tell>", 2),
                ElementsAre(Line{"a >  <Tell:IIDString:5:Bob>Bob", 2, 1}));
    EXPECT_THAT(Written("<Tell:IIDString:5", 2), ElementsAre(Line{"<Tell:IIDString:5", 2, 1}));
    EXPECT_THAT(Written("\u00EA<\\Tell> x <Tell:IIDString:5:Bob>Bob", 2),
                ElementsAre(Line{"\u00EA x <Tell:Il:IIDString:5:Bob>Bob", 2, 1}));
    EXPECT_TRUE(Shown("<Tell:IIDString:5:Bob<\\Tell>", 2));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'IncomingText' of class 'ChatTextHandler'"));
}

TEST_F(ChatRulesTest, ACustomRuleWritesToEachWindowThatItNames) {
    ShowType(2, {1});
    const struct {
        const char *window, *color;
        std::vector<Line> written;
    } rows[] = {
        {"M2", "Red", {{"*hi*", 21, 1}, {"*hi*", 21, 3}}},
        {"4m", "Default", {{"*hi*", 2, 1}, {"*hi*", 2, 5}}},
        {"D", "Default", {{"*hi*", 2, 2}}},
        {"", "Blue", {{"*hi*", 7, 2}}},
        {"D1", "Blue", {{"*hi*", 7, 2}}},
        {"B", "Blue", {}},
        {"B", "Default", {}},
    };
    for (const auto& row : rows) {
        options().ChatCustom->Clear();
        CustomRule("*hi*", row.window, "2", row.color);
        EXPECT_EQ(Written("*hi*", 2), row.written) << row.window;
        EXPECT_THAT(shown, IsEmpty()) << row.window;
    }
}

TEST_F(ChatRulesTest, ARuleMindsTypeAndCase) {
    CustomRule("Bob*", "1", "2", "Red");
    CustomRule("<Ombrel>*", "2", "OM", "Default");
    CustomRule("<Ombrel>*", "3", "32", "Default");
    CustomRule("Eve*", "M", "All", "Green");
    CustomRule("Eve*", "M", "none", "Green");
    EXPECT_TRUE(Shown("bob waves", 2));
    EXPECT_TRUE(Shown("Bob waves", 12));
    EXPECT_THAT(Written("Bob waves", 2), ElementsAre(Line{"Bob waves", 21, 2}));
    EXPECT_THAT(Written("Eve waves", 12), ElementsAre(Line{"Eve waves", 0, 1}));
    Forget();
    wtcw("Hello");
    EXPECT_THAT(lines, ElementsAre(Line{"<Ombrel> Hello", 5, 3}));
    options().ChatCustom->DeleteRow(1);
    Forget();
    wtcw("Hello");
    EXPECT_THAT(lines, ElementsAre(Line{"<Ombrel> Hello", 5, 4}));
}

TEST_F(ChatRulesTest, ALaterRuleMayWriteWhatAnEarlierOneBlocked) {
    CustomRule("*secret*", "B", "All", "Default");
    CustomRule("*secret*", "M", "2", "Pink");
    CustomRule("*secret*", "1", "2", "Red");
    EXPECT_THAT(Written("a secret", 2), ElementsAre(Line{"a secret", 8, 1}));
    EXPECT_THAT(Written("a secret", 12), IsEmpty());
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_THAT(Written("+a secret", 12), ElementsAre(Line{"+a secret", 12, 1}));
}

TEST_F(ChatRulesTest, ActionsAreLinesOfTheirOwnOrCommands) {
    const std::pair<const char*, Line> rows[] = {
        {"[7,2]Hello", {"Hello", 7, 3}},       {"[99,9]Hello", {"Hello", 5, 1}},
        {"[x,y]Hello", {"Hello", 5, 1}},       {"[]Hello [you] there", {"Hello [you] there", 5, 1}},
        {"[12]Hello", {"Hello", 12, 1}},       {"[12,1,1]Hello", {"Hello", 12, 1}},
        {"[6.6,0.4]Hello]x", {"Hello", 7, 1}}, {"[-1,4]Hello", {"Hello", 5, 1}},
        {" [ 3 , 4 ]Hello ", {"Hello", 3, 5}},
    };
    OwnLinesGoTo({0});
    for (const auto& [action, line] : rows) {
        options().ChatCustom->Clear();
        CustomRule("ping", "B", "2", "Default", action);
        EXPECT_THAT(Written("ping", 2), ElementsAre(line)) << action;
    }
    options().ChatCustom->Clear();
    CustomRule("ping", "B", "2", "Default", "/f one; @tell Bob, two ;[12]three");
    EXPECT_THAT(Written("ping", 2), ElementsAre(Line{"three", 12, 1}));
    EXPECT_THAT(Commands(), ElementsAre("/f one", "@tell Bob, two"));
}

TEST_F(ChatRulesTest, AnActionWithoutItsBracketFailsTheLine) {
    CustomRule("ping", "M", "2", "Red", "[7 Hello;/f never");
    EXPECT_THAT(Written("ping", 2), Contains(Line{"ping", 21, 1}));
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_THAT(TakeReports(), ElementsAre("Error #9 occured in 'IncomingText' of class 'ChatTextHandler'"));
    EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(ChatRulesTest, ARuleThatFeedsItselfEndsWithOneReport) {
    CustomRule("echo*", "M", "All", "Red", "[2]echo;[2]echo again;/f told");
    Shown("echo", 2);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #28 occured in 'IncomingText' of class 'ChatTextHandler'"));
    EXPECT_THAT(lines, SizeIs(25));  // one for each level, and the report
    EXPECT_THAT(Commands(), IsEmpty());

    options().ChatCustom->Clear();
    CustomRule("ping", "M", "2", "Red", "[12]pong;/f told");
    EXPECT_THAT(Written("ping", 2), ElementsAre(Line{"ping", 21, 1}, Line{"pong", 12, 1}));
    EXPECT_THAT(Commands(), ElementsAre("/f told"));
}

TEST_F(ChatRulesTest, RulesThatMultiplyLinesEndWithOneReport) {
    for (int type = 2; type < 9; ++type) {
        std::string actions;
        for (int i = 0; i < 10; ++i) actions += fmt::format("[{}]echo;", type + 1);
        CustomRule("echo", "M", std::to_string(type), "Red", actions);
    }
    Shown("echo", 2);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #28 occured in 'IncomingText' of class 'ChatTextHandler'"));
    EXPECT_LT(lines.size(), 1100u);
}

TEST_F(ChatRulesTest, ABrokenPatternFailsItsOwnLinesAndTheRulesBeforeItWork) {
    CustomRule("first*", "M", "2", "Red");
    CustomRule("[abc", "M", "2", "Red");
    EXPECT_THAT(Written("first", 2), ElementsAre(Line{"first", 21, 1}));
    EXPECT_TRUE(Shown("second", 12));
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(Shown("second", 2));
        EXPECT_THAT(TakeReports(), ElementsAre("Error #93 occured in 'IncomingText' of class 'ChatTextHandler'"));
    }
    options().ChatCustom->SetData(0, 1, false);
    EXPECT_TRUE(Shown("second", 2));
}

TEST_F(ChatRulesTest, AnActionMayTakeItsOwnRuleAway) {
    CustomRule("ping", "M", "2", "Red", "[12]gone;[12]still here");
    client.chat_listener = [this](const sim::Client::ChatLine& line) {
        lines.push_back({line.text, line.color, line.window});
        if (line.text == "gone") options().ChatCustom->Clear();
    };
    EXPECT_THAT(Written("ping", 2), ElementsAre(Line{"ping", 21, 1}, Line{"gone", 12, 1}, Line{"still here", 12, 1}));
}

}  // namespace
}  // namespace ombrel::test
