// The target's card on its surface: what is drawn where, and when.
#include <algorithm>

#include "adapters/sim/FontMetrics.h"
#include "tests/hud/TargetTest.h"

namespace ombrel::test {
namespace {

constexpr std::string_view kMeasure = "99.99-99, 99 99 9.9 9.9, Wk 10, Tk 10";

std::int32_t WidthOf(std::string_view text, std::string_view face, std::int32_t size) {
    return std::max(160, sim::TextWidth(text, face, size, true));
}

class TargetCardTest : public TargetTest {
protected:
    static HudFrame& frame() { return canvas().frame; }
    static std::string Rect(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
        return fmt::format("rect=[{}, {}, {}, {}]", left, top, right, bottom);
    }
    // A row of the card, from 0, of a font of 16 pixels.
    static std::string RowRect(std::int32_t row) {
        return Rect(row == 0 ? 22 : 3, 15 + 17 * row, frame().width() - 2, 32 + 17 * row);
    }
    void LookAtTheDrudge() {
        Drudge();
        client.ObjectSelected(kTarget);
        Forget();
    }
    void MoveTo(std::int32_t x, std::int32_t y) { client.WindowMessage(512, x, y, 0, 0); }
};

TEST_F(TargetCardTest, IsAsLargeAsItsFontAsks) {
    client.Terminate();
    Start();
    EXPECT_EQ(frame().width(), WidthOf("99.99-99, 99 99 9.9, Wk 9, Tk 10", "Arial", 16)) << "at first";
    EXPECT_EQ(frame().height(), 14 + 1 + 2 + 6 * 17);
    for (const auto& [face, size] : {std::pair{"Arial", 16}, {"Courier New", 12}, {"Arial", 8}, {"Arial", 24}}) {
        frame().SetFontFace(face);
        frame().SetFontSize(size);
        EXPECT_EQ(frame().width(), WidthOf(kMeasure, face, size)) << face << size;
        EXPECT_EQ(frame().height(), 17 + 6 * (size + 1));
        EXPECT_EQ(static_cast<sim::SimHudView*>(frame().view())->region(), frame().rect());
    }
    for (const std::int32_t size : {INT32_MAX, INT32_MIN, 0}) {
        frame().SetFontSize(size);
        EXPECT_GE(frame().height(), 17) << size;
        EXPECT_LT(frame().height(), 100'000) << size;
    }
    frame().SetFontSize(24);
    Forget();
    frame().SetFontSize(24);
    EXPECT_THAT(CallsOf("HudViewCreate"), IsEmpty()) << "the size is the same";
}

TEST_F(TargetCardTest, ShowsIconNameAndRows) {
    sim::Object& sword = Thing(1, "Silver Simi");
    sword.Long = {{host::key::kIcon, 6848}, {5, 320}, {19, 7600}, {0x0D000022, 34}};
    client.ObjectSelected(kTarget);
    const auto drawn = Drawn();
    EXPECT_THAT(drawn, Contains("DrawPortalImage image=100670144 rect=[3, 15, 19, 31]"));
    EXPECT_THAT(drawn, Contains("DrawText " + RowRect(0) + " color=-1 format=0 text=Silver Simi"));
    EXPECT_THAT(drawn, Contains("DrawText " + RowRect(1) + " color=-1 format=0 text=7,600p, 320bu"));
    EXPECT_THAT(drawn, Contains("DrawText " + RowRect(2) + " color=-1 format=0 text=34-34, Wk 0, Tk 0"));
    EXPECT_THAT(drawn, Not(Contains(HasSubstr(RowRect(3)))));
}

TEST_F(TargetCardTest, KeepsRowsBesideALargeIconClearOfIt) {
    frame().SetFontSize(10);
    Drudge();
    client.ObjectSelected(kTarget);
    const std::int32_t right = frame().width() - 2;
    const auto drawn = Drawn();
    EXPECT_THAT(drawn, Contains("DrawPortalImage image=100667446 rect=[3, 14, 19, 30]"));
    EXPECT_THAT(drawn, Contains(StartsWith("Fill " + Rect(22, 26, right, 37) + " color=-1"))) << "the health bar";
    EXPECT_THAT(drawn, Contains(StartsWith("DrawText " + Rect(3, 37, right, 48)))) << "the level";
}

TEST_F(TargetCardTest, WaitsForTheServer) {
    sim::Object& sword = Thing(1, "Silver Simi");
    sword.HasIdData = 0;
    client.ObjectSelected(kTarget);
    EXPECT_THAT(canvas().Rows(), ElementsAre("Silver Simi", "[Waiting for ID]"));
    EXPECT_THAT(Drawn(), Contains("DrawText " + RowRect(1) + " color=-1 format=1 text=[Waiting for ID]"));

    sword.HasIdData = 1;
    client.ChangeObject(kTarget, 2);
    EXPECT_THAT(DrawnTexts(), ElementsAre("Silver Simi", "0p, 0bu", "0-0, Wk 0, Tk 0"));
}

TEST_F(TargetCardTest, IsPaintedInFullAtEachOutput) {
    sim::Object& ring = Thing(4, "Ring");
    ring.Long = {{host::key::kIcon, 4929}, {107, 10}, {108, 100}};
    client.ObjectSelected(kTarget);
    Forget();

    ring.Long[107] = 9;
    client.ChangeObject(kTarget, 4);
    const auto drawn = Drawn();
    EXPECT_THAT(drawn, Contains("DrawPortalImage image=100668225 rect=[3, 15, 19, 31]"));
    EXPECT_THAT(drawn, Contains("DrawText " + RowRect(3) + " color=-1 format=0 text=9m"));

    ring.Long[108] = 0;
    client.ChangeObject(kTarget, 0);
    EXPECT_THAT(DrawnTexts(), ElementsAre("Ring", "0p, 0bu", "Wk 0, Tk 0")) << "the row goes, and leaves no trace";
    frame().DrawHUD();
    EXPECT_THAT(DrawnTexts(), ElementsAre("Ring", "0p, 0bu", "Wk 0, Tk 0"));
}

TEST_F(TargetCardTest, AsksForNothingWhileNothingHappens) {
    LookAtTheDrudge();
    TellIdentity(18, 36);
    TellEffect(48);
    const auto counts = [this] {
        std::vector<std::uint64_t> counted;
        for (sim::Op op = 0; op < sim::Operations().size(); ++op) counted.push_back(client.calls.Count(op));
        return counted;
    };
    const auto before = counts();
    Vars::HUDTargetHandler->UpdateDebuffs();
    canvas().UpdateHealth(true);
    const auto after = counts();
    for (sim::Op op = 0; op < before.size(); ++op) {
        const sim::Operation& operation = sim::Operations()[op];
        // The time of day, and what draws.
        const std::string_view object = operation.object;
        if (object == "Platform" || object == "HudView" || object == "Font") continue;
        EXPECT_EQ(after[op], before[op]) << operation.object << '.' << operation.name;
    }
}

TEST_F(TargetCardTest, FadesItsTitleWithoutReadingTheTargetAgain) {
    LookAtTheDrudge();
    MoveTo(20, 120);
    const auto reads = client.calls.Count(*sim::FindOperation("WorldObject.Long"));
    Forget();
    Advance(250ms);
    EXPECT_EQ(frame().Fade(), 10);
    EXPECT_EQ(client.calls.Count(*sim::FindOperation("WorldObject.Long")), reads);
    EXPECT_THAT(CallsOf("DrawText"), Contains(HasSubstr("text=Target")));
}

// Health.

TEST_F(TargetCardTest, DrawsHealthUnderTheName) {
    LookAtTheDrudge();
    TellIdentity(18, 36);
    const std::int32_t right = frame().width() - 2;
    const std::int32_t half = 3 + (right - 3 - 1 + 1) / 2;
    auto drawn = Drawn();
    ASSERT_GT(drawn.size(), 5) << "the bar alone, and then the card that was told of";
    drawn.resize(5);
    EXPECT_THAT(drawn, ElementsAre(StartsWith("Fill " + RowRect(1)), "Fill " + RowRect(1) + " color=-1",
                                   "Fill " + Rect(4, 33, right - 1, 48) + " color=-8978432",
                                   "Fill " + Rect(4, 33, half, 48) + " color=-65536",
                                   "DrawText " + RowRect(1) + " color=-1 format=1 text=18 / 36"));
    EXPECT_THAT(canvas().Rows(), ElementsAre("Drudge Prowler", "18 / 36", "Level 8"));

    const struct {
        double ratio;
        std::int32_t red;  // to where
        const char* label;
    } rows[] = {{1.0, right - 1, "36 / 36"},
                {0.375, 3 + static_cast<std::int32_t>((right - 4) * 0.375 + 0.9999), "14 / 36"}};
    for (const auto& row : rows) {
        TellHealth(row.ratio);
        EXPECT_THAT(Drawn(), AllOf(SizeIs(5), Contains("Fill " + Rect(4, 33, row.red, 48) + " color=-65536"),
                                   Contains(HasSubstr(std::string("text=") + row.label))));
    }
    TellHealth(0.0);
    EXPECT_THAT(Drawn(), AllOf(SizeIs(4), Not(Contains(HasSubstr("color=-65536")))));
}

TEST_F(TargetCardTest, DrawsHealthAloneBetweenABeginningAndAnEnd) {
    LookAtTheDrudge();
    TellIdentity(18, 36);
    for (const char* when : {"new", "the same as before"}) {
        SCOPED_TRACE(when);
        Forget();
        TellHealth(0.25);
        EXPECT_THAT(CallsOf("BeginRender"), SizeIs(1));
        EXPECT_THAT(CallsOf("EndRender"), SizeIs(1));
        EXPECT_THAT(calls.back(), StartsWith("EndRender"));
        EXPECT_THAT(DrawnTexts(), ElementsAre("9 / 36"));
    }
}

TEST_F(TargetCardTest, KnowsARatioBeforeTheFigures) {
    Drudge().HasIdData = 0;
    client.ObjectSelected(kTarget);
    EXPECT_THAT(canvas().Rows(), ElementsAre("Drudge Prowler", "[Waiting for ID]"));
    Forget();
    TellHealth(0.75);
    EXPECT_THAT(Drawn(), AllOf(Contains(HasSubstr("color=-65536")),
                               Contains("DrawText " + RowRect(2) + " color=-1 format=1 text=[Waiting for ID]")));
    TellHealth(7.5);
    EXPECT_THAT(Drawn(), Contains("Fill " + Rect(4, 33, frame().width() - 3, 48) + " color=-65536"));
    TellHealth(-1);
    EXPECT_THAT(Drawn(), Not(Contains(HasSubstr("color=-65536"))));

    client.ObjectSelected(kTarget);
    EXPECT_THAT(canvas().Rows(), ElementsAre("Drudge Prowler", "[Waiting for ID]"));
    EXPECT_THAT(Drawn(), Contains("DrawText " + RowRect(1) + " color=-1 format=1 text=[Waiting for ID]"));
}

TEST_F(TargetCardTest, IgnoresTheHealthOfOthers) {
    LookAtTheDrudge();
    TellHealth(0.5, kTarget + 1);
    canvas().SetObject(nullptr);
    Forget();
    canvas().UpdateHealth(true);
    EXPECT_THAT(Drawn(), IsEmpty());
}

// Looks.

TEST_F(TargetCardTest, TakesTheLookThatThePlayerChose) {
    Thing(0, "Thing");
    client.ObjectSelected(kTarget);
    Forget();
    canvas().FontColor = "Yellow";
    frame().DrawHUD();
    EXPECT_THAT(Drawn(), Contains("DrawText " + RowRect(0) + " color=-256 format=0 text=Thing"));

    frame().Outline = true;
    frame().DrawHUD();
    EXPECT_THAT(DrawnTexts(), SizeIs(9));

    frame().BackgroundColor = 0x11223344;
    frame().DrawHUD();
    EXPECT_THAT(Drawn(), Contains(fmt::format("Fill {} color={}",
                                              Rect(2, 14, frame().width() - 2, frame().height() - 2), 0x11223344)));

    frame().SetFontFace("Verdana");
    frame().DrawHUD();
    EXPECT_THAT(CallsOf("BeginText"), Contains(HasSubstr("face=Verdana")));
}

TEST_F(TargetCardTest, IsClearWithoutATarget) {
    LookAtTheDrudge();
    client.ObjectSelected(0);
    const std::string inside = Rect(2, 14, frame().width() - 2, frame().height() - 2);
    EXPECT_THAT(CallsOf("Fill"), AllOf(Contains(HasSubstr(inside + " color=0")), Each(HasSubstr("color=0"))));
    EXPECT_THAT(Drawn(), Each(StartsWith("Fill " + inside)));
    EXPECT_THAT(canvas().Rows(), IsEmpty());
    frame().DrawHUD();
    EXPECT_THAT(Drawn(), IsEmpty());

    client.ObjectSelected(kTarget);
    FailNext("HudView.BeginText");
    canvas().SetObject(nullptr);
    EXPECT_THAT(TakeReports(), SizeIs(1));
    Forget();
    frame().DrawHUD();
    EXPECT_THAT(Drawn(), ElementsAre("Fill " + inside + " color=0")) << "what could not be cleared is cleared later";
}

TEST_F(TargetCardTest, ShowsNoTitleWithoutATarget) {
    MoveTo(20, 120);
    EXPECT_TRUE(frame().WithinCanvas());
    Advance(25ms);
    EXPECT_EQ(frame().Fade(), 0);
    EXPECT_FALSE(frame().WithinCanvas());
    Forget();
    Advance(900ms);
    EXPECT_THAT(CallsOf("DrawText"), IsEmpty()) << "the fade is over";

    for (const bool released : {true, false}) {
        LookAtTheDrudge();
        MoveTo(20, 121);
        Advance(250ms);
        EXPECT_EQ(frame().Fade(), 10);
        Forget();
        if (released) {
            client.ReleaseObject(kTarget);
            EXPECT_THAT(CallsOf("Fill"), Contains(HasSubstr(Rect(0, 14, 2, frame().height()) + " color=0")))
                << "a clear frame in full fade too";
            MoveTo(700, 500);
            Advance(25ms);
        } else {
            client.ObjectSelected(0);
        }
        EXPECT_EQ(frame().Fade(), 0);
    }
}

TEST_F(TargetCardTest, IsNotDrawnWhileItIsOff) {
    frame().HUDOff();
    Drudge();
    Forget();
    client.ObjectSelected(kTarget);
    TellIdentity(18, 36);
    TellEffect(48);
    Advance(2s);
    EXPECT_THAT(Drawn(), IsEmpty());
    EXPECT_THAT(canvas().Rows(), ElementsAre("Drudge Prowler", "18 / 36", "Level 8"));

    Forget();
    frame().HudOn();
    EXPECT_THAT(DrawnTexts(), ElementsAre("Drudge Prowler", "18 / 36", "Level 8", "4"));
}

// Failures.

TEST_F(TargetCardTest, LeavesOutARowThatFailsAndSaysSoOnce) {
    const std::string report = "Error #9 occured in 'WieldReq' of class 'HudHandlerT'";
    sim::Object& simi = Thing(1, "Silver Simi");
    simi.Long = {{107, 5}, {108, 6}, {158, 1}, {159, 46}, {160, 325}, {188, 4}};
    client.ObjectSelected(kTarget);
    EXPECT_THAT(canvas().Rows(), ElementsAre("Silver Simi", "0-0, Wk 0, Tk 0"));
    EXPECT_THAT(TakeReports(), ElementsAre(report, "Error #9 occured in 'ActivationReq' of class 'HudHandlerT'"));

    simi.Long[188] = 0;
    client.ChangeObject(kTarget, 0);
    frame().DrawHUD();
    client.ObjectSelected(kTarget);
    EXPECT_THAT(canvas().Rows(), ElementsAre("Silver Simi", "0-0, Wk 0, Tk 0", "5m"));
    EXPECT_THAT(TakeReports(), IsEmpty());

    Thing(0, "Something else", kTarget + 1);
    client.ObjectSelected(kTarget + 1);
    client.ObjectSelected(kTarget);
    EXPECT_THAT(TakeReports(), ElementsAre(report));
}

TEST_F(TargetCardTest, ComesBackWhenTheHostDoes) {
    const struct {
        const char* operation;
        std::vector<std::string> rows;
    } failures[] = {{"WorldObject.Long", {"Ring", "0p, 0bu", "Wk 0, Tk 0"}},  // the icon
                    {"WorldObject.Name", {"0p, 0bu", "Wk 0, Tk 0"}},
                    {"WorldObject.Type", {"Ring"}},
                    {"WorldObject.HasIdData", {"Ring"}},
                    {"WorldObject.Bool", {"Ring", "Wk 0, Tk 0"}}};
    host::Id id = kTarget;
    for (const auto& failure : failures) {
        SCOPED_TRACE(failure.operation);
        Thing(4, "Ring", ++id);
        const auto object = filter().World->Object(id);
        FailNext(failure.operation);
        canvas().SetObject(object);
        EXPECT_EQ(canvas().Rows(), failure.rows);
        EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'OutputHud' of class 'HudHandlerT'"));
        canvas().Refresh();
        EXPECT_THAT(canvas().Rows(), ElementsAre("Ring", "0p, 0bu", "Wk 0, Tk 0"));
    }
}

TEST_F(TargetCardTest, DrawsLaterWhatFailedToBeDrawn) {
    Drudge();
    for (const char* operation : {"HudView.DrawText", "HudView.DrawPortalImage", "HudView.Fill", "HudView.BeginText"}) {
        SCOPED_TRACE(operation);
        canvas().SetObject(nullptr);
        client.ObjectSelected(kTarget);
        Forget();
        FailNext(operation);
        frame().DrawHUD(true);
        EXPECT_THAT(TakeReports(), SizeIs(1));
        Forget();
        frame().DrawHUD();
        EXPECT_THAT(DrawnTexts(), ElementsAre("Drudge Prowler", "Level 8"));
        EXPECT_THAT(canvas().Rows(), SizeIs(2));
    }
}

TEST_F(TargetCardTest, EndsWhatItBeganWhenDrawingAloneFails) {
    LookAtTheDrudge();
    for (const char* operation : {"HudView.BeginText", "HudView.EndText", "HudView.EndRender"}) {
        SCOPED_TRACE(operation);
        TellIdentity(36, 36);
        Forget();
        FailNext(operation);
        TellHealth(0.5);
        EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'UpdateHealth' of class 'HudHandlerT'"));
        EXPECT_THAT(CallsOf("EndRender"), Not(IsEmpty()));
    }
}

TEST_F(TargetCardTest, ComesBackAfterTheDeviceWasLost) {
    LookAtTheDrudge();
    TellEffect(48);
    Vars::DebugMode = true;
    Forget();
    client.DeviceLost();
    EXPECT_TRUE(CalledInOrder({"DeviceLost Target", "ResizeHUDT Target", "HudViewRemove", "CreateHUDT1 Target",
                               "CreateHUDT2 Target", "HudViewCreate", "CreateHUDT3 Target", "BeginRender",
                               "text=Drudge Prowler", "EndRender", "ResizeHUDTEnd Target"}));
    Vars::DebugMode = false;
    EXPECT_THAT(DrawnTexts(), ElementsAre("Drudge Prowler", "Level 8", "4"));

    // A new surface that can't be begun is painted in full at the next chance.
    client.DeviceLost();
    Forget();
    FailNext("HudView.BeginRender");
    frame().ResizeHUD();
    TakeReports();
    Forget();
    frame().DrawHUD();
    EXPECT_THAT(DrawnTexts(), ElementsAre("Drudge Prowler", "Level 8", "4"));
}

}  // namespace
}  // namespace ombrel::test
