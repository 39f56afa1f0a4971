#include "adapters/sim/ChatFeed.h"

#include <sstream>
#include <utility>
#include <vector>

#include "adapters/sim/SessionFormat.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

using Lines = std::vector<std::pair<std::int32_t, std::string>>;

Lines Fed(const std::string& file) {
    Lines lines;
    std::istringstream input(file);
    ReadChatFile(input, "chat.tsv",
                 [&](std::int32_t type, const std::string& text) { lines.emplace_back(type, text); });
    return lines;
}

TEST(ChatFeed, ReadsTypeAndTextAndNothingMore) {
    EXPECT_EQ(Fed("type\ttext\tnote\n7\tYou cast it\tnote\tmore\r\n-1\tYour movement\n\n2\ta\\nb \\t c\\"),
              (Lines{{7, "You cast it"}, {-1, "Your movement"}, {2, "a\nb \\t c\\"}}));
    EXPECT_EQ(Fed("0\tno header\n"), (Lines{{0, "no header"}}));
    EXPECT_EQ(Fed(""), Lines{});
}

TEST(ChatFeed, NamesTheLineThatIsWrong) {
    for (const char* file : {"0\tx\nseven\ty\n", "0\tx\n7\n", "type\n-2\ty\n"}) {
        try {
            Fed(file);
            ADD_FAILURE() << file;
        } catch (const SessionError& error) {
            EXPECT_THAT(error.what(), StartsWith("chat.tsv:2: "));
        }
    }
}

}  // namespace
}  // namespace ombrel::sim
