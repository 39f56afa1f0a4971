// The life of the plug-in's DLL, from its loading to its unloading.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "tests/windows/Play.h"

namespace ombrel::standin {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

bool Loaded() { return GetModuleHandleW(L"Ombrel.dll") != nullptr; }

class LifeTest : public testing::Test {
protected:
    LifeTest() { TheLedger().Reset(); }
    ~LifeTest() override { TheHabits() = {}; }

    const Apartment apartment_;

    // Nothing is left of the plug-in.
    static void ExpectGone() {
        EXPECT_EQ(TheLedger().Complaints(), "");
        EXPECT_FALSE(Loaded());
    }
};

void ExpectSame(const Played& expected, const Played& actual) {
    EXPECT_EQ(Difference(expected.calls, actual.calls), "");
    for (const auto& [name, content] : expected.files) {
        ASSERT_TRUE(actual.files.contains(name)) << name;
        EXPECT_EQ(Difference(content, actual.files.at(name)), "") << name;
    }
    EXPECT_EQ(expected.files.size(), actual.files.size());
}

TEST_F(LifeTest, AnEveningIsTheSameAsWithoutTheFrameworkAndLeavesNothing) {
    const Played itself = PlayItself(Evening());
    EXPECT_THAT(itself.calls, HasSubstr("ChatOut"));
    ExpectSame(itself, PlayDll(Evening()));
    ExpectGone();
}

TEST_F(LifeTest, ASecondEveningInTheSameProcessIsLikeTheFirst) {
    const Played first = PlayDll(Evening());
    ExpectSame(first, PlayDll(Evening()));
    ExpectGone();
}

TEST_F(LifeTest, ItEndsInTheMiddleOfTheEvening) {
    const std::string evening = Evening();
    for (const double part : {0.1, 0.3, 0.5, 0.7, 0.9}) {
        const auto cut = evening.find('\n', static_cast<std::size_t>(static_cast<double>(evening.size()) * part));
        const std::string session = evening.substr(0, cut + 1);
        ExpectSame(PlayItself(session), PlayDll(session));
        ExpectGone();
    }
}

TEST_F(LifeTest, TheDllStaysWhileItsPluginIsHeld) {
    const Folders folders;
    const PluginDll dll(DllPath());
    EXPECT_TRUE(dll.CanUnload());
    {
        Framework framework(dll);
        folders.GiveTo(framework.client());
        framework.client().Start();
        EXPECT_FALSE(dll.CanUnload());
    }
    EXPECT_TRUE(dll.CanUnload());
}

TEST_F(LifeTest, AnotherPluginOnTheSameClientIsOne) {
    const std::string twice = R"({"event": "Initialize"})"
                              "\n" +
                              Evening() +
                              R"({"event": "Initialize"})"
                              "\n" +
                              R"({"event": "Char_LoginComplete"})"
                              "\n" +
                              R"({"event": "ACHooks_ChatParserIntercept", "text": "/m loc"})"
                              "\n";
    ExpectSame(PlayItself(twice), PlayDll(twice));
    ExpectGone();
}

TEST_F(LifeTest, EachServiceMayBeMissing) {
    for (const char* service : {"World", "CharacterStats", "EchoFilter2", "Spells", "RenderService", "Hotkeys"}) {
        SCOPED_TRACE(service);
        const auto without = [service](sim::Client& client) { client.missing_services.insert(service); };
        ExpectSame(PlayItself(Evening(), without), PlayDll(Evening(), without));
        ExpectGone();
    }
}

TEST_F(LifeTest, TheDisplayIsDrawnAgainWhenTheDeviceWasLost) {
    const std::string session = Evening() + R"({"event": "DeviceLost"})"
                                            "\n"
                                            R"({"advance": 2})"
                                            "\n";
    const Played itself = PlayItself(session);
    const auto drawn = itself.calls.rfind("EndRender");
    ASSERT_NE(drawn, std::string::npos);
    ExpectSame(itself, PlayDll(session));
    ExpectGone();
}

TEST_F(LifeTest, TheFrameworkMayRaiseEventsInAnyOrderAndForm) {
    const Played plain = PlayDll(Evening());
    TheHabits().last_sink_first = true;
    ExpectSame(plain, PlayDll(Evening()));
    TheHabits() = {.odd_arguments = true};
    ExpectSame(plain, PlayDll(Evening()));
    TheHabits() = {.absent_fields_empty = true};
    ExpectSame(plain, PlayDll(Evening()));
    ExpectGone();
}

TEST_F(LifeTest, EachHookMayBeMissing) {
    for (const char* hook : {"AddChatText",      "AddChatTextRaw", "InvokeChatParser",   "SetIdleTime",
                             "CurrentSelection", "ChatState",      "BusyState",          "PointerState",
                             "CombatMode",       "VendorID",       "AC3DRegionRect",     "IsValidObject",
                             "SelectItem",       "UseItem",        "ApplyItem",          "GiveItem",
                             "RequestID",        "IDQueueAdd",     "SelectedStackCount", "MoveItemEx"}) {
        SCOPED_TRACE(hook);
        TheHabits().missing_hooks = {hook};
        const Played played = PlayDll(Evening());
        EXPECT_THAT(played.calls, testing::Not(HasSubstr("occured in")));
        ExpectGone();
    }
}

TEST_F(LifeTest, EachCallMayFailOnce) {
    const std::string evening = Evening();
    for (std::size_t i = 0; i < sim::kOperations.size(); ++i) {
        const sim::Operation& row = sim::kOperations[i];
        SCOPED_TRACE(std::string(row.object) + "." + std::string(row.name));
        PlayDll(evening, [i](sim::Client& client) {
            client.calls.Fail(static_cast<sim::Op>(i), 1, 13, "The framework stumbles");
        });
        ExpectGone();
    }
}

TEST_F(LifeTest, ItStartsQuicklyOnceItHasBeenLoaded) {
    const Folders folders;
    const PluginDll dll(DllPath());
    auto quickest = std::chrono::steady_clock::duration::max();
    for (int time = 0; time < 5; ++time) {
        Framework framework(dll);
        folders.GiveTo(framework.client());
        const auto start = std::chrono::steady_clock::now();
        framework.client().Start();
        quickest = std::min(quickest, std::chrono::steady_clock::now() - start);
    }
    EXPECT_LT(quickest, std::chrono::milliseconds(50));
}

}  // namespace
}  // namespace ombrel::standin
