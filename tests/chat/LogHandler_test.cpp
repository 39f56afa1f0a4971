#include "chat/LogHandler.h"

#include <fmt/format.h>

#include <cstdlib>
#include <fstream>
#include <pugixml.hpp>
#include <sstream>

#include "core/Hub.h"
#include "core/cells.h"
#include "core/failure.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr const char* kAllClasses[] = {
    "Open Chat", "Tells",       "Fellowship", "Patron/Covassal", "Vassal", "Allegiance", "Channels",
    "Vitae",     "Magic",       "Spellwords", "Combat",          "System", "Recalls",    "Tinkers",
    "Rares",     "Stat Raises", "Level",      "Ombrel",          "Other",
};
constexpr std::int32_t kView = 2, kFile = 4;

class LogHandlerTest : public PluginTest {
protected:
    LogHandlerTest() {
        LogIn();
        options().ChatLogEnable->SetChecked(false);
    }

    static LogHandler& log() { return *Vars::LogHandler; }

    static void Switch(std::int32_t column, const char* name, bool on) {
        options().ChatLogOptions->SetData(column, options().FindName(name, "ChatLog"), on);
    }
    static void SwitchAll(std::int32_t column, bool on) {
        for (const char* name : kAllClasses) Switch(column, name, on);
    }

    static void KeepLines() {
        options().ChatLogEnable->SetChecked(true);
        SwitchAll(kView, true);
    }

    void WriteFiles(bool xml, const char* name = "evening") {
        SwitchAll(kFile, true);
        options().ChatLogXML->SetChecked(xml);
        options().ChatLogTimestamp->SetChecked(false);
        log().SetLogfile(name);
        log().SetFileLogging(true);
    }

    std::string Logged(const std::string& file) const { return documents.Read("Asheron's Call/Logs/" + file); }
    std::filesystem::path Folder() const { return documents.path() / "Asheron's Call" / "Logs"; }

    std::vector<std::string> Shown() const {
        std::vector<std::string> rows;
        for (std::int32_t row = 0; row < options().ChatLogView->Count(); ++row)
            rows.push_back(CellText(*options().ChatLogView, 0, row));
        return rows;
    }
};

struct ClassCase {
    std::int32_t type;
    const char* text;
    std::int32_t tag;
    const char* row;
};
constexpr ClassCase kClassCases[] = {
    {2, "Tom says, \"hi\"", 1, "Open Chat"},
    {12, "Tom waves", 1, "Open Chat"},
    {3, "Tom tells you, \"hi\"", 2, "Tells"},
    {4, "You tell Tom, \"hi\"", 2, "Tells"},
    {19, "[Fellowship] hi", 3, "Fellowship"},
    {10, "Your patron Tom says to you, \"hi\"", 4, "Patron/Covassal"},
    {11, "You say to your Patron, \"hi\"", 4, "Patron/Covassal"},
    {10, "[Co-Vassals] Tom says, \"hi\"", 4, "Patron/Covassal"},
    {11, "You say to your Vassals, \"hi\"", 5, "Vassal"},
    {10, "Your vassal Tom says to you, \"hi\"", 5, "Vassal"},
    {18, "[Allegiance] hi", 6, "Allegiance"},
    {27, "[General] hi", 7, "Channels"},
    {30, "[Roleplay] hi", 7, "Channels"},
    {7, "Your experience has reduced your Vitae penalty!", 17, "Vitae"},
    {7, "Strength Self VI is about to expire", 8, "Magic"},
    {17, "Zojak Quafeth", 9, "Spellwords"},
    {6, "You bleed", 10, "Combat"},
    {21, "You hit the drudge", 10, "Combat"},
    {22, "The drudge hits you", 10, "Combat"},
    {0, "Welcome", 11, "System"},
    {23, "Tom is recalling home", 12, "Recalls"},
    {24, "Tom applies the iron", 13, "Tinkers"},
    {5, "Tom has discovered the Pearl!", 14, "Rares"},
    {13, "Your base Jump is now 20!", 15, "Stat Raises"},
    {13, "You are now level 5!", 16, "Level"},
    {32, "<Ombrel> hi", 18, "Ombrel"},
    {5, "Tom logs in", 19, "Other"},
    {10, "Somebody else", 19, "Other"},
    {11, "You say to your monarch", 19, "Other"},
    {26, "your patron", 19, "Other"},
    {31, "", 19, "Other"},
};

