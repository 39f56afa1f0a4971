#include "hud/HUDClockHandler.h"

#include <fmt/format.h>

#include "bench/Allocations.h"
#include "core/Hub.h"
#include "core/cells.h"
#include "hud/HUDMainHandler.h"
#include "tests/hud/Paper.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int64_t kNoon = 1152014400000;  // 2006-07-04T12:00:00Z

class HUDClockHandlerTest : public PluginTest {
protected:
    // Five hours west, at 7:00:30 in the morning of a winter's zone.
    void SetUp() override {
        client.screen = &paper;
        client.clock.SetEpoch(kNoon + 30'000);
        client.system.zone.bias = 300;
        LogIn();
        for (std::int32_t row = 0; row < rows().Count(); ++row) rows().SetData(0, row, false);
        options().HudClockDisp->SetChecked(true);
        options().HudClockDateDisp->SetChecked(true);
        handler().CreateHUD();
        Vars::HUDMainHandler->MainHud->frame.HUDOff();
        Forget();
    }

    static HUDClockHandler& handler() { return *Vars::HUDClockHandler; }
    static host::List& rows() { return *options().HudClockList; }
    static std::string Shown(std::string_view name) {
        return CellText(rows(), 3, options().FindName(name, "HudClock"));
    }
    static void TurnOn(std::string_view name) { rows().SetData(0, options().FindName(name, "HudClock"), true); }
    static std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        for (const auto& [key, item] : handler().ClockHUD->items()) lines.push_back(key + "=" + item.data);
        return lines;
    }

    Paper paper;
};

TEST_F(HUDClockHandlerTest, EveryZoneHasItsTimeInTheOptionsView) {
    const struct {
        const char *name, *half_day, *day;
    } zones[] = {{"Your Time", "07:00 AM", "07:00"}, {"Game Time", "07:00 AM", "07:00"}, {"Y", "12:00 AM", "00:00"},
                 {"X", "01:00 AM", "01:00"},         {"PST", "04:00 AM", "04:00"},       {"EST", "07:00 AM", "07:00"},
                 {"WET", "12:00 PM", "12:00"},       {"CET", "01:00 PM", "13:00"},       {"JST", "09:00 PM", "21:00"},
                 {"M", "12:00 AM", "00:00"}};
    for (const auto& zone : zones) EXPECT_EQ(Shown(zone.name), zone.half_day) << zone.name;
    options().HudClockHour->SetChecked(true);
    handler().CreateHUD();
    for (const auto& zone : zones) EXPECT_EQ(Shown(zone.name), zone.day) << zone.name;
    EXPECT_EQ(Shown("Date"), "7/4/2006");
    EXPECT_EQ(rows().Count(), 30);
}

// Summer time is left out of the way to universal time, so that the zones run ahead while the player's own is right.
TEST_F(HUDClockHandlerTest, InSummerTheZonesAreAnHourAhead) {
    client.system.zone.daylight = client.system.zone.daylight_rule = true;
    handler().CreateHUD();
    EXPECT_EQ(Shown("Your Time"), "08:00 AM");
    EXPECT_EQ(Shown("WET"), "01:00 PM");
    EXPECT_EQ(Shown("CET"), "02:00 PM");
}

TEST_F(HUDClockHandlerTest, ClocksChangeWithTheMinute) {
    TurnOn("Your Time");
    TurnOn("CET");
    handler().CreateHUD();
    paper.Take();
    Advance(29s);
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());
    rows().SetData(2, options().FindName("CET", "HudClock"), std::string("+3"));
    handler().UpdateHUD();
    EXPECT_EQ(Shown("CET"), "01:00 PM");
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("Your Time=07:01 AM", "CET=03:01 PM"));
    client.clock.Shift(-60'000);
    Advance(1s);
    EXPECT_EQ(Shown("Your Time"), "07:00 AM") << "the player's clock was put back";
}

