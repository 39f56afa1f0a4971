#include "hud/HUDStatusHandler.h"

#include "bench/Allocations.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class HUDStatusHandlerTest : public PluginTest {
protected:
    void SetUp() override {
        LogIn();
        options().HudStatusLines->SetSelected(2);  // three lines
        options().HudStatusColor->SetSelected(0);
        Forget();
    }

    static HUDStatusHandler& handler() { return *Vars::HUDStatusHandler; }
    static std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        for (const auto& [key, item] : handler().StatusHud->items()) lines.push_back(key + "=" + item.data);
        return lines;
    }
};

TEST_F(HUDStatusHandlerTest, TheNewestMessageIsTheTopLine) {
    options().HudStatusColor->SetSelected(3);
    for (const char* text : {"a", "b", "c"}) client.StatusText(text);
    EXPECT_THAT(Lines(), ElementsAre("3=c", "2=b", "1=a"));
    client.StatusText("d");
    EXPECT_THAT(Lines(), ElementsAre("3=d", "2=c", "1=b"));
    const HUDItem& line = handler().StatusHud->items().at("3");
    EXPECT_EQ(line.color, "Red");
    EXPECT_EQ(line.icon, -1);
    EXPECT_TRUE(line.newline);
    EXPECT_EQ(line.alpha, 10);
}

TEST_F(HUDStatusHandlerTest, MessagesLiveForFourSeconds) {
    client.StatusText("a");
    Advance(2s);
    client.StatusText("b");
    Advance(2s);
    EXPECT_THAT(Lines(), ElementsAre("2=b", "1=a"));
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("1=b"));
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("1=b"));
    Advance(1s);
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_EQ(handler().StatusHud->frame.width(), 20);
}

TEST_F(HUDStatusHandlerTest, ARepeatedMessageLivesOn) {
    for (int i = 0; i < 10; ++i) {
        client.StatusText("You're too busy!");
        Forget();
        client.StatusText("You're too busy!");
        EXPECT_THAT(CallsOf("HudView"), IsEmpty());
        Advance(400ms);
    }
    EXPECT_THAT(Lines(), ElementsAre("1=You're too busy!"));
    Advance(3s);
    EXPECT_THAT(Lines(), ElementsAre("1=You're too busy!"));
    Advance(1s);
    EXPECT_THAT(Lines(), IsEmpty());

    for (const char* text : {"a", "b", "a"}) client.StatusText(text);
    EXPECT_THAT(Lines(), ElementsAre("3=a", "2=b", "1=a"));
}

TEST_F(HUDStatusHandlerTest, WithOneLineTheLastMessageStandsAndAChoiceWithoutEntryIsReported) {
    options().HudStatusLines->SetSelected(0);
    client.StatusText("c");
    client.StatusText("a");
    EXPECT_THAT(Lines(), ElementsAre("1=a"));
    options().HudStatusLines->SetSelected(-1);
    client.StatusText("b");
    EXPECT_THAT(TakeReports(), ElementsAre(EndsWith("occured in 'AddMessage' of class 'HUDStatusHandler'")));
}

TEST_F(HUDStatusHandlerTest, AQuietSecondDrawsNothingAndTakesNoMemory) {
    client.calls.listener = nullptr;
    handler().Update();
    const std::uint64_t before = bench::Allocations();
    handler().Update();
    EXPECT_EQ(bench::Allocations() - before, 0u);
    client.StatusText("a");
    const std::uint64_t drawn = client.calls.Count(*sim::FindOperation("HudView.BeginRender"));
    handler().Update();
    EXPECT_EQ(client.calls.Count(*sim::FindOperation("HudView.BeginRender")), drawn);
}

}  // namespace
}  // namespace ombrel::test