TEST_F(LogHandlerTest, EachLineFallsIntoTheFirstClassThatIsOn) {
    KeepLines();
    for (const auto& line : kClassCases) {
        log().AddToLog(line.text, line.type, 0);
        EXPECT_EQ(log().Log.back().msgtag, line.tag) << line.text;

        // Without its own class a line goes on down the table.
        Switch(kView, line.row, false);
        const auto before = log().Log.back().MsgID;
        log().AddToLog(line.text, line.type, 0);
        const bool other = line.row == std::string("Other");
        EXPECT_EQ(log().Log.back().MsgID, other ? before : before + 1) << line.text;
        if (!other) {
            const std::int32_t next = line.tag == 17 ? 8 : line.tag == 15 ? 16 : 19;
            EXPECT_EQ(log().Log.back().msgtag, next) << line.text;
        }
        Switch(kView, line.row, true);
    }
}

TEST_F(LogHandlerTest, TheFileHasTheSameClassesButTakesLinesToVassalsAlways) {
    WriteFiles(true);
    options().ChatLogEnable->SetChecked(true);
    SwitchAll(kView, false);
    std::vector<std::string> expected;
    for (const auto& line : kClassCases) {
        log().AddToLog(line.text, line.type, 0);
        expected.push_back(fmt::format("{}", line.tag));
    }
    SwitchAll(kFile, false);
    for (const auto& line : kClassCases) log().AddToLog(line.text, line.type, 0);
    expected.emplace_back("5");
    log().WriteFileLog();

    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(Logged("evening.xml").c_str()));
    std::vector<std::string> tags;
    for (const auto& message : document.document_element().children("Message"))
        tags.emplace_back(message.attribute("tag").value());
    EXPECT_EQ(tags, expected);
    EXPECT_THAT(log().Log, IsEmpty()) << "a line to the vassals reached the view";
}

TEST_F(LogHandlerTest, TheStoreKeepsTheLastLinesAndNumbersThemFromZero) {
    KeepLines();
    log().SetMaxLines(3);
    for (const char* text : {"a", "b", "c", "d"}) log().AddToLog(text, 2, 2);
    EXPECT_THAT(Shown(), ElementsAre("d", "c", "b"));
    EXPECT_EQ(CellText(*options().ChatLogView, 1, 0), "3");
    EXPECT_EQ(log().Log.front().MsgID, 1);
    EXPECT_EQ(options().ChatLogView->Color(0, 0), 0xFFFFFF);

    // Lines of the data file join with numbers of their own.
    log().AddToLogFromData("old", 3, 3, 2, 1000);
    EXPECT_EQ(log().Log.back().MsgID, 4);
    EXPECT_EQ(log().Log.back().msgdate, 1000);
    EXPECT_THAT(log().Log, SizeIs(3));

    log().SetMaxLines(1);
    EXPECT_THAT(Shown(), ElementsAre("old"));
    log().Clear();
    EXPECT_THAT(Shown(), IsEmpty());
    log().AddToLog("e", 2, 2);
    EXPECT_EQ(log().Log.back().MsgID, 5);
}

