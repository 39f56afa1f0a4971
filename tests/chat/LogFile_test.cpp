#include "chat/LogFile.h"

#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <pugixml.hpp>

#include "chat/LogDocument.h"
#include "core/failure.h"
#include "tests/support/Mishaps.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kNoon = 1141560000;  // 5 March 2006, 12:00:00
constexpr const char* kHead = "<?xml-stylesheet type=\"text/xsl\" href=\"style/ombrellog.xsl\"?><Log>\r";

LogItem Said(const std::string& text, std::int32_t color = 2) { return {text, 2, color, kNoon, 1, 0}; }

class LogFileTest : public PluginTest {
protected:
    LogFileTest() { Start(); }

    std::string Path(const std::string& name) const { return (documents.path() / name).string(); }

    void HaveFile(const std::string& name, const std::string& content) const { documents.Write(name, content); }

    // The messages of a log, which must be well-formed.
    std::vector<std::string> Messages(const std::string& name) const {
        pugi::xml_document document;
        const auto parsed = document.load_string(documents.Read(name).c_str());
        EXPECT_TRUE(parsed) << parsed.description() << " in " << documents.Read(name);
        std::vector<std::string> messages;
        for (const auto& message : document.document_element().children("Message"))
            messages.emplace_back(message.text().get());
        return messages;
    }

    std::vector<std::string> FilesBeside(const std::string& name) const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(documents.path()))
            if (entry.is_regular_file() && entry.path().filename() != name) names.push_back(entry.path().filename());
        return names;
    }
};

TEST_F(LogFileTest, TextLinesEndInCrLfInTheGamesCharactersAndHaveADateWhenWanted) {
    TextLog log(Path("a.txt"));
    options().ChatLogTimestamp->SetChecked(false);
    log.Write({Said("caf\xC3\xA9 \xE2\x80\x99 \xCE\xA9")});
    options().ChatLogTimestamp->SetChecked(true);
    log.Write({Said("one"), Said("two")});
    EXPECT_EQ(documents.Read("a.txt"),
              "caf\xE9 \x92 ?\r\n<3/5/2006 12:00:00 PM> one\r\n<3/5/2006 12:00:00 PM> two\r\n");
}

TEST_F(LogFileTest, ATextLogIsExtendedAndALineThatWasCutStaysApart) {
    options().ChatLogTimestamp->SetChecked(false);
    HaveFile("whole.txt", "old\r\n");
    HaveFile("cut.txt", "old\r\nhal");
    TextLog(Path("whole.txt")).Write({Said("new")});
    TextLog(Path("cut.txt")).Write({Said("new")});
    EXPECT_EQ(documents.Read("whole.txt"), "old\r\nnew\r\n");
    EXPECT_EQ(documents.Read("cut.txt"), "old\r\nhal\r\nnew\r\n");
}

TEST_F(LogFileTest, AnXmlLogHasItsStyleSheetAndAnElementForEachLine) {
    XmlLog log(Path("a.xml"));
    EXPECT_FALSE(std::filesystem::exists(Path("a.xml")));
    log.Write({Said("Tom says, \"<b> & co\""), {"\x01 bell\tand\n\xFF", 32, 18, kNoon - 43200, 19, 0}});
    EXPECT_EQ(documents.Read("a.xml"),
              std::string(kHead) +
                  "\r\t<Message type=\"2\" color=\"#FFFFFF\" tag=\"1\" date=\"3/5/2006 12:00:00 PM\">"
                  "Tom says, \"&lt;b&gt; &amp; co\"</Message>\r"
                  "\r\t<Message type=\"32\" color=\"#E78F1E\" tag=\"19\" date=\"3/5/2006\"> bell\tand\n\xEF\xBF\xBD"
                  "</Message>\r</Log>");
    EXPECT_THROW(XmlMessage(Said("", 32)), Failure);
    EXPECT_THROW(XmlMessage(Said("", -1)), Failure);
}