TEST_F(HUDClockHandlerTest, OnlyTickedRowsShowWithTheirColours) {
    TurnOn("Date");
    TurnOn("EST");
    rows().SetData(4, options().FindName("EST", "HudClock"), GetColorFromIcon("Peach"), 1);
    options().HudClockDateDisp->SetChecked(false);
    handler().CreateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Date=7/4/2006", "EST=07:00 AM"));
    const auto& items = handler().ClockHUD->items();
    EXPECT_FALSE(items.at("Date").newline);
    EXPECT_TRUE(items.at("EST").newline);
    EXPECT_EQ(items.at("EST").color, "Peach");
    EXPECT_EQ(items.at("EST").alpha, 10);
    EXPECT_EQ(items.at("EST").icon, -1);

    options().HudClockDisp->SetChecked(false);
    options().HudClockLabel->SetChecked(true);
    options().HudClockShort->SetChecked(true);
    handler().CreateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Date=Date: 7/4", "EST=EST: 07:00 AM"));
    EXPECT_FALSE(items.at("EST").newline);
}

// Timers

TEST_F(HUDClockHandlerTest, ADownTimerShowsUntilItHasRunOut) {
    TurnOn("Your Time");
    options().HudClockTimer->SetText("0:01");
    options().HudClockDown->Accepted();
    EXPECT_THAT(Lines(), ElementsAre("Down Timer=01:00", "Your Time=07:00 AM"));
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("Down Timer=59", "Your Time=07:00 AM"));
    Advance(58s);
    EXPECT_THAT(Lines(), ElementsAre("Down Timer=01", "Your Time=07:01 AM"));
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("Down Timer=", "Your Time=07:01 AM"));
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("Your Time=07:01 AM"));
    EXPECT_EQ(Shown("Down Timer"), "");
}

TEST_F(HUDClockHandlerTest, AnUpTimerIsStartedAndStoppedByOneButton) {
    options().HudClockUp->Accepted();
    Advance(3725s);
    EXPECT_THAT(Lines(), ElementsAre("Up Timer=1:02:05"));
    options().HudClockUp->Accepted();
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_EQ(Shown("Up Timer"), "");
    Advance(5s);
    EXPECT_EQ(Shown("Up Timer"), "");
    options().HudClockUp->Accepted();
    Advance(2s);
    EXPECT_EQ(Shown("Up Timer"), "02");
}

TEST_F(HUDClockHandlerTest, ADurationIsReadAsATimeOfDay) {
    const std::pair<const char*, const char*> rows[] = {
        {"1:30", "1:30:00"},   {"0:00:05", "05"},       {" 2:05:07 ", "2:05:07"}, {"1:30 pm", "13:30:00"},
        {"12:30 AM", "30:00"}, {"12:00PM", "12:00:00"}, {"3 PM", "15:00:00"},     {"23:59:59", "23:59:59"}};
    for (const auto& [text, down] : rows) {
        options().HudClockTimer->SetText(text);
        options().HudClockDown->Accepted();
        EXPECT_EQ(Shown("Down Timer"), down) << text;
    }
}

TEST_F(HUDClockHandlerTest, ATextThatIsNoTimeLeavesTheTimerOff) {
    for (const char* text : {"", "soon", "5", "24:00", "1:60", "1:00:60", "1:-5", "1:2:3:4", "13:00 PM", "0:30 AM",
                             "1:", "1.5:00", ":", "99999999999:00"}) {
        options().HudClockTimer->SetText(text);
        handler().StartDnTime();
        EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("'StartDnTime' of class 'HUDClockHandler'"))) << text;
        handler().UpdateHUD();
        EXPECT_THAT(Lines(), IsEmpty()) << text;
    }
}

TEST_F(HUDClockHandlerTest, ATickWithoutNewsNeitherPaintsNorTakesMemory) {
    for (std::int32_t row = 2; row < rows().Count(); ++row) rows().SetData(0, row, true);
    options().HudClockLabel->SetChecked(true);
    handler().CreateHUD();
    handler().UpdateHUD();
    paper.Take();
    handler().UpdateHUD();
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());
    EXPECT_EQ(Lines().size(), 28u);

    client.calls.listener = nullptr;
    client.screen = nullptr;
    handler().ClockHUD->frame.ResizeHUD();
    const std::uint64_t before = bench::Allocations();
    handler().UpdateHUD();
    EXPECT_EQ(bench::Allocations() - before, 0u);
}

}  // namespace
}  // namespace ombrel::test
