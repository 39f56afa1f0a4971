// The road of a line as a whole: what rules it, where it is written, what becomes of the client's copy.
#include "chat/LogHandler.h"
#include "core/APluginCore.h"
#include "core/Hub.h"
#include "core/text.h"
#include "tests/chat/ChatTest.h"
#include "tests/support/GameLines.h"

namespace ombrel::test {
namespace {

class IncomingTextTest : public ChatTest {
protected:
    // Every rule in a colour and to a window of its own would need more windows than there are: its sound names it.
    void RuleAll() {
        host::List& list = *options().ChatColor;
        for (std::int32_t row = 0; row < list.Count(); ++row) {
            const std::string name = std::get<std::string>(list.Data(1, row));
            ColorRule(name, "D", "Default", name);
        }
    }

    // The row of Chat_Color that rules a line.
    std::string Ruling(const std::string& text, std::int32_t type) {
        Forget();
        Shown(text, type);
        for (const std::string& line : Texts()) {
            if (line.starts_with("<Ombrel> PlaySoundError: "))
                return Replace(line.substr(25), " was not found in your install directory.", "");
        }
        return "none";
    }

    static void Disable(std::string_view name) {
        options().ChatColor->SetData(0, options().FindName(name, "ChatColor"), false);
    }

    // Keeps every line in the log, in class "Other".
    static void LogEverything() {
        options().ChatLogEnable->SetChecked(true);
        options().ChatLogOptions->SetData(2, options().FindName("Other", "ChatLog"), true);
    }

