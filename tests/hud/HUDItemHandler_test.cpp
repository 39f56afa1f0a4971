#include "hud/HUDItemHandler.h"

#include <fmt/format.h>

#include <ostream>
#include <string>

#include "core/cells.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    EXPECT_THAT(common_data.Read("Ombrel/Settings/Ombrel_Settings_Frostfell_Aldra.xml"), testing::HasSubstr("4711"));
}

struct StockRow {
    std::int32_t threshold, count;
    const char* color;
    const char* warning;

    friend void PrintTo(const StockRow& row, std::ostream* out) { *out << row.count << " of " << row.threshold; }
};

class Stocks : public HUDItemHandlerTest, public testing::WithParamInterface<StockRow> {};

TEST_P(Stocks, TurnYellowAndRedAndWarnOnce) {
    const StockRow& stock = GetParam();
    Watch("Taper", stock.threshold);
    Have(1, "Taper", 1000);
    Count();
    Forget();
    Have(1, "Taper", stock.count);
    Count();
    EXPECT_THAT(Items(), ElementsAre(fmt::format("0: {} {} 100", stock.count, stock.color)));
    if (*stock.warning)
        EXPECT_THAT(Texts(), ElementsAre(std::string("<Ombrel> ") + stock.warning + "Taper"));
    else
        EXPECT_THAT(Texts(), IsEmpty());
    Forget();
    Count();
    EXPECT_THAT(Texts(), IsEmpty()) << "it has not changed since";
}

constexpr const char* kLow = "You are getting low on ";
constexpr const char* kNearlyOut = "Warning! You are nearly out of ";
constexpr const char* kOut = "Warning! You are out of ";

// Yellow begins half above the threshold, and halves round to the even neighbour.
INSTANTIATE_TEST_SUITE_P(ItemHud, Stocks,
                         testing::Values(StockRow{10, 15, "White", ""}, StockRow{10, 14, "Yellow", kLow},
                                         StockRow{10, 10, "Yellow", kLow}, StockRow{10, 9, "Red", kNearlyOut},
                                         StockRow{10, 1, "Red", kNearlyOut}, StockRow{10, 0, "Red", kOut},
                                         StockRow{5, 7, "White", ""}, StockRow{5, 6, "Yellow", kLow},
                                         StockRow{3, 5, "White", ""}, StockRow{3, 4, "Yellow", kLow},
                                         StockRow{1, 1, "White", ""}, StockRow{1, 0, "Red", kOut},
                                         StockRow{0, 1, "White", ""}, StockRow{0, 0, "White", ""}));

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