TEST_F(LogHandlerTest, TheViewShowsWhatSearchAndFilterLet) {
    KeepLines();
    log().SetSortAsc(true);
    log().AddToLog("[General] red apples", 27, 2);
    log().AddToLog("Tom says, \"Green APPLES\"", 2, 2);
    log().AddToLog("Your base Jump is now 20!", 13, 2);
    const std::string apples = "[General] red apples", green = "Tom says, \"Green APPLES\"",
                      jump = "Your base Jump is now 20!";
    const struct {
        const char* search;
        std::vector<std::string> shown;
    } kSearches[] = {
        {"apples", {apples, green}},
        {"red|green", {apples, green}},
        {"apples+tom", {green}},
        {"apples AND red OR jump", {apples, jump}},
        {"jump+apples", {}},
        {"jump|", {apples, green, jump}},
        {"FOR", {}},  // "F" or "": every line has nothing in it
    };
    for (const auto& search : kSearches) {
        log().SetSearchString(search.search);
        if (search.search == std::string("FOR"))
            EXPECT_THAT(Shown(), SizeIs(3));
        else
            EXPECT_EQ(Shown(), search.shown) << search.search;
    }
    log().SetSearchString("");
    const std::pair<std::int32_t, std::vector<std::string>> kFilters[] = {
        {0, {apples, green, jump}}, {1, {green}}, {7, {apples}}, {2, {}}, {15, {}}, {-1, {}}};
    for (const auto& [mode, texts] : kFilters) {
        log().SetFilterMode(mode);
        EXPECT_EQ(Shown(), texts) << mode;
    }
    log().SetFilterMode(0);
    log().SetSortAsc(false);
    EXPECT_THAT(Shown(), ElementsAre(jump, green, apples));
}

TEST_F(LogHandlerTest, RedrawingKeepsThePlaceAndNewChoicesGoToTheStart) {
    KeepLines();
    for (int i = 0; i < 50; ++i) log().AddToLog(fmt::format("line {}", i), 2, 2);
    host::List& view = *options().ChatLogView;
    const std::pair<const char*, std::function<void()>> kChanges[] = {
        {"filter", [] { log().SetFilterMode(1); }},
        {"order", [] { log().SetSortAsc(true); }},
        {"size", [] { log().SetMaxLines(40); }},
    };
    for (const auto& [name, change] : kChanges) {
        view.SetScrollPosition(20);
        log().AddToLog("more", 2, 2);
        EXPECT_EQ(view.ScrollPosition(), 20) << name;
        log().SetSearchString("e");
        EXPECT_EQ(view.ScrollPosition(), 20) << name;
        change();
        EXPECT_EQ(view.ScrollPosition(), 0) << name;
    }
}

TEST_F(LogHandlerTest, ALineOfTheViewIsToldWithItsDate) {
    KeepLines();
    log().AddToLog("Tom says, \"hi\"", 2, 2);
    Forget();
    log().PrintDetails(0);
    log().PrintDetails(7);
    EXPECT_THAT(lines, ElementsAre(Line{"---<3/5/2006 12:00:00 PM> Tom says, \"hi\"", 2, 1}));
}

TEST_F(LogHandlerTest, AColourWithoutATableRowCostsNothingButItself) {
    KeepLines();
    WriteFiles(true);
    for (const std::int32_t color : {2, 32, 3}) log().AddToLog(fmt::format("in {}", color), 2, color);
    log().AddToLog("after", 2, 2);
    Advance(3s);
    EXPECT_THAT(Shown(), ElementsAre("after", "in 3", "in 32", "in 2"));
    EXPECT_EQ(Logged("evening.xml").find("in 32"), std::string::npos);
    EXPECT_THAT(Logged("evening.xml"), HasSubstr("in 3<"));
    EXPECT_THAT(Logged("evening.xml"), HasSubstr("after<"));
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'DisplayLog' of class 'LogHandler'"),
                                           HasSubstr("'WriteFileLog' of class 'LogHandler'")));

    options().ChatLogXML->SetChecked(false);
    options().ChatLogEnable->SetChecked(false);
    log().SetLogfile("plain");
    log().AddToLog("in 32", 2, 32);
    Advance(1s);
    EXPECT_EQ(Logged("plain.txt"), "in 32\r\n");
}

