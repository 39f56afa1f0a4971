#include "input/DHSHandler.h"

#include <fmt/format.h>

#include "adapters/sim/Controls.h"
#include "adapters/sim/View.h"
#include "automation/EventQueue.h"
#include "config/HudRows.h"
#include "stats/Statistics.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

// In the order in which the service hears of them.
constexpr const char* kHotkeys[][2] = {
    {"OM:ResetSession", "Ombrel: Resets Session"},
    {"OM:ToggleAllHud", "Ombrel: Toggles all HUDs on or off"},
    {"OM:ToggleMainHud", "Ombrel: Toggles Main HUD on or off"},
    {"OM:ToggleItemHud", "Ombrel: Toggles Item HUD on or off"},
    {"OM:ToggleClockHud", "Ombrel: Toggles Clock HUD on or off"},
    {"OM:DrinkBeersNow", "Ombrel: Drinks one of each beer"},
    {"OM:ToggleUseBeers", "Ombrel: Toggles the auto use of beers when timer is low on or off"},
    {"OM:RunEvents", "Ombrel: Runs queued events"},
    {"OM:ToggleAFK", "Ombrel: Toggles your AFK state"},
    {"OM:OneKeyHealth", "Ombrel: One key eat health food"},
    {"OM:OneKeyStamina", "Ombrel: One key eat stamina food"},
    {"OM:OneKeyMana", "Ombrel: One key eat mana food"},
    {"OM:OneKeyHeal", "Ombrel: One key heal self"},
    {"OM:OneKeySmartHeal", "Ombrel: One key heal self, but falls back to food if health is too low"},
};

class DHSHandlerTest : public PluginTest {
protected:
    void SetUp() override {
        LogIn();
        client.view()->Get<sim::SimCheckbox>("Output_Main")->Check(true);
        Forget();
    }

    // A thing to eat, or a kit.
    void CarryFood(host::Id id, std::int32_t vital) {
        auto& food = Carry(id, "Ham");
        food.Type = host::object_class::kFood;
        food.Long = {{89, vital}, {90, 50}};
    }

    std::vector<std::string> Used() const { return CallsOf("UseItemOnTarget"); }
};

TEST_F(DHSHandlerTest, OffersEachActionOnceInOrder) {
    client.known_hotkeys = {"OM:ToggleItemHud"};
    Vars::DHSHandler->AddHotKeys();
    std::vector<std::string> expected;
    for (const auto& [name, description] : kHotkeys) {
        if (std::string_view(name) != "OM:ToggleItemHud")
            expected.push_back(fmt::format("HotkeyRegister plugin=Ombrel name={} description={}", name, description));
    }
    EXPECT_EQ(CallsOf("HotkeyRegister"), expected);
    Forget();
    LogIn();
    EXPECT_THAT(CallsOf("HotkeyRegister"), IsEmpty()) << "each is known by now";
}

TEST_F(DHSHandlerTest, TogglesActOnTheirHud) {
    struct Row {
        const char* name;
        std::int32_t hud;
    };
    for (const auto& [name, row] : {Row{"OM:ToggleMainHud", hud::kMain}, Row{"OM:ToggleItemHud", hud::kItems},
                                    Row{"OM:ToggleClockHud", hud::kClock}, Row{"OM:ToggleAllHud", hud::kMain}}) {
        const bool before = hud::FrameOf(row).Enabled();
        EXPECT_TRUE(client.Hotkey(name));
        EXPECT_EQ(hud::FrameOf(row).Enabled(), !before) << name;
        EXPECT_TRUE(client.Hotkey(name));
        EXPECT_EQ(hud::FrameOf(row).Enabled(), before) << name;
    }
    client.Hotkey("OM:ToggleAllHud");
    for (std::int32_t row = 0; row < hud::kCount; ++row) EXPECT_FALSE(hud::FrameOf(row).Enabled());
}