    static std::vector<std::string> Logged() {
        std::vector<std::string> texts;
        for (const LogItem& item : Vars::LogHandler->Log) texts.push_back(item.message);
        return texts;
    }
};

TEST_F(IncomingTextTest, TheFirstEnabledRowOfTheLinesTypeRules) {
    RuleAll();
    const struct {
        std::int32_t type;
        const char* text;
        const char* row;
    } rows[] = {
        {22, "You slash Drudge for 12 points!", "Your Melee Combat"},
        {22, "Critical hit! You slash Drudge for 30 points!", "Your Crits"},
        {21, "Critical hit! You are slashed by Drudge!", "Enemy Crits"},
        {21, "You evaded Drudge!", "Your Evades"},
        {22, "Drudge evaded your attack.", "Enemy Evades"},
        {22, "You hit Drudge for 0 points of damage", "0 Damage Hits"},
        {21, "Drudge bites you for 8 points!", "Enemy Melee Combat"},
        {7, "You cast Blood Drinker VI on Sword", "Your Spells"},
        {7, "Aldra casts Heal Self", "Other Spells"},
        {7, "You hit Drudge for 40 points with Flame Bolt", "Your War Combat"},
        {7, "Wisp blasts you for 9 points with Shock Wave", "Enemy War Combat"},
        {7, "The spell consumed the following components: Hyssop", "Comp Burn"},
        {7, "Your experience has reduced your Vitae penalty!", "Vitae"},
        {7, "Hello", "none"},
        {2, "Bob says, \"hi\"", "Open Chat In"},
        {17, "Bob says, \"Zojak\"", "Spellwords"},
        {3, "Ulgrim tells you, \"hic\"", "NPC Tell"},
        {3, "<Tell:IIDString:5:Bob>Bob<\\Tell> tells you, \"hi\"", "Tells In"},
        {10, "Your patron Bob says to you, \"hi\"", "Patron In"},
        {10, "[Co-Vassals] Bob says, \"hi\"", "Covassal In"},
        {18, "[Allegiance] Bob says, \"hi\"", "Allegiance Chat"},
        {27, "[General] Bob says, \"hi\"", "General Chat"},
        {28, "[General] Bob says, \"hi\"", "none"},
        {23, "Bob is recalling home.", "Recalls"},
        {0, "Drudge is no more.", "none"},
        {40, "Anything", "none"},
        {-1, "Anything", "none"},
    };
    for (const auto& row : rows) EXPECT_EQ(Ruling(row.text, row.type), row.row) << row.type << ": " << row.text;

    Disable("Your Crits");
    Disable("Your Spells");
    Disable("NPC Tell");
    EXPECT_EQ(Ruling("Critical hit! You slash Drudge for 30 points!", 22), "Your Melee Combat");
    EXPECT_EQ(Ruling("Critical hit! You slash Drudge for 0 points!", 22), "0 Damage Hits");
    EXPECT_EQ(Ruling("You cast Heal Self", 7), "Other Spells");
    EXPECT_EQ(Ruling("Ulgrim tells you, \"hic\"", 3), "Tells In");
}

TEST_F(IncomingTextTest, WhatALineIsDecidesBeforeWhatItSays) {
    RuleAll();
    Vars::LastKillText = "You flatten Drudge!";
    EXPECT_EQ(Ruling("You flatten Drudge!", 0), "Kill Message");
    EXPECT_EQ(Ruling("You slash Drudge", 22), "Your Melee Combat");
    EXPECT_EQ(Ruling("Heal Self has expired.", 7), "Spell Expiration");
    EXPECT_EQ(Ruling("Vitae penalty has expired.", 7), "none");
}

TEST_F(IncomingTextTest, BeforeLoginOnlyChannelEntriesAreKeptFromThePlayer) {
    Vars::Loaded = false;
    ColorRule("Open Chat In", "M", "Red");
    EXPECT_FALSE(Shown("You have entered the Trade channel.", 0));
    EXPECT_TRUE(Shown("You have entered the Trade channel.", 2));
    EXPECT_TRUE(Shown("Bob says, \"hi\"", 2));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(IncomingTextTest, EachWayOfRulingALineHasItsOutcome) {
    LogEverything();
    ShowType(2, {0, 2});
    const auto log = [](std::vector<std::string> expected) { return ElementsAreArray(expected); };

    EXPECT_TRUE(Shown("plain", 2));
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_THAT(Logged(), log({"plain"}));

    ColorRule("Open Chat In", "D", "Default");
    EXPECT_TRUE(Shown("Bob says, \"1\"", 2));
    EXPECT_THAT(lines, IsEmpty());

    ColorRule("Open Chat In", "D", "Red");
    EXPECT_THAT(Written("Bob says, \"2\"", 2),
                ElementsAre(Line{"Bob says, \"2\"", 21, 1}, Line{"Bob says, \"2\"", 21, 3}));
    EXPECT_THAT(shown, IsEmpty());

    ColorRule("Open Chat In", "4", "Default");
    EXPECT_THAT(Written("Bob says, \"3\"", 2), ElementsAre(Line{"Bob says, \"3\"", 2, 5}));
    ColorRule("Open Chat In", "?", "Pink");
    EXPECT_THAT(Written("Bob says, \"4\"", 2), ElementsAre(Line{"Bob says, \"4\"", 8, 1}));
    EXPECT_THAT(Logged(), log({"plain", "Bob says, \"1\"", "Bob says, \"2\"", "Bob says, \"3\"", "Bob says, \"4\""}));

    ColorRule("Open Chat In", "B", "Red", "Ding.wav");
    EXPECT_THAT(Written("Bob says, \"5\"", 2), IsEmpty());
    EXPECT_THAT(shown, IsEmpty());
    EXPECT_EQ(Logged().size(), 5u);

    EXPECT_THAT(Written("+Admin says, \"6\"", 2), ElementsAre(Line{"+Admin says, \"6\"", 2, 1}));
    EXPECT_EQ(Logged().back(), "+Admin says, \"6\"");
}

TEST_F(IncomingTextTest, AnAdministratorsLineIsWrittenOnceAndSoundsOnlyWhenARuleWroteIt) {
    EXPECT_THAT(Written("+Admin says, \"hi\"", 2), ElementsAre(Line{"+Admin says, \"hi\"", 2, 1}));
    EXPECT_THAT(shown, IsEmpty());
    ColorRule("Open Chat In", "D", "Default", "Gong.wav");
    EXPECT_THAT(Written("+Admin says, \"hi\"", 2), ElementsAre(Line{"+Admin says, \"hi\"", 2, 1}));
    ColorRule("Open Chat In", "M", "Blue", "Gong.wav");
    EXPECT_THAT(Written("+Admin says, \"hi\"", 2),
                ElementsAre(Line{"+Admin says, \"hi\"", 7, 1},
                            Line{"<Ombrel> PlaySoundError: Gong.wav was not found in your install directory.", 6, 1}));
}

TEST_F(IncomingTextTest, OwnLinesGoToTheWindowsThatThePlayerChoseForThem) {
    OwnLinesGoTo({0, 3});
    wtcw("Hello");
    EXPECT_THAT(lines, ElementsAre(Line{"<Ombrel> Hello", 5, 1}, Line{"<Ombrel> Hello", 5, 4}));
    Forget();
    OwnLinesGoTo({});
    wtcw("Nobody hears this");
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_FALSE(chat().IncomingText("Nor this", 32, 0, true, false));

    ColorRule("Ombrel", "1", "Default");
    wtcw("Once");
    EXPECT_THAT(lines, ElementsAre(Line{"<Ombrel> Once", 32, 2}));
}

TEST_F(IncomingTextTest, LinesOfOtherPluginsKeepTheirColourAndLieOutsideTheWindows) {
    client.plugin()->AddChatText("Tracker: found", 13, 2);
    EXPECT_THAT(lines, ElementsAre(Line{"Tracker: found", 13, 2}));
    Forget();
    CustomRule("Tracker:*", "D", "All", "Red");
    EXPECT_TRUE(chat().IncomingText("Tracker: lost", 13, 2, true, true));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #9 occured in 'IncomingText' of class 'ChatTextHandler'"));
    EXPECT_THAT(lines,
                ElementsAre(Line{"<Ombrel> Error #9 occured in 'IncomingText' of class 'ChatTextHandler'", 6, 1}));
}

TEST_F(IncomingTextTest, AFailureLeavesTheClientsCopyAndTheNextLineWorks) {
    ColorRule("Open Chat In", "M", "Red");
    Shown("Bob says, \"1\"", 2);
    FailNext("List.Data", 13);
    EXPECT_TRUE(Shown("Bob says, \"2\"", 2));
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'IncomingText' of class 'ChatTextHandler'"));
    EXPECT_THAT(Written("Bob says, \"3\"", 2), ElementsAre(Line{"Bob says, \"3\"", 21, 1}));
}

TEST_F(IncomingTextTest, ARowThatIsNotInTheListFailsTheLineThatNeedsItAndNoOther) {
    options().ChatColor->SetData(1, options().FindName("Emotes", "ChatColor"), std::string("Gestures"));
    EXPECT_TRUE(Shown("Bob waves.", 12));
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'IncomingText' of class 'ChatTextHandler'")));
    EXPECT_TRUE(Shown("Bob says, \"hi\"", 2));
}

TEST_F(IncomingTextTest, TypeNumbersAreShownOnRequestButNotLogged) {
    LogEverything();
    chat().showChatTypes = true;
    EXPECT_THAT(Written("Bob waves.", 12), ElementsAre(Line{"Bob waves. [12]", 12, 1}));
    EXPECT_THAT(Logged(), ElementsAre("Bob waves."));
}

TEST_F(IncomingTextTest, TellsAreAnsweredWhileThePlayerIsAway) {
    options().ChatLogAFK->SetChecked(true);
    options().ChatLogAFKMessage->SetText("back soon");
    Shown("<Tell:IIDString:5:Bob>Bob<\\Tell> tells you, \"there?\"", 3);
    ColorRule("Tells In", "B", "Default");
    Shown("<Tell:IIDString:6:Eve>Eve<\\Tell> tells you, \"and you?\"", 3);
    Shown("Ulgrim tells you, \"hic\"", 3);
    Shown("Bob says, \"hello\"", 2);
    FilterWord("spam", "Part", "Block");
    Shown("Mal tells you, \"spam\"", 3);
    EXPECT_THAT(Commands(), ElementsAre("/tell Bob, Auto Response: back soon", "/tell Eve, Auto Response: back soon",
                                        "/tell Ulgrim, Auto Response: back soon"));
}

TEST_F(IncomingTextTest, TheLinesOfTheGamePassUnharmed) {
    const std::vector<GameLine> game_lines = GameLines();
    if (game_lines.empty()) GTEST_SKIP() << kNoGameLines;

    RuleAll();
    for (const GameLine& line : game_lines) {
        chat().IncomingText(line.text, line.type, 1, false, false);
        ASSERT_THAT(TakeReports(), IsEmpty()) << line.text;
    }
    EXPECT_GT(game_lines.size(), 100U);
}

}  // namespace
}  // namespace ombrel::test
