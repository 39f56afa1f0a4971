#include "apps/log/ChatLog.h"

#include <stdexcept>

#include "apps/log/Search.h"
#include "chat/LogHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::log {
namespace {

TEST(ChatLogDate, IsKnownOnlyInTheFormOfTheLogs) {
    const std::pair<const char*, const char*> kDates[] = {
        {"7/4/2024 1:05:09 PM", "2024-07-04"},
        {"12/31/1999 12:00:01 AM", "1999-12-31"},
        {"7/4/2024", "2024-07-04"},
        {"", ""},
        {"13/1/2024", ""},
        {"7/32/2024", ""},
        {"7/4/24", ""},
        {"7/4/2024 ", ""},
        {"7/4/2024 13:05", ""},
        {"7/4/2024 1:05:09 PMs", ""},
        {"Tell:IIDString:1:Tom", ""},
    };
    for (const auto& [date, day] : kDates) EXPECT_EQ(DayOf(date), day) << date;
}

class ChatLogTest : public testing::Test {
protected:
    std::vector<std::string> Texts(const std::string& file, const std::string& content) {
        folder_.Write(file, content);
        lines_ = ReadLog(folder_.path() / file);
        std::vector<std::string> texts;
        for (const Line& line : lines_) texts.push_back(line.text);
        return texts;
    }
    std::string Refusal(const std::string& file) {
        try {
            ReadLog(folder_.path() / file);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    }

    test::TempFolder folder_;
    std::vector<Line> lines_;
};

TEST_F(ChatLogTest, TextLogsAreReadWithAndWithoutDates) {
    EXPECT_THAT(
        Texts("a.txt", "<7/4/2024 1:05:09 PM> caf\xE9\r\n<Tell> no date\r\ntwo\nin one\r\n<7/5/2024> \r\ncut of"),
        ElementsAre("caf\xC3\xA9", "<Tell> no date", "two\nin one", "", "cut of"));
    EXPECT_EQ(lines_[0].day, "2024-07-04");
    EXPECT_EQ(lines_[0].date, "7/4/2024 1:05:09 PM");
    EXPECT_EQ(lines_[1].day, "");
    EXPECT_EQ(lines_[3].day, "2024-07-05");
    EXPECT_THAT(Texts("empty.txt", ""), ElementsAre());
    EXPECT_THAT(Texts("unix.txt", "one\ntwo\n"), ElementsAre("one", "two"));

    Texts("Alpha_Bob_2024-07-04.txt", "plain\r\n");
    EXPECT_EQ(lines_[0].day, "2024-07-04");
    EXPECT_EQ(lines_[0].date, "");
}

TEST_F(ChatLogTest, XmlLogsAreReadAsFarAsTheyGo) {
    const std::string whole =
        "<?xml-stylesheet type=\"text/xsl\" href=\"style/ombrellog.xsl\"?><Log>\r"
        "\r\t<Message type=\"3\" color=\"#EBEB3A\" tag=\"2\" date=\"7/4/2024 1:05:09 PM\">a &lt;b&gt;</Message>\r"
        "\r\t<Message type=\"2\" color=\"#FFFFFF\" tag=\"1\" date=\"7/5/2024\">two</Message>\r</Log>";
    EXPECT_THAT(Texts("a.xml", whole), ElementsAre("a <b>", "two"));
    EXPECT_EQ(lines_[0].tag, 2);
    EXPECT_EQ(lines_[0].color, "#EBEB3A");
    EXPECT_EQ(lines_[1].day, "2024-07-05");

    EXPECT_THAT(Texts("cut.xml", whole.substr(0, whole.size() - 20)), ElementsAre("a <b>"));
    EXPECT_THAT(Texts("head.xml", whole.substr(0, 40)), ElementsAre());
    EXPECT_THAT(Texts("renamed.log", whole), ElementsAre("a <b>", "two"));
    EXPECT_THAT(Texts("broken.xml", "<Log><Message>one</Message><Message>two</Wrong></Log>"), Contains("one"));
}

TEST_F(ChatLogTest, WhatIsNoLogIsRefusedWithAReason) {
    folder_.Write("page.xml", "<html>");
    EXPECT_THAT(Refusal("page.xml"), HasSubstr("page.xml: is no chat log"));
    EXPECT_THAT(Refusal("missing.txt"), HasSubstr("missing.txt: No such file"));
    EXPECT_THAT(Refusal("."), HasSubstr("is a folder"));
}

Line Said(const std::string& text, int tag = 1, const std::string& day = "2024-07-04") {
    return {text, "", day, "", tag};
}

TEST(LogSearch, AllThatIsAskedMustFit) {
    Search search;
    EXPECT_TRUE(search.Fits(Said("anything", 0, "")));
    search.SetWords(" red + apples | PEARS|");
    EXPECT_TRUE(search.Fits(Said("Apples, and red ones")));
    EXPECT_TRUE(search.Fits(Said("pears")));
    EXPECT_FALSE(search.Fits(Said("apples")));
    search.AddClass("tells");
    search.AddClass("7");
    search.AddClass("fellow");
    EXPECT_FALSE(search.Fits(Said("pears", 1)));
    for (const int tag : {2, 3, 7}) EXPECT_TRUE(search.Fits(Said("pears", tag))) << tag;
    search.SetDays("2024-07-04");
    EXPECT_TRUE(search.Fits(Said("pears", 2)));
    EXPECT_FALSE(search.Fits(Said("pears", 2, "2024-07-05")));
    EXPECT_FALSE(search.Fits(Said("pears", 2, "")));
    for (const char* days : {"2024-07-01..2024-07-04", "..2024-07-04", "2024-07-04.."}) {
        search.SetDays(days);
        EXPECT_TRUE(search.Fits(Said("pears", 2))) << days;
    }
    search.SetDays("..2024-07-03");
    EXPECT_FALSE(search.Fits(Said("pears", 2)));
}

TEST(LogSearch, NonsenseIsRefused) {
    Search search;
    for (const char* name : {"gossip", "", "20", "v"}) EXPECT_THROW(search.AddClass(name), std::runtime_error) << name;
    for (const char* days : {"today", "2024-02-30", "2024-7-4", "2024-07-04x", "2024-07-01..x", ""})
        EXPECT_THROW(search.SetDays(days), std::runtime_error) << days;
}

// The plug-in gives its classes their numbers; the program must know the same.
class LogClasses : public test::PluginTest {};

TEST_F(LogClasses, AreThoseOfThePlugIn) {
    LogIn();
    options().ChatLogEnable->SetChecked(true);
    const std::pair<std::int32_t, const char*> kLines[] = {
        {2, ""},
        {3, ""},
        {19, ""},
        {10, "Your patron"},
        {10, "Your vassal"},
        {18, ""},
        {27, ""},
        {7, ""},
        {17, ""},
        {6, ""},
        {0, ""},
        {23, ""},
        {24, ""},
        {5, " has discovered "},
        {13, "Your base x is now"},
        {13, ""},
        {7, "Your experience has reduced your Vitae penalty!"},
        {32, ""},
        {1, ""},
    };
    static_assert(std::size(kLines) + 1 == kClassNames.size());
    for (std::size_t tag = 1; tag < kClassNames.size(); ++tag) {
        const std::int32_t row = options().FindName(kClassNames[tag], "ChatLog");
        ASSERT_GE(row, 0) << kClassNames[tag];
        options().ChatLogOptions->SetData(2, row, true);
        Vars::LogHandler->AddToLog(kLines[tag - 1].second, kLines[tag - 1].first, 0);
        EXPECT_EQ(Vars::LogHandler->Log.back().msgtag, static_cast<std::int32_t>(tag)) << kClassNames[tag];
        options().ChatLogOptions->SetData(2, row, false);
    }
}

}  // namespace
}  // namespace ombrel::log
