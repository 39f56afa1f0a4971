// What chat lines cost the framework.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/windows/Play.h"

namespace ombrel::standin {
namespace {

class LinesTest : public testing::Test {
protected:
    LinesTest() : dll_(DllPath()), framework_(dll_) {
        folders_.GiveTo(client());
        client().Start();
        client().LoginComplete();
    }

    sim::Client& client() { return framework_.client(); }

    // How many calls a line leads to.
    std::uint64_t CallsOf(const std::string& text, std::int32_t color) {
        const std::uint64_t before = TheLedger().calls;
        client().ChatText(text, color, 0);
        return TheLedger().calls - before;
    }

    const Apartment apartment_;
    const Folders folders_;
    const PluginDll dll_;
    Framework framework_;
};

TEST_F(LinesTest, ALineThatNothingTouchesCallsNobody) {
    CallsOf("The first line may look around.\n", 0);
    EXPECT_EQ(CallsOf("Mira Fenn says, \"Nice weather by the lake.\"\n", 2), 0u);
    EXPECT_EQ(CallsOf("The lifestone hums.\n", 0), 0u);
    EXPECT_EQ(CallsOf("You have been involved in a player killer battle too recently!\n", 0), 0u);
}

TEST_F(LinesTest, OwnLinesComeBackUnseen) {
    std::vector<std::string> written;
    client().calls.listener = [&](const sim::Call& call) {
        if (call.operation == sim::FindOperation("ChatOut")) {
            written.emplace_back(std::get<std::string_view>(call.arguments[0].value));
        }
    };
    client().ChatParser("/m loc");
    EXPECT_FALSE(written.empty());
    EXPECT_EQ(std::ranges::adjacent_find(written), written.end());
    EXPECT_EQ(TheLedger().eaten_echoes, 0u);
    client().calls.listener = nullptr;
}

}  // namespace
}  // namespace ombrel::standin