TEST_F(LogHandlerTest, TheFileIsWrittenEachSecondAndGetsItsNameWithoutExtension) {
    for (const bool xml : {false, true}) {
        WriteFiles(xml, xml ? "my.xml.log" : "my.txt");
        EXPECT_EQ(log().logfile(), xml ? "my.log" : "my");
        const std::string file = xml ? "my.log.xml" : "my.txt";
        log().AddToLog("one", 2, 2);
        EXPECT_EQ(Logged(file).find("one"), std::string::npos);
        Advance(1s);
        EXPECT_NE(Logged(file).find("one"), std::string::npos);
    }
    log().SetLogfile("");
    log().AddToLog("two", 2, 2);
    Advance(2s);
    log().SetFileLogging(false);
    EXPECT_FALSE(std::filesystem::exists(Folder() / ".xml"));
}

TEST_F(LogHandlerTest, WhatWaitsWhenLoggingEndsIsStillWritten) {
    WriteFiles(false);
    log().AddToLog("plain", 2, 2);
    log().SetFileLogging(false);
    log().AddToLog("after", 2, 2);
    Advance(1s);
    EXPECT_EQ(Logged("evening.txt"), "plain\r\n");

    // An XML log is closed at once: the lines wait for the next.
    WriteFiles(true);
    log().AddToLog("marked up", 2, 2);
    log().SetFileLogging(false);
    Advance(5s);
    EXPECT_EQ(Logged("evening.xml"), "");
    WriteFiles(true, "next");
    Advance(1s);
    EXPECT_THAT(Logged("next.xml"), HasSubstr("marked up"));
}

TEST_F(LogHandlerTest, AnAutomaticLogFollowsThePlayersDay) {
    client.system.zone.bias = 300;                                 // five hours behind
    client.clock.Shift(std::int64_t{16 * 3600 + 59 * 60} * 1000);  // 23:59 of the player's day
    options().ChatLogAuto->SetChecked(true);
    options().ChatLogByDate->SetChecked(true);
    WriteFiles(false);
    log().SetLogfile(log().AutomaticName());
    EXPECT_EQ(log().logfile(), "Frostfell_Aldra_2006-03-05");
    client.ChatText("Tom says, \"late\"\n", 2, 1);
    Advance(90s);
    client.ChatText("Tom says, \"early\"\n", 2, 1);
    Advance(1s);
    EXPECT_EQ(Logged("Frostfell_Aldra_2006-03-05.txt"), "Tom says, \"late\"\r\n");
    EXPECT_EQ(Logged("Frostfell_Aldra_2006-03-06.txt"), "Tom says, \"early\"\r\n");

    log().SetLogfile("by hand");
    Advance(24h);
    client.ChatText("Tom says, \"next day\"\n", 2, 1);
    Advance(1s);
    EXPECT_EQ(Logged("by hand.txt"), "Tom says, \"next day\"\r\n");

    options().ChatLogByDate->SetChecked(false);
    EXPECT_EQ(log().AutomaticName(), "Frostfell_Aldra");
}

TEST_F(LogHandlerTest, TheStyleSheetComesWithTheFirstXmlLogAndIsNotReplaced) {
    WriteFiles(true);
    const std::string shipped = Logged("style/ombrellog.xsl");
    EXPECT_THAT(shipped, HasSubstr("xsl:stylesheet"));
    std::ofstream(Folder() / "style" / "ombrellog.xsl") << "the player's own";
    log().SetLogfile("second");
    EXPECT_EQ(Logged("style/ombrellog.xsl"), "the player's own");
}