TEST_F(DHSHandlerTest, TheOthersReachTheirActions) {
    Vars::Statistics->Kills = 3;
    EXPECT_TRUE(client.Hotkey("OM:ResetSession"));
    EXPECT_EQ(Vars::Statistics->Kills, 0);

    EXPECT_TRUE(client.Hotkey("OM:ToggleUseBeers"));
    EXPECT_TRUE(options().UseBeers->Checked());
    EXPECT_TRUE(client.Hotkey("OM:ToggleUseBeers"));
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Ready to keep em' coming!", "<Ombrel> Yeah, you've had enough."));

    EXPECT_TRUE(client.Hotkey("OM:ToggleAFK"));
    EXPECT_TRUE(options().ChatLogAFK->Checked());
    EXPECT_THAT(CallsOf("InvokeChatParser"), ElementsAre("InvokeChatParser text=*afk*"));

    Carry(0x400, "Amber Ape").Long[host::key::kStackCount] = 3;
    Forget();
    EXPECT_TRUE(client.Hotkey("OM:DrinkBeersNow"));
    EXPECT_THAT(Texts(), ElementsAre(HasSubstr("Adding Amber Ape to the event queue.")));
    EXPECT_EQ(Vars::EventQueue->running, 2);
    Advance(2s);
    EXPECT_THAT(Used(), Contains(HasSubstr("id=1024")));
    Vars::EventQueue->Clear();
    EXPECT_TRUE(client.Hotkey("OM:RunEvents"));
    EXPECT_EQ(Vars::EventQueue->running, 2);
}

// The game gets the key when there was nothing to do with it.
TEST_F(DHSHandlerTest, FoodAndKitsAreHandledWhenSomethingWasUsed) {
    struct Row {
        const char* name;
        std::int32_t vital;
    };
    const Row rows[] = {{"OM:OneKeyHealth", 2}, {"OM:OneKeyStamina", 4}, {"OM:OneKeyMana", 6}};
    options().VitalsEnabled->SetChecked(true);
    for (const auto& row : rows) {
        Forget();
        EXPECT_FALSE(client.Hotkey(row.name)) << row.name;
        CarryFood(0x410 + row.vital, row.vital);
        client.sheet.Health = client.sheet.Stamina = client.sheet.Mana = 40;
        EXPECT_TRUE(client.Hotkey(row.name)) << row.name;
        EXPECT_THAT(Used(), ElementsAre(HasSubstr(fmt::format("id={} ", 0x410 + row.vital))));
    }
    for (const char* name : {"OM:OneKeyHeal", "OM:OneKeySmartHeal"}) {
        Forget();
        client.RemoveObject(0x420);
        const bool smart = std::string_view(name) == "OM:OneKeySmartHeal";
        EXPECT_EQ(client.Hotkey(name), smart) << "without a kit only the smart one has food";
        auto& kit = Carry(0x420, "Kit");
        kit.Type = host::object_class::kHealingKit;
        kit.Long = {{90, 500}, {92, 5}};
        kit.Double = {{100, 1.5}};
        Forget();
        EXPECT_TRUE(client.Hotkey(name));
        EXPECT_THAT(Used(), ElementsAre(HasSubstr("id=1056 "))) << name;
    }
    options().VitalsEnabled->SetChecked(false);
    Forget();
    for (const auto& row : rows) EXPECT_FALSE(client.Hotkey(row.name));
    EXPECT_THAT(Used(), IsEmpty());
}

TEST_F(DHSHandlerTest, NamesOfOthersAreLeftAlone) {
    EXPECT_FALSE(client.Hotkey("Other:ResetSession"));
    EXPECT_FALSE(client.Hotkey("om:resetsession"));
    EXPECT_FALSE(client.Hotkey(""));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(DHSHandlerTest, WithoutTheServiceThePluginSaysNothing) {
    client.Terminate();
    client.hotkeys_available = false;
    Forget();
    Start();
    LogIn();
    EXPECT_FALSE(Vars::DHSHandler->HasService());
    EXPECT_THAT(CallsOf("HotkeyRegister"), IsEmpty());
    EXPECT_THAT(Texts(), Contains("<Ombrel> Plugin Loaded! Type /m help for commands."));
}

TEST_F(DHSHandlerTest, AServiceThatRefusesOneActionIsOfferedTheOthers) {
    client.known_hotkeys.clear();
    FailNext("HotkeyService.HotkeyRegister");
    Vars::DHSHandler->AddHotKeys();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'AddAHotKey' of class 'DHSHandler'"));
    EXPECT_THAT(client.known_hotkeys, SizeIs(13));
}

}  // namespace
}  // namespace ombrel::test
