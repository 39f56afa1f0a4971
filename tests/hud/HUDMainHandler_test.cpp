#include "hud/HUDMainHandler.h"

#include "bench/Allocations.h"
#include "core/Hub.h"
#include "spells/SpellHandler.h"
#include "stats/Statistics.h"
#include "tests/hud/Paper.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class HUDMainHandlerTest : public PluginTest {
protected:
    // No line is on, and nothing runs by itself.
    void SetUp() override {
        client.screen = &paper;
        client.object(client.sheet.Character).Coordinates = host::Position{12.34, -45.67};
        LogIn();
        for (std::int32_t row = 0; row < options().HudList->Count(); ++row) options().HudList->SetData(0, row, false);
        handler().CreateHUD();
        paper.Take();
        Forget();
    }

    static HUDMainHandler& handler() { return *Vars::HUDMainHandler; }
    static void TurnOn(std::string_view name, std::string_view color = "White") {
        const std::int32_t row = options().FindName(name, "HudList");
        ASSERT_GE(row, 0) << name;
        options().HudList->SetData(0, row, true);
        options().HudList->SetData(2, row, GetColorFromIcon(color), 1);
    }
    // The texts in their order.
    static std::vector<std::string> Lines() {
        std::vector<std::string> lines;
        for (const auto& [key, item] : handler().MainHud->items()) lines.push_back(item.data);
        return lines;
    }
    static void AddCorpse(const char* place, const char* distance) {
        host::List& corpses = *options().CorpsesList;
        const std::int32_t row = corpses.AddRow();
        corpses.SetData(0, row, std::string(place));
        corpses.SetData(1, row, std::string(distance));
    }

    Paper paper;
};

TEST_F(HUDMainHandlerTest, EachLineShowsWhatTheOptionsViewShows) {
    using C = ControlHandler;
    const struct {
        const char *row, *key, *long_label, *short_label;
        Ref<host::StaticText> C::*text;
    } rows[] = {{"Session Time", "STM", "Session Time: ", "STime: ", &C::SessionTime},
                {"Session XP", "SXP", "Session XP: ", "SXP: ", &C::XPSession},
                {"Session XP/Hour", "XPH", "Session XP/H: ", "SXP/H: ", &C::XPHour},
                {"Total Time", "TTM", "Total Time: ", "TTime: ", &C::TotalTime},
                {"Total XP", "TXP", "Total XP: ", "TXP: ", &C::TotalXP},
                {"Total XP/Hour", "TXPH", "Total XP/H: ", "TXP/H: ", &C::TotalXPHour},
                {"5 Minute Avg", "5MIN", "5 Min Avg: ", "5Min: ", &C::XP5Min},
                {"Next Level", "XPL", "XP to Level: ", "XPL: ", &C::XPNext},
                {"Unassigned", "XPU", "Unassigned: ", "Un: ", &C::XPUn},
                {"Level", "Lev", "Level: ", "Level: ", &C::LevelNum},
                {"Kills", "Kil", "Kills: ", "Kills: ", &C::Kills},
                {"Next Buff", "NxB", "Next Buff: ", "Buff: ", &C::SpellsTracked},
                {"XP Change", "XPC", "XP Change: ", "XPC: ", &C::XPChange}};
    for (const auto& line : rows) {
        SCOPED_TRACE(line.row);
        TurnOn(line.row, "Yellow");
        (options().*line.text)->SetText("1,234");
        options().HudMainLbl->SetChecked(false);
        handler().CreateHUD();
        ASSERT_EQ(handler().MainHud->count(), 1u);
        const auto& [key, item] = *handler().MainHud->items().begin();
        EXPECT_EQ(key, line.key);
        EXPECT_EQ(item.data, std::string(line.long_label) + "1,234");
        EXPECT_EQ(item.color, "Yellow");
        EXPECT_EQ(item.icon, -1);
        EXPECT_TRUE(item.newline);
        options().HudMainLbl->SetChecked(true);
        handler().UpdateHUD();
        EXPECT_THAT(Lines(), ElementsAre(std::string(line.short_label) + "1,234"));
        options().HudList->SetData(0, options().FindName(line.row, "HudList"), false);
    }
    options().HudList->SetData(1, 0, std::string("Fame"));  // which nobody knows
    options().HudList->SetData(0, 0, true);
    handler().CreateHUD();
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_EQ(handler().MainHud->frame.width(), 20);
}

TEST_F(HUDMainHandlerTest, LinesStandInTheOrderOfTheListUntilTheHudIsNew) {
    TurnOn("Kills");
    TurnOn("Level");
    handler().CreateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Level: 42", "Kills: 0"));
    options().HudList->SetData(0, options().FindName("Kills", "HudList"), false);
    options().Kills->SetText("7");
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("Level: 42", "Kills: 0"));
    handler().CreateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Level: 42"));
    options().LevelNum->SetText("43");
    Advance(1s);
    EXPECT_THAT(Lines(), ElementsAre("Level: 43")) << "by its timer";
}

