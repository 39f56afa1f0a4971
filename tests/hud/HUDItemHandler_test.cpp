#include "hud/HUDItemHandler.h"

#include <fmt/format.h>

#include "core/cells.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kIcon = 0x0D000001;
constexpr std::int32_t kStack = 0x0D000006;
constexpr const char* kWarning = "Running Low on Item Warning";

class HUDItemHandlerTest : public PluginTest {
protected:
    void SetUp() override {
        LogIn();
        options().HudItemsColor->SetSelected(0);
        options().HudItemsHorz->SetChecked(false);
        Warn(true);
        Forget();
    }

    static HUDItemHandler& handler() { return *Vars::HUDItemHandler; }
    static void Warn(bool on) { options().ChatOptions->SetData(0, options().FindName(kWarning, "ChatOptions"), on); }
    static void Watch(const char* name, std::int32_t threshold, std::int32_t icon = 100) {
        host::List& items = *options().HudItems;
        const std::int32_t row = items.AddRow();
        items.SetData(0, row, true);
        items.SetData(1, row, std::string(name));
        items.SetData(2, row, std::to_string(threshold));
        items.SetData(6, row, std::to_string(icon));
    }
    // So many of a thing in the packs, told or untold.
    void Have(host::Id id, const char* name, std::int32_t count, std::int32_t icon = 4711) {
        if (count == 0) return client.RemoveObject(id);
        sim::Object& thing = Carry(id, name);
        thing.Long[kStack] = count;
        thing.Long[kIcon] = icon;
    }
    void Count() {
        handler().UpdateHUD();
        Advance(50ms);
    }
    static std::vector<std::string> Items() {
        std::vector<std::string> items;
        for (const auto& [key, item] : handler().ItemHUD->items())
            items.push_back(
                fmt::format("{}: {} {} {}{}", key, item.data, item.color, item.icon, item.newline ? "" : " in a row"));
        return items;
    }
};

TEST_F(HUDItemHandlerTest, CountsWhatIsInThePacks) {
    Watch("Taper", 0);
    Watch("Scarab", 0, 200);
    options().HudItems->SetData(0, 1, false);
    Watch("Pea", 0, 300);
    Have(1, "Taper", 40);
    Have(2, "Taper", 2);
    Have(3, "Prismatic Taper", 9);
    Have(4, "Pea", 7);
    Carry(5, "Pea");  // without a stack it is one
    Count();
    EXPECT_THAT(Items(), ElementsAre("0: 42 White 100", "2: 8 White 300"));
    options().HudItemsHorz->SetChecked(true);
    options().HudItemsColor->SetSelected(9);
    handler().CreateHUD();
    EXPECT_THAT(Items(), ElementsAre("0: 42 Light Green 100 in a row", "2: 8 Light Green 300 in a row"));
}

TEST_F(HUDItemHandlerTest, LearnsAnIconFromTheFirstItem) {
    Watch("Taper", 0, -1);
    Count();
    EXPECT_THAT(Items(), ElementsAre("0: 0 White 4600"));
    EXPECT_EQ(CellText(*options().HudItems, 6, 0), "-1");
    Have(1, "Taper", 3, 4711);
    Count();
    EXPECT_THAT(Items(), ElementsAre("0: 3 White 4711"));
    EXPECT_EQ(CellText(*options().HudItems, 6, 0), "4711");
    EXPECT_THAT(common_data.Read("Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml"), HasSubstr("4711"));
}

// Yellow begins half above the threshold, and halves round to the even neighbour.
TEST_F(HUDItemHandlerTest, AStockTurnsYellowAndRedAndWarnsOnce) {
    const std::string low = "<Ombrel> You are getting low on Taper";
    const std::string nearly_out = "<Ombrel> Warning! You are nearly out of Taper";
    const std::string out = "<Ombrel> Warning! You are out of Taper";
    const struct {
        std::int32_t threshold, count;
        const char* color;
        std::string warning;
    } rows[] = {{10, 15, "White", ""},      {10, 14, "Yellow", low},    {10, 10, "Yellow", low},
                {10, 9, "Red", nearly_out}, {10, 1, "Red", nearly_out}, {10, 0, "Red", out},
                {5, 7, "White", ""},        {5, 6, "Yellow", low},      {3, 5, "White", ""},
                {3, 4, "Yellow", low},      {1, 1, "White", ""},        {1, 0, "Red", out},
                {0, 1, "White", ""},        {0, 0, "White", ""}};
    Watch("Taper", 0);
    for (const auto& row : rows) {
        SCOPED_TRACE(fmt::format("{} of {}", row.count, row.threshold));
        options().HudItems->SetData(2, 0, std::to_string(row.threshold));
        Have(1, "Taper", 1000);
        Count();
        Forget();
        Have(1, "Taper", row.count);
        Count();
        EXPECT_THAT(Items(), ElementsAre(fmt::format("0: {} {} 100", row.count, row.color)));
        Count();  // it has not changed since
        EXPECT_EQ(Texts(), row.warning.empty() ? std::vector<std::string>() : std::vector{row.warning});
    }
}

TEST_F(HUDItemHandlerTest, WarningsOfOneCountStandInOneLine) {
    Watch("Taper", 10);
    Watch("Scarab", 10);
    Watch("Pea", 10);
    Watch("Kit", 10);
    for (host::Id id = 1; id <= 4; ++id) Have(id, CellText(*options().HudItems, 1, id - 1).c_str(), 100);
    Count();
    Forget();
    Have(1, "Taper", 12);
    Have(2, "Scarab", 3);
    Have(3, "Pea", 11);
    Have(4, "Kit", 0);
    Count();
    EXPECT_THAT(Texts(),
                ElementsAre("<Ombrel> You are getting low on Taper, Pea",
                            "<Ombrel> Warning! You are nearly out of Scarab", "<Ombrel> Warning! You are out of Kit"));
    Forget();
    Warn(false);
    Have(1, "Taper", 2);
    Count();
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(handler().ItemHUD->items().at("0").color, "Red");
}

TEST_F(HUDItemHandlerTest, WhatWasNeverThereIsNoNews) {
    Watch("Taper", 10);
    Count();
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(handler().ItemHUD->items().at("0").color, "Red");
    Watch("Scarab", 10);
    Have(2, "Scarab", 4);
    Count();
    EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Warning! You are nearly out of Scarab"));
}

TEST_F(HUDItemHandlerTest, ABurstOfChangesIsOneCount) {
    Watch("Taper", 0);
    Have(1, "Taper", 5);
    client.ChangeObject(1, 0);
    Advance(30ms);
    Have(1, "Taper", 4);
    client.ChangeObject(1, 0);
    client.MoveObject(1);
    EXPECT_THAT(CallsOf("TimerStart"), ElementsAre("TimerStart name=HUDItemHandler.updatetimer milliseconds=50"));
    EXPECT_THAT(Items(), IsEmpty());
    Advance(20ms);
    EXPECT_THAT(Items(), ElementsAre("0: 4 White 100"));
    EXPECT_THAT(CallsOf("TimerStop"), ElementsAre("TimerStop name=HUDItemHandler.updatetimer"));
    Have(2, "Pea", 5);
    Forget();
    client.CreateObject(2);
    EXPECT_THAT(CallsOf("TimerStart"), IsEmpty()) << "nobody watches it";
}

TEST_F(HUDItemHandlerTest, AThresholdThatIsNoNumberIsReported) {
    Watch("Taper", 0);
    options().HudItems->SetData(2, 0, std::string("many"));
    Count();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #13 occured in 'AddData' of class 'HUDItemHandler'"));
}

}  // namespace
}  // namespace ombrel::test
