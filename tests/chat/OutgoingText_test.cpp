#include "core/failure.h"
#include "stats/Statistics.h"
#include "tests/chat/ChatTest.h"

namespace ombrel::test {
namespace {

class OutgoingTextTest : public ChatTest {
protected:
    void SetUp() override {
        ChatTest::SetUp();
        OwnLinesGoTo({0});
        client.object(client.sheet.Character).Coordinates = host::Position{42.1, -33.6};
    }

    // What a command answers, without "<Ombrel> ".
    std::vector<std::string> Answer(const std::string& command) {
        Forget();
        EXPECT_FALSE(Passes(command)) << command;
        std::vector<std::string> answers;
        for (const std::string& line : Texts())
            answers.push_back(line.starts_with("<Ombrel> ") ? line.substr(9) : line);
        return answers;
    }
};

TEST_F(OutgoingTextTest, LinesBeforeLoginAreTheClients) {
    Vars::Loaded = false;
    EXPECT_TRUE(Passes("/m loc"));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(OutgoingTextTest, CommandsNeedTheirLetterAndABlank) {
    for (const char* command : {"/m loc", "/M LOC", "@m   loc ", "  /m loc"})
        EXPECT_THAT(Answer(command), ElementsAre("My Location: 42.1N, 33.6W")) << command;
    for (const char* text : {"/mloc", "/m", "/m ", "m loc", "hello /m loc", ""}) EXPECT_TRUE(Passes(text)) << text;
    for (const char* text : {"/m nonsense", "/m xp now", "/m  level up", "/m locate"}) {
        EXPECT_THAT(Answer(text), IsEmpty()) << text;
        EXPECT_THAT(Commands(), IsEmpty()) << text;
    }
}

TEST_F(OutgoingTextTest, HelpIsFoundAnywhereInTheLine) {
    const auto help = Answer("/m help");
    EXPECT_THAT(help, SizeIs(6));
    EXPECT_THAT(help[0], HasSubstr("Ombrel Version: 1.1.0.1 by "));
    EXPECT_EQ(help[2], "Corpse: \"/m \" + corpse, fcorpse, acorpse, vcorpse, ccorpse, rcorpse, ocorpse ");
    EXPECT_EQ(Answer("/m find helpers"), help);
}

TEST_F(OutgoingTextTest, ReportsGoToTheChannelOfTheirLetter) {
    const std::pair<const char*, const char*> rows[] = {
        {"/m floc", "/f My Location: 42.1N, 33.6W"}, {"/m aloc", "/a My Location: 42.1N, 33.6W"},
        {"/m ploc", "/p My Location: 42.1N, 33.6W"}, {"/m vloc", "/v My Location: 42.1N, 33.6W"},
        {"/m cloc", "/c My Location: 42.1N, 33.6W"}, {"/m rloc", "/r My Location: 42.1N, 33.6W"},
        {"/m oloc", "My Location: 42.1N, 33.6W"},
    };
    for (const auto& [command, sent] : rows) {
        EXPECT_THAT(Answer(command), IsEmpty()) << command;
        EXPECT_THAT(Commands(), ElementsAre(sent)) << command;
    }
    for (const char* report : {"corpse", "xp", "exp", "level"}) {
        const auto own = Answer(std::string("/m ") + report);
        ASSERT_THAT(own, SizeIs(1)) << report;
        Answer(std::string("/m f") + report);
        EXPECT_THAT(Commands(), ElementsAre("/f " + own[0])) << report;
        Answer(std::string("/m o") + report);
        EXPECT_THAT(Commands(), ElementsAre(own[0])) << report;
    }
}

TEST_F(OutgoingTextTest, ReportsTellWhatTheViewShows) {
    options().XPSession->SetText("1,000");
    options().XPHour->SetText("2,000");
    options().Kills->SetText("3");
    options().XPNext->SetText("4,000");
    Vars::Statistics->SessionSec = 3661;
    Vars::Statistics->BarPercent = 12.5;
    EXPECT_THAT(
        Answer("/m exp"),
        ElementsAre("Aldra has made 1,000 XP in 1 Hours, 1 Minutes, 1 Seconds for an average of 2,000 XP/Hr while "
                    "killing 3 creatures."));
    EXPECT_THAT(Answer("/m level"), ElementsAre("Aldra needs 4,000 XP to reach level 43 (12.5% Complete). It will take "
                                                "Infinity at the current rate."));
    Vars::Statistics->BarPercent = 0.5;
    EXPECT_THAT(Answer("/m level"), ElementsAre(HasSubstr(" (0.5% Complete)")));
}

TEST_F(OutgoingTextTest, SwitchesTellTheirNewState) {
    const std::pair<const char*, const char*> rows[] = {
        {"/m dev", "Devmode toggled! True"},
        {"/m dev", "Devmode toggled! False"},
        {"/m debug", "Debug mode toggled! True"},
        {"/m debug", "Debug mode toggled! False"},
        {"/m chattypes", "Chat Types: True [32]"},
        {"/m chattypes", "Chat Types: False"},
        {"/m debugsilent", "Debug mode toggled! True"},
        {"/m debugsilent", "Debug mode toggled! False"},
    };
    for (const auto& [command, answer] : rows) EXPECT_THAT(Answer(command), Contains(answer)) << command;
    Vars::DebugMode = true;
    EXPECT_THAT(Answer("/m debugsilent"), ElementsAre("Debug mode toggled! True"));
    Vars::DebugMode = Vars::DebugSilent = false;
}

TEST_F(OutgoingTextTest, ThingsAreNamedSoughtAndAsked) {
    client.object(77).Name = "Drudge Skulker";
    client.object(77).Coordinates = host::Position{1.0, 2.0};
    client.hooks.CurrentSelection = 77;
    EXPECT_THAT(Answer("/m guid"), ElementsAre("Drudge Skulker, GUID: 77"));
    EXPECT_THAT(Answer("/m find drudge"), ElementsAre("(Drudge Skulker) 1.0N, 2.0E"));
    Carry(78, "Lead Pea");
    EXPECT_THAT(Answer("/m searchinv Lead"), ElementsAre("Found Lead, GUID: 78"));
    EXPECT_THAT(Answer("/m searchinv lead"), ElementsAre("Failed to find lead"));

    client.object(79).Name = "Guardian of the Temple of Enlightenment";
    Answer("/m templeenlight please");
    EXPECT_TRUE(chat().templeEnlightenPending);
    EXPECT_FALSE(chat().templeForgetPending);
    EXPECT_THAT(CallsOf("UseItem"), ElementsAre("UseItem id=79 flag=0"));
}

TEST_F(OutgoingTextTest, ALogIsOpenedUnderTheNameAsTyped) {
    EXPECT_THAT(Answer("/m log Hunt in Dires"),
                ElementsAre(AllOf(HasSubstr("Now logging to "), HasSubstr("\\Logs\\Hunt in Dires"))));
    EXPECT_THAT(Answer("/m log other"),
                ElementsAre("Logging is currently in progress, close the current file before opening a new one"));
    EXPECT_THAT(Answer("/m log"), ElementsAre("Closing log file"));
    EXPECT_THAT(Answer("/m login"), ElementsAre(HasSubstr("Now logging to ")));
}

TEST_F(OutgoingTextTest, ARuleCanBeTyped) {
    EXPECT_THAT(Answer("/m chatcustom a|b|c|d|e"), ElementsAre("Invalid Custom Chat Entry"));
    EXPECT_THAT(Answer("/m ChatCustom *Bob*|2|M1|Light Red|Ding.wav|[]Hi;/f Yo|more"), IsEmpty());
    const host::List& list = *options().ChatCustom;
    ASSERT_EQ(list.Count(), 1);
    const std::pair<std::int32_t, host::Cell> cells[] = {
        {1, "*Bob*"}, {2, "M1"}, {3, "2"}, {5, "Ding.wav"}, {6, "[]Hi;/f Yo"}};
    for (const auto& [column, cell] : cells) EXPECT_EQ(list.Data(column, 0), cell) << column;
    EXPECT_EQ(list.Data(4, 0, 1), host::Cell(104));
    EXPECT_NE(list.Data(4, 0, 0), host::Cell(104));
    EXPECT_TRUE(Shown("Bob waves", 2)) << "a new rule is off until the player ticks it";
}

TEST_F(OutgoingTextTest, ColoursAndExperienceArePrinted) {
    Answer("/m listcolors");
    EXPECT_EQ(lines.size(), 41u);
    EXPECT_EQ(lines.back(), (Line{"This is color 40", 40, 1}));
    Answer("/m testcolors");
    EXPECT_THAT(CallsOf("ChatOut"), Contains("ChatOut text=This is color 0 color=0 window=0"));

    const auto table = Answer("/m listxp");
    ASSERT_THAT(table, SizeIs(273));
    EXPECT_EQ(table[0], "3: 2,777 (-223)");
    EXPECT_EQ(table[1], "4: 5,697 (2,920)");
    EXPECT_EQ(table.back().substr(0, 5), "275: ");

    host::Choice& colors = *options().ChatColorColor;
    Answer("/m chatcolors");
    EXPECT_EQ(static_cast<std::int32_t>(lines.size()), colors.Count() - 1);
    EXPECT_EQ(lines.front().text, "This is the color " + colors.Text(1));
}

TEST_F(OutgoingTextTest, ACommandThatFailsIsReportedAndLeftToTheClient) {
    options().ChatCustom = {};
    EXPECT_TRUE(Passes("/m chatcustom a|b|c|d|e|f"));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #91 occured in 'OutgoingText' of class 'ChatTextHandler'"));
}

TEST_F(OutgoingTextTest, WordsAreExpandedWhereTheyStandAlone) {
    Alias("ty", "thank you");
    Alias("THX", "thanks");
    Alias("you", "u");
    Alias("\u00E9t\u00E9", "x");
    const std::pair<const char*, const char*> rows[] = {
        {"ty, all", "thank u, all"},
        {"so Ty TY", "so thank u thank u"},
        {"ty2 (ty)", "thank u2 (thank u)"},
        {"thx", "thx"},
        {"\u00E9t\u00E9 \u00E9t\u00E9s, \u00E9t\u00E9", "x \u00E9t\u00E9s, x"},
    };
    for (const auto& [typed, sent] : rows) {
        Forget();
        EXPECT_FALSE(Passes(typed)) << typed;
        EXPECT_THAT(Commands(), ElementsAre(sent)) << typed;
    }
    for (const char* text : {"Typhoon", "pretty", "hello"}) EXPECT_TRUE(Passes(text)) << text;
    options().ChatAlias->SetData(0, 0, false);
    EXPECT_TRUE(Passes("ty"));
}

TEST_F(OutgoingTextTest, CommandAliasesKeepTheSignAsTyped) {
    Alias("/x", "/tell Bob,");
    Alias("@y", "/fellow");
    Alias("/z", "\u00E9clair");  // its first character is taken for the sign
    const std::pair<const char*, const char*> rows[] = {
        {"/x hi", "/tell Bob, hi"}, {"@X hi /x", "@tell Bob, hi /x"}, {"/y", "/fellow"}, {"@z!", "@clair!"}};
    for (const auto& [typed, sent] : rows) {
        Forget();
        EXPECT_FALSE(Passes(typed)) << typed;
        EXPECT_THAT(Commands(), ElementsAre(sent)) << typed;
    }
    for (const char* text : {"/xyz", "say /x", "x"}) EXPECT_TRUE(Passes(text)) << text;
}

TEST_F(OutgoingTextTest, AnExpansionMayBeACommandOrBeTyped) {
    Alias("/g", "/m loc");
    EXPECT_THAT(Answer("/g"), ElementsAre("My Location: 42.1N, 33.6W"));
    EXPECT_THAT(Commands(), IsEmpty());

    Alias("/q", "/M loc");
    EXPECT_THAT(Answer("/q"), IsEmpty());
    EXPECT_THAT(Commands(), ElementsAre("/M loc"));

    Forget();
    Alias("/b", "/tell Bob_");
    EXPECT_FALSE(Passes("/b"));
    EXPECT_THAT(Commands(), IsEmpty());
}

TEST_F(OutgoingTextTest, AnAliasThatBringsItselfUpEndsInOneReport) {
    Alias("brb", "be right back, brb");
    EXPECT_TRUE(Passes("brb"));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #28 occured in 'OutgoingText' of class 'ChatTextHandler'"));
    EXPECT_TRUE(Passes("hello"));
}

TEST_F(OutgoingTextTest, AliasesThatMultiplyWordsEndInOneReport) {
    for (const char* alias : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
        const std::string next(1, static_cast<char>(alias[0] + 1));
        std::string ten;
        for (int i = 0; i < 10; ++i) ten += next + " ";
        Alias(alias, ten);
    }
    EXPECT_TRUE(Passes("a"));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #28 occured in 'OutgoingText' of class 'ChatTextHandler'"));
    EXPECT_THAT(Commands(), IsEmpty());
}

}  // namespace
}  // namespace ombrel::test