// While its folder is a file, nothing can be written.
TEST_F(LogHandlerTest, LinesWaitInOrderWhileTheLogCannotBeWritten) {
    for (const bool xml : {false, true}) {
        WriteFiles(xml);
        log().AddToLog("one", 2, 2);
        Advance(1s);
        const auto away = documents.path() / "away";
        std::filesystem::rename(Folder(), away);
        std::ofstream(Folder()).flush();
        for (const char* text : {"two", "three", "four"}) {
            log().AddToLog(text, 2, 2);
            Advance(2s);
        }
        EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'WriteFileLog' of class 'LogHandler'")));

        std::filesystem::remove(Folder());  // the log is made anew
        Advance(1s);
        std::string text = Logged(xml ? "evening.xml" : "evening.txt");
        EXPECT_LT(text.find("two"), text.find("three"));
        EXPECT_LT(text.find("three"), text.find("four"));
        EXPECT_NE(text.find("four"), std::string::npos);
        EXPECT_EQ(text.find("one"), std::string::npos);
        std::filesystem::remove_all(away);
    }
}

TEST_F(LogHandlerTest, ADayThatCannotBeginItsFileCostsNoLine) {
    options().ChatLogAuto->SetChecked(true);
    options().ChatLogByDate->SetChecked(true);
    WriteFiles(false);
    log().SetLogfile(log().AutomaticName());
    std::filesystem::rename(Folder(), documents.path() / "away");
    std::ofstream(Folder()).flush();
    client.clock.Shift(std::int64_t{24} * 3600 * 1000);
    client.ChatText("Tom says, \"one\"\n", 2, 1);
    Advance(5s);
    client.ChatText("Tom says, \"two\"\n", 2, 1);
    Advance(5s);
    EXPECT_THAT(TakeReports(), SizeIs(1));
    std::filesystem::remove(Folder());
    Advance(1s);
    EXPECT_EQ(Logged("Frostfell_Aldra_2006-03-06.txt"), "Tom says, \"one\"\r\nTom says, \"two\"\r\n");
}

TEST_F(LogHandlerTest, TheLinesThatWaitAreBounded) {
    WriteFiles(false);
    Forget();
    for (int i = 0; i < 10'005; ++i) log().AddToLog(fmt::format("{}.", i), 2, 2);
    EXPECT_THAT(Texts(), ElementsAre(HasSubstr("oldest lines are lost")));
    log().WriteFileLog();
    EXPECT_THAT(Logged("evening.txt"), StartsWith("5.\r\n6.\r\n"));
    EXPECT_THAT(Logged("evening.txt"), EndsWith("\r\n10004.\r\n"));
}

std::size_t MemoryInUse() {
    std::ifstream statm("/proc/self/statm");
    std::size_t total = 0, resident = 0;
    statm >> total >> resident;
    return resident * 4096;
}

TEST_F(LogHandlerTest, AnEveningOfChatIsLoggedWholeAndInOrder) {
    const int count = std::getenv("OMBREL_LONG") ? 100'000 : 20'000;
    WriteFiles(true);
    client.chat_listener = nullptr;
    client.calls.listener = nullptr;
    std::size_t memory = 0;
    for (int i = 0; i < count; ++i) {
        client.ChatText(fmt::format("Tom says, \"line {}\"\n", i), 2, 1);
        if (i % 50 == 49) Advance(1s);
        if (i == count / 4) memory = MemoryInUse();
    }
    Advance(1s);
#ifdef __SANITIZE_ADDRESS__
    constexpr std::size_t kSlack = 256;  // MiB: the sanitizer keeps freed memory for a while
#else
    constexpr std::size_t kSlack = 24;
#endif
    EXPECT_LE(MemoryInUse(), memory + (kSlack << 20));

    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(Logged("evening.xml").c_str()));
    int next = 0;
    for (const auto& message : document.document_element().children("Message"))
        ASSERT_EQ(message.text().get(), fmt::format("Tom says, \"line {}\"", next++));
    EXPECT_EQ(next, count);
}

}  // namespace
}  // namespace ombrel::test
