#include "adapters/sim/Transcript.h"

#include <sstream>

#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

std::string Shown(const Client::ChatLine& line, Colors colors = Colors::kPlain) {
    std::ostringstream out;
    Transcript(out, colors).Show(line);
    return out.str();
}

TEST(Transcript, ShowsLinksAsNames) {
    const std::pair<const char*, const char*> rows[] = {
        {R"(<Tell:IIDString:1342309377:Thessaly>Thessaly<\Tell> says, "hi")", R"(Thessaly says, "hi")"},
        {R"(<Tell:IIDString:463072:[Ombrel]>Run queued events.<\Tell>)", "Run queued events."},
        {R"(a <Tell:x>b<\Tell> c <Tell:y>d<\Tell>)", "a b c d"},
        {R"(<Tell:never closed)", R"(<Tell:never closed)"},
        {R"(<\Tell> <Tell:x>)", R"(<\Tell> <Tell:x>)"},
        {"bell \x07 and \x1b[31mred", "bell  and [31mred"},
    };
    for (const auto& [text, readable] : rows) EXPECT_EQ(ReadableChat(text), readable);
}

TEST(Transcript, TellsTimeAndWindow) {
    EXPECT_EQ(Shown({3'723'999, "You feel better.\n", 7, 1, false}), "[01:02:03] [main] You feel better.\n");
    EXPECT_EQ(Shown({0, "one\ntwo\n", 7, 0, false}), "[00:00:00] [main] one\n                  two\n");
    EXPECT_EQ(Shown({0, "x", 7, 3, true}), "[00:00:00] [   2] x\n");
}

TEST(Transcript, ColoursLinesAsTheClientDoes) {
    EXPECT_NE(Shown({0, "x", 4, 1, false}, Colors::kAnsi).find("\x1b[38;2;187;187;71mx\x1b[0m"), std::string::npos);
    EXPECT_EQ(Shown({0, "x", 99, 1, false}, Colors::kAnsi).find("38;2"), std::string::npos);
    EXPECT_EQ(Shown({0, "x", -5, 1, false}, Colors::kAnsi).find("38;2"), std::string::npos);
}

}  // namespace
}  // namespace ombrel::sim