TEST_F(HUDMainHandlerTest, TellsWhereTheCharacterStands) {
    TurnOn("Coords");
    handler().CreateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Coords: 12.3N, 45.7W"));
    options().HudMainLbl->SetChecked(true);
    handler().UpdateHUD();
    EXPECT_THAT(Lines(), ElementsAre("12.3N, 45.7W"));
    client.RemoveObject(client.sheet.Character);
    handler().CreateHUD();
    EXPECT_THAT(Lines(), IsEmpty()) << "the client doesn't know yet";
}

TEST_F(HUDMainHandlerTest, ShowsTheSelectedCorpseOrTheFirst) {
    TurnOn("Corpse");
    handler().CreateHUD();
    EXPECT_THAT(Lines(), IsEmpty());
    AddCorpse("1.0N, 2.0E", "0.5");
    AddCorpse("3.0N, 4.0E", "1.5");
    options().CorpsesAbsolute->SetChecked(true);
    handler().UpdateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Corpse: 1.0N, 2.0E"));
    options().SelectedCorpse = 1;
    handler().UpdateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Corpse: 3.0N, 4.0E"));
    options().CorpsesAbsolute->SetChecked(false);
    options().HudMainLbl->SetChecked(true);
    handler().UpdateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Body: 1.5"));
    options().CorpsesList->Clear();
    handler().UpdateHUD();
    EXPECT_THAT(Lines(), ElementsAre("Body: 1.5")) << "until the HUD is new";
    handler().CreateHUD();
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(HUDMainHandlerTest, TheNextBuffTellsTheMinutesOfBeer) {
    TurnOn("Next Buff");
    options().SpellsTracked->SetText("N/A");
    const auto line = [&](std::int32_t beer) {
        Vars::SpellHandler->LowBeer = beer;
        handler().CreateHUD();
        return Lines().at(0);
    };
    EXPECT_EQ(line(61), "Next Buff: N/A");
    options().SpellsBeers->SetChecked(true);
    EXPECT_EQ(line(99999), "Next Buff: N/A (x)");
    EXPECT_EQ(line(61), "Next Buff: N/A (2)");
    EXPECT_EQ(line(60), "Next Buff: N/A (1)");
    EXPECT_EQ(line(0), "Next Buff: N/A (0)");
}

TEST_F(HUDMainHandlerTest, AnOldChangeIsFainterFromItsNextTextOn) {
    TurnOn("XP Change");
    Vars::Statistics->ShowXPChange = true;
    options().XPChange->SetText("100");
    handler().CreateHUD();
    const auto alpha = [] { return handler().MainHud->items().at("XPC").alpha; };
    EXPECT_EQ(alpha(), 10);
    Vars::Statistics->ShowXPChange = false;
    handler().UpdateHUD();
    EXPECT_EQ(alpha(), 10);
    options().XPChange->SetText("200");
    handler().UpdateHUD();
    EXPECT_EQ(alpha(), 8);
}

TEST_F(HUDMainHandlerTest, ARefreshPaintsWhatHasChanged) {
    TurnOn("Kills");
    TurnOn("Level");
    handler().CreateHUD();
    handler().UpdateHUD();
    paper.Take();
    handler().UpdateHUD();
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());
    options().Kills->SetText("1");
    handler().UpdateHUD();
    EXPECT_EQ(paper.TakeTexts().size(), 9u) << "one line with its outline";
    options().HudMainLbl->SetChecked(true);
    options().HudMainLbl->Change(true);
    EXPECT_THAT(paper.TakeTexts(), IsEmpty()) << "these two have one label";
}

// Where the character stands is the client's to tell, and what that costs is its own.
TEST_F(HUDMainHandlerTest, ARefreshWithoutNewsTakesNoMemory) {
    for (std::int32_t row = 0; row < options().HudList->Count(); ++row) options().HudList->SetData(0, row, true);
    AddCorpse("1.0N, 2.0E, a long way to go", "0.5");
    options().CorpsesAbsolute->SetChecked(true);
    options().SpellsBeers->SetChecked(true);
    handler().CreateHUD();
    handler().UpdateHUD();
    client.calls.listener = nullptr;
    client.screen = nullptr;
    handler().MainHud->frame.ResizeHUD();
    const auto taken = [](auto deed) {
        const std::uint64_t before = bench::Allocations();
        deed();
        return bench::Allocations() - before;
    };
    const std::uint64_t place = taken([] {
        filter().ItemExists(filter().GetMyCharGUID());
        filter().GetCharCoords();
    });
    EXPECT_EQ(taken([] { handler().UpdateHUD(); }), place);
    options().HudList->SetData(0, options().FindName("Coords", "HudList"), false);
    EXPECT_EQ(taken([] { handler().UpdateHUD(); }), 0u);
    EXPECT_EQ(Lines().size(), 15u);
}

TEST_F(HUDMainHandlerTest, LinesBeforeAFailureStand) {
    TurnOn("Kills");
    TurnOn("Level");
    handler().MainHud->Clear();
    client.calls.Fail(*sim::FindOperation("StaticText.Text"), 1, 5, "lost");
    handler().UpdateHUD();
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'AddData' of class 'HUDMainHandler'"));
    EXPECT_THAT(Lines(), IsEmpty());
    handler().UpdateHUD();
    EXPECT_EQ(Lines().size(), 2u);
}

}  // namespace
}  // namespace ombrel::test
