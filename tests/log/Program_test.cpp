// The log reader as a program: its output, its pages, its exit statuses.

#include <sys/wait.h>

#include <cstdlib>

#include "apps/log/Output.h"
#include "tests/support/Matchers.h"
#include "tests/support/TempFolder.h"

namespace ombrel::log {
namespace {

class LogProgram : public testing::Test {
protected:
    LogProgram() {
        folder_.Write("a.xml",
                      "<Log><Message type=\"3\" color=\"#EBEB3A\" tag=\"2\" date=\"7/4/2024 1:05:09 PM\">"
                      "Tom tells you, \"&lt;b&gt; &amp; co\"</Message><Message color=\"red;x\" tag=\"1\" "
                      "date=\"7/5/2024\">pears</Message></Log>");
        folder_.Write("b.txt", "apples \x1b[2J\r\n");
    }

    // Arguments as for a shell, in the test's folder.
    int Run(const std::string& arguments) {
        const std::string command =
            "cd '" + folder_.path().string() + "' && '" OMBREL_LOG "' " + arguments + " >out 2>err";
        const int status = std::system(command.c_str());
        out_ = folder_.Read("out");
        err_ = folder_.Read("err");
        return WEXITSTATUS(status);
    }

    test::TempFolder folder_;
    std::string out_, err_;
};

TEST_F(LogProgram, PrintsTheLinesThatFitInTheOrderOfTheFiles) {
    EXPECT_EQ(Run("a.xml b.txt"), 0);
    EXPECT_EQ(out_, "<7/4/2024 1:05:09 PM> Tom tells you, \"<b> & co\"\n<7/5/2024> pears\napples [2J\n");
    EXPECT_EQ(Run("b.txt a.xml -s 'tom|apples' --color always"), 0);
    EXPECT_EQ(
        out_,
        "apples [2J\n\x1b[2m<7/4/2024 1:05:09 PM> \x1b[0m\x1b[38;2;235;235;58mTom tells you, \"<b> & co\"\x1b[0m\n");
    EXPECT_EQ(Run("a.xml b.txt --class tells,open --day 2024-07-05"), 0);
    EXPECT_EQ(out_, "<7/5/2024> pears\n");
}

TEST_F(LogProgram, ExitStatusTellsHowItWent) {
    const struct {
        const char* arguments;
        int status;
        const char* error;  // the whole of it, one line
    } kRuns[] = {
        {"a.xml -s plums", 1, ""},
        {"a.xml missing.xml", 2, "ombrel-log: missing.xml: No such file or directory\n"},
        {"a.xml -d someday", 2, "ombrel-log: 'someday' is no day like 2024-07-04\n"},
        {"a.xml --color blue", 2, "ombrel-log: --color: blue not in {auto,always,never}\n"},
        {"", 2, "ombrel-log: files is required\n"},
        {"--help", 0, ""},
    };
    for (const auto& run : kRuns) {
        EXPECT_EQ(Run(run.arguments), run.status) << run.arguments;
        EXPECT_EQ(err_, run.error) << run.arguments;
    }
    EXPECT_EQ(Run("missing.xml a.xml -s pears"), 2);
    EXPECT_EQ(out_, "<7/5/2024> pears\n") << "a log that is missing costs the others nothing";
    EXPECT_EQ(Run("a.xml --html nowhere/page.html"), 2);
    EXPECT_THAT(err_, HasSubstr("nowhere: no such folder"));
    EXPECT_EQ(std::system(("'" OMBREL_LOG "' '" + folder_.path().string() + "/a.xml' >/dev/full 2>/dev/null").c_str()),
              2 << 8);
}

TEST_F(LogProgram, WritesAPageThatStandsAlone) {
    EXPECT_EQ(Run("a.xml b.txt --html page.html"), 0);
    EXPECT_EQ(out_, "");
    const std::string page = folder_.Read("page.html");
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"UTF-8\">"));
    EXPECT_THAT(page, HasSubstr("<li data-tag=\"2\" data-date=\"7/4/2024 1:05:09 PM\" style=\"color:#EBEB3A\">"
                                "<time>7/4/2024 1:05:09 PM</time> "
                                "<span>Tom tells you, &quot;&lt;b&gt; &amp; co&quot;</span></li>"));
    EXPECT_THAT(page, HasSubstr("<li data-tag=\"1\" data-date=\"7/5/2024\"><time>")) << "no colour of that kind";
    EXPECT_THAT(page, HasSubstr("<span>apples [2J</span>"));
    EXPECT_THAT(page, HasSubstr("wanted.some(function (terms)")) << "the script, unescaped";
    EXPECT_THAT(page, HasSubstr("return terms.every"));
    for (const char* outside : {"http:", "https:", "src=", "@import", "url(", "xsl:", "CDATA"})
        EXPECT_THAT(page, Not(HasSubstr(outside)));
}

}  // namespace
}  // namespace ombrel::log
