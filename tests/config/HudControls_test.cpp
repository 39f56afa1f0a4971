// The pages of the HUDs.
#include <fmt/format.h>

#include "config/ControlTools.h"
#include "config/HudRows.h"
#include "core/Hub.h"
#include "core/cells.h"
#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "stats/Statistics.h"
#include "tests/config/ViewTest.h"

namespace ombrel::test {
namespace {

class HudControlsTest : public ViewTest {
protected:
    void SetUp() override {
        LogIn();
        Saved();
    }

    // The rows that bear the mark.
    std::vector<std::int32_t> Marked(const char* name) {
        const auto& list = Control<sim::SimList>(name);
        std::vector<std::int32_t> rows;
        for (std::int32_t row = 0; row < list.rows(); ++row)
            if (list.color(1, row) == kHighlight) rows.push_back(row);
        return rows;
    }

    std::vector<std::string> Items() {
        const host::List& list = *options().HudItems;
        std::vector<std::string> rows;
        for (std::int32_t row = 0; row < list.Count(); ++row)
            rows.push_back(
                fmt::format("{} {} {}", CellText(list, 1, row), CellText(list, 2, row), CellText(list, 6, row)));
        return rows;
    }

    void AddItem(std::string_view name, std::string_view count) {
        Put("HUD_Items_Text", name);
        Put("HUD_Items_Count", count);
        Press("HUD_Items_Add");
    }

