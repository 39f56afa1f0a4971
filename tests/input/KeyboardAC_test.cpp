#include "input/KeyboardAC.h"

#include <fmt/format.h>

#include <cstdio>

#include "core/Hub.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kEnter = 13;

class KeyboardACTest : public PluginTest {
protected:
    void SetUp() override {
        Start();
        Forget();
    }

    static KeyboardAC& keyboard() { return *Vars::KeyboardAC; }

    // The keys that went down, each of which has come up before the next.
    std::vector<std::int32_t> Keys() {
        std::vector<std::int32_t> keys;
        const auto events = CallsOf("keybd_event");
        for (std::size_t i = 0; i + 1 < events.size(); i += 2) {
            int key = 0, scan = 0;
            EXPECT_EQ(std::sscanf(events[i].c_str(), "keybd_event key=%d scan=%d flags=0", &key, &scan), 2);
            EXPECT_EQ(events[i + 1], fmt::format("keybd_event key={} scan={} flags=2", key, scan));
            keys.push_back(key);
        }
        EXPECT_EQ(events.size() % 2, 0u);
        return keys;
    }
};

TEST_F(KeyboardACTest, AKeyGoesDownAndUpAtOnceWithItsScanCode) {
    keyboard().SendKey(kEnter);
    EXPECT_THAT(CallsOf("keybd_event"),
                ElementsAre("keybd_event key=13 scan=28 flags=0", "keybd_event key=13 scan=28 flags=2"));
}

TEST_F(KeyboardACTest, TypesOneCharacterEachBeatAndRestsWhenAllIsTyped) {
    keyboard().SendString("Ab!", false);
    keyboard().SendEnter();
    EXPECT_THAT(Keys(), IsEmpty());
    keyboard().Run();
    Advance(19ms);
    EXPECT_THAT(Keys(), IsEmpty());
    Advance(1ms);
    EXPECT_THAT(Keys(), ElementsAre('A'));
    Advance(60ms);
    EXPECT_THAT(Keys(), ElementsAre('A', 'B', '1', kEnter)) << "without shift";
    EXPECT_TRUE(keyboard().WriteBuffer->Running());
    Advance(20ms);
    EXPECT_FALSE(keyboard().WriteBuffer->Running());

    // What comes later waits for the next run.
    keyboard().SendString("c", false);
    Advance(1s);
    EXPECT_THAT(Keys(), SizeIs(4));
    keyboard().Run();
    Advance(20ms);
    EXPECT_EQ(Keys().back(), 'C');
}

TEST_F(KeyboardACTest, WaitsForTheChatBoxAndKnocksUntilItOpens) {
    keyboard().AddWaitforChat();
    keyboard().SendString("hi", true);
    keyboard().Run();
    Advance(20ms);
    EXPECT_THAT(Keys(), ElementsAre(kEnter));
    EXPECT_TRUE(keyboard().WaitingForChat);
    Advance(100ms);
    EXPECT_THAT(Keys(), ElementsAre(kEnter, kEnter, kEnter)) << "a key each 50 milliseconds, and no character";
    client.hooks.ChatState = true;
    Advance(50ms);
    EXPECT_FALSE(keyboard().WaitingForChat);
    EXPECT_FALSE(keyboard().WaitChat->Running());
    Advance(60ms);
    EXPECT_THAT(Keys(), ElementsAre(kEnter, kEnter, kEnter, 'H', 'I'));
}

// The first key closes the box, and the next tries open it again.
TEST_F(KeyboardACTest, KnocksAtABoxThatIsOpenAlready) {
    client.hooks.ChatState = true;
    keyboard().AddWaitforChat();
    keyboard().SendString("x", false);
    keyboard().Run();
    Advance(20ms);
    client.hooks.ChatState = false;
    Advance(50ms);
    client.hooks.ChatState = true;
    Advance(100ms);
    EXPECT_THAT(Keys(), ElementsAre(kEnter, kEnter, 'X'));
}

TEST_F(KeyboardACTest, CharactersThatTheClientLacksAreLeftOut) {
    keyboard().SendString("a\xE2\x82\xAC\xC3\xA9z", false);  // euro sign and e acute, of which no key types either
    keyboard().Run();
    Advance(200ms);
    EXPECT_EQ(Keys().front(), 'A');
    EXPECT_EQ(Keys().back(), 'Z');
    EXPECT_THAT(Keys(), SizeIs(4));
}

TEST_F(KeyboardACTest, EachEntryStandsInTheDebugLog) {
    Vars::DebugMode = Vars::DebugSilent = true;
    keyboard().SendChar("q");
    keyboard().SendChar("{Enter}");
    Vars::DebugMode = false;
    const std::string log = documents.Read("Asheron's Call/Ombrel Debug.txt");
    EXPECT_NE(log.find("q"), std::string::npos);
    EXPECT_NE(log.find("{Enter}"), std::string::npos);
    EXPECT_THAT(Keys(), ElementsAre('Q', kEnter));
}

TEST_F(KeyboardACTest, TheEnterKeyIsUpWhileItsStateIsZero) {
    EXPECT_TRUE(keyboard().CheckEnter());
    client.system.keys_down = {kEnter};
    EXPECT_FALSE(keyboard().CheckEnter());
    client.system.keys_down = {};
    client.system.keys_toggled = {kEnter};
    EXPECT_FALSE(keyboard().CheckEnter());
}

TEST_F(KeyboardACTest, AClickPutsTheCursorBack) {
    client.system.cursor = {300, 400};
    SendClick(20, 10);
    EXPECT_THAT(calls, ElementsAre("SetCursorPos x=20 y=10", "mouse_event flags=2", "mouse_event flags=4",
                                   "SetCursorPos x=300 y=400"));
}

TEST_F(KeyboardACTest, TheVitalsAreClickedTwiceAtLoginWhenThePlayerWantsIt) {
    LogIn();
    EXPECT_THAT(CallsOf("mouse_event"), IsEmpty());
    options().ToggleVitals->SetChecked(true);
    options().Settings_Save(0);
    LogIn();
    EXPECT_THAT(CallsOf("mouse_event"), SizeIs(4));
    EXPECT_THAT(CallsOf("SetCursorPos x=20 y=10"), SizeIs(2));
}

}  // namespace
}  // namespace ombrel::test