// The bytes that stand are not written again: in a copy that a hard link keeps, only the end differs.
TEST_F(LogFileTest, AWriteTouchesNothingButTheEndOfAnXmlLog) {
    XmlLog log(Path("a.xml"));
    log.Write(std::deque<LogItem>(20'000, Said("a line of an old evening")));
    struct stat before, after;
    stat(Path("a.xml").c_str(), &before);
    const std::string old = documents.Read("a.xml");

    rusage start, end;
    getrusage(RUSAGE_SELF, &start);
    log.Write({Said("new")});
    getrusage(RUSAGE_SELF, &end);
    stat(Path("a.xml").c_str(), &after);
    EXPECT_EQ(before.st_ino, after.st_ino) << "the file was written anew";
    EXPECT_LE(end.ru_oublock - start.ru_oublock, 64) << "half-kilobytes written";
    EXPECT_EQ(documents.Read("a.xml"), old.substr(0, old.size() - 6) + XmlMessage(Said("new")) + std::string(kLogTail));
}

TEST_F(LogFileTest, AnXmlLogThatIsOpenedAgainGoesOnWhereItEnded) {
    const struct {
        const char* name;
        const char* old;
        std::string_view begins;  // of the extended file
    } kLogs[] = {
        {"ours.xml",
         "<?xml-stylesheet type=\"text/xsl\" href=\"style/ombrellog.xsl\"?><Log>\r\r\t<Message>1</Message>\r</Log>",
         "<?xml-stylesheet type=\"text/xsl\" href=\"style/ombrellog.xsl\"?><Log>\r\r\t<Message>1</Message>\r\r\t<M"},
        {"foreign.xml", "<?xml version=\"1.0\"?>\n<Chat a='b'><Message>1</Message></Chat>\n<!-- end -->\n",
         "<?xml version=\"1.0\"?>\n<Chat a='b'><Message>1</Message>\r\t<M"},
        {"empty_root.xml", "<?pi?><Log/>", "<?pi?><Log>\n\r\t<M"},
        {"blank_tag.xml", "<Log><Message>1</Message></Log >", "<Log><Message>1</Message>\n\r\t<M"},
    };
    for (const auto& log : kLogs) {
        HaveFile(log.name, log.old);
        auto expected = Messages(log.name);
        expected.push_back("new");
        XmlLog(Path(log.name)).Write({Said("new")});
        EXPECT_EQ(Messages(log.name), expected) << log.name;
        EXPECT_EQ(documents.Read(log.name).substr(0, log.begins.size()), log.begins);
    }
    EXPECT_TRUE(documents.Read("foreign.xml").ends_with("</Message>\r</Chat>\n<!-- end -->\n"));
    EXPECT_THAT(FilesBeside(""), SizeIs(std::size(kLogs))) << "a copy of a good log";
}

TEST_F(LogFileTest, NoFinishedLineIsLostWhereverACrashCutsTheLog) {
    XmlLog(Path("whole.xml")).Write({Said("one"), Said("two & a half"), Said("three")});
    const std::string whole = documents.Read("whole.xml");
    std::filesystem::remove(documents.path() / "whole.xml");
    for (const std::string_view junk : {std::string_view(), std::string_view("\0\0\0\0", 4)}) {
        for (std::size_t length = 0; length < whole.size(); length += junk.empty() ? 1 : 5) {
            std::vector<std::string> expected;
            const std::string cut = whole.substr(0, length);
            for (const char* text : {"one", "two & a half", "three"}) {
                const std::string stored = text == std::string("two & a half") ? "two &amp; a half" : text;
                if (cut.find(stored + "</Message>") != std::string::npos) expected.emplace_back(text);
            }
            expected.push_back("new");
            HaveFile("cut.xml", cut + std::string(junk));
            XmlLog(Path("cut.xml")).Write({Said("new")});
            ASSERT_EQ(Messages("cut.xml"), expected) << "cut at " << length;
            // Less than a head with rubbish behind may have been anything.
            const bool known = junk.empty() || length >= std::string_view(kHead).size();
            ASSERT_TRUE(!known || FilesBeside("cut.xml").empty()) << "cut at " << length;
            for (const auto& copy : FilesBeside("cut.xml")) std::filesystem::remove(documents.path() / copy);
        }
    }
}

TEST_F(LogFileTest, WhatIsNoLogIsKeptBesideIt) {
    for (const std::string_view foreign :
         {"my notes", "<Log><Message>1</Message> and <b>my notes</Log>", "<a><b></a>", "\xEF\xBB\xBF"}) {
        HaveFile("a.xml", std::string(foreign));
        XmlLog log(Path("a.xml"));
        EXPECT_THAT(FilesBeside("a.xml"), ElementsAre("a (not a log 2006-03-05).xml")) << foreign;
        EXPECT_EQ(documents.Read("a (not a log 2006-03-05).xml"), foreign);
        log.Write({Said("new")});
        EXPECT_THAT(Messages("a.xml"), Contains("new"));
        std::filesystem::remove(documents.path() / "a (not a log 2006-03-05).xml");
    }
}

TEST_F(LogFileTest, ALogThatSomebodyTouchesMeanwhileIsReadAgain) {
    XmlLog log(Path("a.xml"));
    log.Write({Said("one")});
    const std::string touched = "<Log><Message>their own</Message></Log>";
    HaveFile("a.xml", touched);
    log.Write({Said("two")});
    EXPECT_THAT(Messages("a.xml"), ElementsAre("their own", "two"));

    const std::string same_size = std::string(documents.Read("a.xml").size() - 6, 'x') + "\n\n\n\n\n\n";
    HaveFile("a.xml", same_size);
    log.Write({Said("three")});
    EXPECT_THAT(Messages("a.xml"), ElementsAre("three"));

    std::filesystem::remove(documents.path() / "a.xml");
    log.Write({Said("four")});
    EXPECT_THAT(Messages("a.xml"), ElementsAre("four"));
}

TEST_F(LogFileTest, AFullDiskLeavesBothLogsAsTheyWere) {
    options().ChatLogTimestamp->SetChecked(false);
    TextLog text(Path("a.txt"));
    XmlLog xml(Path("a.xml"));
    text.Write({Said("one")});
    xml.Write({Said("one")});
    const std::deque<LogItem> many(100, Said(std::string(200, 'x')));
    const auto number_of = [&](LogFile& log) {
        const FullDisk full;
        try {
            log.Write(many);
        } catch (const Failure& failure) {
            return failure.number();
        }
        return 0;
    };
    EXPECT_EQ(number_of(text), failure::kDiskFull);
    EXPECT_EQ(number_of(xml), failure::kDiskFull);
    EXPECT_EQ(documents.Read("a.txt"), "one\r\n");
    EXPECT_THAT(Messages("a.xml"), ElementsAre("one"));

    text.Write({Said("two")});
    xml.Write({Said("two")});
    EXPECT_EQ(documents.Read("a.txt"), "one\r\ntwo\r\n");
    EXPECT_THAT(Messages("a.xml"), ElementsAre("one", "two"));
}

TEST_F(LogFileTest, AKillInTheMidstOfWritingLosesNoLineThatWasWritten) {
    std::size_t expected = 0;
    for (int kill = 0; kill < Kills(); ++kill) {
        int done[2];
        ASSERT_EQ(pipe(done), 0);
        std::optional<XmlLog> log;
        KillWhileDoing([&](int i) {
            if (!log) log.emplace(Path("a.xml"));
            log->Write({Said(fmt::format("{} {}", expected + static_cast<std::size_t>(i), std::string(20'000, 'x')))});
            if (write(done[1], "x", 1) != 1) _exit(1);
        });
        close(done[1]);
        char byte;
        while (read(done[0], &byte, 1) == 1) ++expected;
        close(done[0]);

        log.emplace(Path("a.xml"));
        if (expected == 0 && !FileExists(Path("a.xml"))) continue;  // killed before its first line
        const auto messages = Messages("a.xml");
        ASSERT_GE(messages.size(), expected);
        ASSERT_LE(messages.size(), expected + 1) << "a line twice";
        for (std::size_t i = 0; i < messages.size(); ++i)
            ASSERT_TRUE(messages[i].starts_with(fmt::format("{} x", i))) << i;
        expected = messages.size();
        ASSERT_THAT(FilesBeside("a.xml"), IsEmpty());
    }
}

}  // namespace
}  // namespace ombrel::test