    static const HUDItem* Line(const HUDHandler& canvas, const std::string& key) {
        const auto item = canvas.items().find(key);
        return item == canvas.items().end() ? nullptr : &item->second;
    }
    static const HUDItem* MainLine(const char* key) { return Line(*Vars::HUDMainHandler->MainHud, key); }
    static const HUDItem* ClockLine(const char* key) { return Line(*Vars::HUDClockHandler->ClockHUD, key); }
};

TEST_F(HudControlsTest, TheChoicesShowTheMarkedHudAndChangeItAlone) {
    EXPECT_THAT(Marked("HUD_General"), ElementsAre(hud::kMain));
    const std::string main_face = hud::FrameOf(hud::kMain).FontFace();
    for (std::int32_t row = 0; row < hud::kCount; ++row) {
        SCOPED_TRACE(row);
        Click("HUD_General", 1, row);
        EXPECT_THAT(Marked("HUD_General"), ElementsAre(row));
        EXPECT_TRUE(Saved());
        if (row == hud::kMain) continue;

        EXPECT_EQ(Picked("HUD_General_Font"), "Arial");
        for (const auto& [choice, text] : {std::pair{"HUD_General_Font", "Times"},
                                           {"HUD_General_Size", "12"},
                                           {"HUD_General_BG_Color", "Light Blue"},
                                           {"HUD_General_BG_Alpha", "30%"}}) {
            Pick(choice, text);
            EXPECT_TRUE(Saved()) << choice;
        }
        const HudFrame& frame = hud::FrameOf(row);
        EXPECT_EQ(frame.FontFace(), "Times New Roman");
        EXPECT_EQ(frame.FontSize(), 12);
        EXPECT_EQ(frame.BackgroundColor, ConvertColor("Light Blue", 7));
        EXPECT_EQ(CellText(*options().HudGeneral, hud::kFont, row), "Times");
        EXPECT_EQ(CellText(*options().HudGeneral, hud::kAlpha, row), "30%");
    }
    EXPECT_EQ(hud::FrameOf(hud::kMain).FontFace(), main_face);
    Click("HUD_General", 1, hud::kMain);
    EXPECT_EQ(Picked("HUD_General_BG_Color"), "Black");
    Click("HUD_General", 1, hud::kClock);
    EXPECT_EQ(Picked("HUD_General_BG_Color"), "Light Blue");
    EXPECT_EQ(Picked("HUD_General_BG_Alpha"), "30%");
    EXPECT_EQ(Picked("HUD_General_Font"), "Times");
    EXPECT_EQ(Picked("HUD_General_Size"), "12");

    // A new load marks row 0 again, and the choices mean it.
    Press("Reload_Settings");
    EXPECT_THAT(Marked("HUD_General"), ElementsAre(hud::kMain));
    Pick("HUD_General_Size", "20");
    EXPECT_EQ(hud::FrameOf(hud::kMain).FontSize(), 20);
    EXPECT_EQ(Setting("HUD_Main", "size"), "20");
    EXPECT_EQ(Setting("HUD_Clock", "size"), "12");
}

TEST_F(HudControlsTest, AHudIsOnWhenItsBoxAndTheBoxOfAllAreTicked) {
    for (std::int32_t row = 0; row < hud::kCount; ++row) {
        const bool on = CellFlag(*options().HudGeneral, hud::kOn, row);
        EXPECT_EQ(hud::FrameOf(row).Enabled(), on);
        Click("HUD_General", hud::kOn, row);
        EXPECT_EQ(hud::FrameOf(row).Enabled(), !on) << row;
        EXPECT_TRUE(Saved());
        const bool outline = hud::FrameOf(row).Outline;
        Click("HUD_General", hud::kOutline, row);
        EXPECT_EQ(hud::FrameOf(row).Outline, !outline) << row;
        Click("HUD_General", hud::kOn, row);
    }
    Check("HUD_On", false);
    for (std::int32_t row = 0; row < hud::kCount; ++row) EXPECT_FALSE(hud::FrameOf(row).Enabled());
    Click("HUD_General", hud::kOn, hud::kItems);
    EXPECT_FALSE(hud::FrameOf(hud::kItems).Enabled());
    Check("HUD_On", true);
    EXPECT_TRUE(hud::FrameOf(hud::kItems).Enabled());
}

TEST_F(HudControlsTest, LinesOfTheMainHudComeAndGoAtOnceInTheirColours) {
    EXPECT_FALSE(MainLine("Lev"));
    Click("HUD_LIST", 0, 0);
    ASSERT_TRUE(MainLine("Lev"));
    EXPECT_EQ(MainLine("Lev")->data, "Level: 42");
    EXPECT_TRUE(Saved());
    EXPECT_THAT(Marked("HUD_LIST"), ElementsAre(0));
    Pick("HUD_Main_Color", "Peach");
    EXPECT_EQ(MainLine("Lev")->color, "Peach");
    EXPECT_EQ(Setting("HUD_LIST", "color"), "Peach");

    Click("HUD_LIST", 1, 1);
    EXPECT_THAT(Marked("HUD_LIST"), ElementsAre(1));
    EXPECT_EQ(Picked("HUD_Main_Color"), "White");
    Pick("HUD_Main_Color", "Green");
    EXPECT_EQ(MainLine("STM")->color, "Green");
    EXPECT_EQ(MainLine("Lev")->color, "Peach");
    Press("HUD_Main_All");
    for (const auto& [key, item] : Vars::HUDMainHandler->MainHud->items()) EXPECT_EQ(item.color, "Green") << key;
    EXPECT_EQ(Setting("HUD_LIST", "color", 14), "Green");

    Click("HUD_LIST", 0, 0);
    EXPECT_FALSE(MainLine("Lev"));
    const std::int32_t change = options().FindName("XP Change", "HudList");
    EXPECT_TRUE(Vars::Statistics->XPChangeOn);
    Click("HUD_LIST", 0, change);
    EXPECT_FALSE(Vars::Statistics->XPChangeOn);
    Click("HUD_LIST", 0, change);
    EXPECT_TRUE(Vars::Statistics->XPChangeOn);
}

TEST_F(HudControlsTest, ClocksComeAndGoAtOnceInTheirColours) {
    const std::int32_t west = options().FindName("PST", "HudClock");
    EXPECT_FALSE(ClockLine("PST"));
    Click("HUD_Clock", 0, west);
    ASSERT_TRUE(ClockLine("PST"));
    EXPECT_EQ(ClockLine("PST")->data, "04:00 AM");
    EXPECT_THAT(Marked("HUD_Clock"), ElementsAre(west));
    Pick("HUD_Clock_Color", "Orange");
    EXPECT_EQ(ClockLine("PST")->color, "Orange");
    EXPECT_EQ(ClockLine("Your Time")->color, "White");
    EXPECT_EQ(Setting("Clock_List", "color", west), "Orange");
    Press("HUD_Clock_All");
    EXPECT_EQ(ClockLine("Your Time")->color, "Orange");
    Check("HUD_Clock_24", true);
    EXPECT_EQ(ClockLine("PST")->data, "04:00");
    Click("HUD_Clock", 1, 0);
    EXPECT_EQ(Picked("HUD_Clock_Color"), "Orange");
    Click("HUD_Clock", 0, west);
    EXPECT_FALSE(ClockLine("PST"));
}

TEST_F(HudControlsTest, ItemsAreAddedChangedSortedAndDeleted) {
    Click("HUD_General", 0, hud::kItems);
    AddItem("", "5");
    EXPECT_THAT(Items(), IsEmpty());
    Saved();
    AddItem("Ham", "5");
    EXPECT_TRUE(Saved());
    AddItem("Arrow", "many");
    auto& stone = Carry(0x300, "Mana Stone");
    stone.Long = {{host::key::kIcon, 4321}};
    client.hooks.CurrentSelection = stone.id;
    Put("HUD_Items_Count", "2");
    Press("HUD_Items_Sel");
    EXPECT_THAT(Items(), ElementsAre("Ham 5 -1", "Arrow 0 -1", "Mana Stone 2 4321"));
    EXPECT_EQ(CellIcon(*options().HudItems, 3, 2), 0x60028FD);
    EXPECT_EQ(CellIcon(*options().HudItems, 4, 2), 0x60028FC);
    EXPECT_EQ(CellIcon(*options().HudItems, 5, 2), 0x60011F8);
    EXPECT_EQ(Setting("HUD_Item", "icon", 2), "4321");

    AddItem("Ham", "7");
    EXPECT_THAT(Items(), ElementsAre("Ham 7 -1", "Arrow 0 -1", "Mana Stone 2 4321"));
    client.hooks.CurrentSelection = 0;
    Press("HUD_Items_Sel");
    EXPECT_EQ(Items().size(), 3u);

    Click("HUD_Items", 1, 2);
    EXPECT_EQ(options().HudItemsText->Text(), "Mana Stone");
    EXPECT_EQ(options().HudItemsCount->Text(), "2");
    Click("HUD_Items", 3, 2);
    Click("HUD_Items", 3, 0);  // already the first
    EXPECT_THAT(Items(), ElementsAre("Ham 7 -1", "Mana Stone 2 4321", "Arrow 0 -1"));
    const HUDHandler& canvas = *Vars::HUDItemHandler->ItemHUD;
    EXPECT_EQ(Line(canvas, "1")->icon, 4321);
    Click("HUD_Items", 4, 0);
    Click("HUD_Items", 4, 2);  // already the last
    EXPECT_THAT(Items(), ElementsAre("Mana Stone 2 4321", "Ham 7 -1", "Arrow 0 -1"));
    EXPECT_EQ(Setting("HUD_Item", "name", 1), "Ham");
    Click("HUD_Items", 0, 1);
    EXPECT_FALSE(Line(canvas, "1"));
    EXPECT_EQ(Setting("HUD_Item", "enabled", 1), "False");
    Click("HUD_Items", 5, 0);
    Click("HUD_Items", 5, 5);
    Click("HUD_Items", 5, -1);
    EXPECT_THAT(Items(), ElementsAre("Ham 7 -1", "Arrow 0 -1"));
    EXPECT_EQ(Line(canvas, "1")->data, "0");
    EXPECT_FALSE(Line(canvas, "2"));

    ComeBack();
    EXPECT_THAT(Items(), ElementsAre("Ham 7 -1", "Arrow 0 -1"));
    EXPECT_FALSE(CellFlag(*options().HudItems, 0, 0));
}

}  // namespace
}  // namespace ombrel::test
