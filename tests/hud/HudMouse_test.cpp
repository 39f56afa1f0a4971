// The mouse over the five displays: what it hovers, drags and clicks, and what a held key makes of it.
#include "hud/HudMouse.h"

#include <array>

#include "bench/Allocations.h"
#include "config/HudRows.h"
#include "core/cells.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

constexpr std::int32_t kMove = 512;
constexpr std::int32_t kPress = 513;
constexpr std::int32_t kRelease = 514;
constexpr std::int32_t kControl = 17;
constexpr std::int32_t kShift = 16;

enum Hud : std::uint8_t { kClock, kMain, kItem, kStatus, kTarget };
constexpr Hud kAll[] = {kClock, kMain, kItem, kStatus, kTarget};
constexpr std::int32_t kRows[] = {1, 0, 2, 3, 4};  // in the list of the options view
constexpr host::Point kPlaces[] = {{400, 0}, {100, 100}, {400, 200}, {400, 300}, {550, 200}};

class HudMouseTest : public PluginTest {
protected:
    // All five, with room between them.
    void SetUp() override {
        LogIn();
        Advance(1s);
        for (const Hud hud : kAll) {
            options().HudGeneral->SetData(0, kRows[hud], true);
            frame(hud).SetEnabled(true);
            frame(hud).DrawTitle = true;
            frame(hud).SetPos(kPlaces[hud].x, kPlaces[hud].y, true);
        }
        Forget();
    }
    void TearDown() override {
        Vars::DebugMode = Vars::DebugSilent = false;
        PluginTest::TearDown();
    }

    static HudFrame& frame(Hud hud) { return hud::FrameOf(kRows[hud]); }
    static host::Point Place(Hud hud) { return {frame(hud).x(), frame(hud).y()}; }

    // Points of a display.
    static host::Point Bar(Hud hud) { return {frame(hud).x() + 9, frame(hud).y() + 5}; }
    static host::Point Hide(Hud hud) { return {frame(hud).x() + frame(hud).width() - 15, frame(hud).y() + 5}; }
    static host::Point Close(Hud hud) { return {frame(hud).x() + frame(hud).width() - 4, frame(hud).y() + 5}; }
    static host::Point Body(Hud hud) { return {frame(hud).x() + 9, frame(hud).y() + 15}; }

    void Hold(std::set<std::int32_t> keys) { client.system.keys_down = std::move(keys); }
    void Mouse(std::int32_t message, host::Point point) {
        EXPECT_FALSE(client.WindowMessage(message, point.x, point.y, 0, 0)) << "the game sees every message";
    }
    void Click(host::Point point) {
        Mouse(kPress, point);
        Mouse(kRelease, point);
    }

    // How often the settings are written while something is done.
    template <class Deed>
    std::size_t Saves(Deed deed) {
        constexpr std::string_view kSave = " - Settings Save with action 0";
        Vars::DebugMode = Vars::DebugSilent = true;
        const std::size_t before = documents.Read(kLog).size();
        deed();
        Vars::DebugMode = false;
        const std::string log = documents.Read(kLog).substr(before);
        std::size_t saves = 0;
        for (std::size_t at = log.find(kSave); at != std::string::npos; at = log.find(kSave, at + 1)) ++saves;
        return saves;
    }

private:
    static constexpr std::string_view kLog = "Asheron's Call/Ombrel Debug.txt";
};

TEST_F(HudMouseTest, TheTitleBarComesWithTheMouseAndGoesWithIt) {
    for (const Hud hud : kAll) {
        if (hud == kTarget) continue;  // which has nothing to show
        Mouse(kMove, Body(hud));
        for (const Hud other : kAll) EXPECT_EQ(frame(other).WithinCanvas(), other == hud) << hud;
        Advance(250ms);
        EXPECT_EQ(frame(hud).Fade(), 10);
        Mouse(kMove, {700, 500});
        EXPECT_TRUE(frame(hud).WithinCanvas());
        Advance(250ms);
        EXPECT_FALSE(frame(hud).WithinCanvas());
    }
}

TEST_F(HudMouseTest, ATitleBarDragsItsHud) {
    for (const Hud hud : kAll) {
        const auto [x, y] = Place(hud);
        const auto [bar_x, bar_y] = Bar(hud);
        EXPECT_EQ(Saves([&] {
                      Mouse(kPress, {bar_x, bar_y});
                      Mouse(kMove, {bar_x + 30, bar_y});
                      EXPECT_EQ(Place(hud), (host::Point{x + 30, y})) << hud;
                      Mouse(kMove, {bar_x - 250, bar_y + 7});
                      Mouse(kRelease, {bar_x - 250, bar_y + 7});
                  }),
                  1u)
            << hud;
        EXPECT_EQ(Place(hud), (host::Point{x - 250, y + 7})) << hud;
        Mouse(kMove, {700, 500});
        EXPECT_EQ(Place(hud), (host::Point{x - 250, y + 7})) << "let go";
    }
}

TEST_F(HudMouseTest, TheBodyOfAHudDragsOnlyWithControl) {
    Mouse(kPress, Body(kMain));
    EXPECT_FALSE(frame(kMain).OnCanvas);
    Mouse(kRelease, {700, 500});

    frame(kMain).DrawTitle = false;
    Mouse(kPress, Bar(kMain));
    EXPECT_FALSE(frame(kMain).OnCanvas) << "its title bar is hidden";
    Mouse(kRelease, {700, 500});

    const host::Point body = Body(kMain);
    for (const std::set<std::int32_t>& keys : {std::set{kControl}, std::set{kControl, kShift}}) {
        Hold(keys);
        Mouse(kPress, Body(kMain));
        EXPECT_TRUE(frame(kMain).OnCanvas);
        EXPECT_FALSE(frame(kMain).DrawTitle);
        Mouse(kMove, {body.x + 5, body.y + 6});
        Mouse(kRelease, {body.x + 5, body.y + 6});
    }
    EXPECT_EQ(Body(kMain), (host::Point{body.x + 5, body.y + 6}));
}

TEST_F(HudMouseTest, HudsPickedUpTogetherEndAtOnePlace) {
    frame(kMain).SetPos(200, 300, false);
    frame(kClock).SetPos(205, 308, false);
    frame(kItem).SetPos(203, 306, false);
    Hold({kControl});
    Mouse(kPress, {210, 315});
    Mouse(kMove, {220, 335});
    for (const Hud hud : {kClock, kMain, kItem}) EXPECT_EQ(Place(hud), (host::Point{213, 326})) << hud;
    EXPECT_EQ(Place(kStatus), kPlaces[kStatus]);
    EXPECT_EQ(Saves([&] { Mouse(kRelease, {700, 500}); }), 1u);
    for (const Hud hud : kAll) EXPECT_FALSE(frame(hud).OnCanvas);
}

TEST_F(HudMouseTest, AClickIsAPressAndReleaseAtOnePoint) {
    EXPECT_EQ(Saves([&] { Click(Bar(kMain)); }), 2u) << "the click, and the drag that went nowhere";
    EXPECT_EQ(Saves([&] { Click(Body(kMain)); }), 1u);
    EXPECT_EQ(Saves([&] { Click({700, 500}); }), 0u);
    EXPECT_EQ(Saves([&] {
                  Mouse(kPress, Close(kMain));
                  Mouse(kRelease, {Close(kMain).x + 1, Close(kMain).y});
              }),
              0u);
    EXPECT_TRUE(frame(kMain).Enabled());
    frame(kClock).SetPos(Place(kMain).x, Place(kMain).y, false);
    EXPECT_EQ(Saves([&] { Click(Body(kMain)); }), 2u) << "once for each under the point";
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(HudMouseTest, TheButtonsCloseTheHudAndHideItsBar) {
    for (const Hud hud : kAll) {
        Click(Hide(hud));
        EXPECT_FALSE(frame(hud).DrawTitle) << hud;
        EXPECT_THAT(Texts(), ElementsAre("<Ombrel> Click on the HUD while holding shift to reshow the title bar.  "
                                         "Click on the HUD while holding control to move the hud"));
        Click(Close(hud));
        EXPECT_TRUE(frame(hud).Enabled()) << "there are no buttons without a bar";

        Hold({kShift});
        Click(Bar(hud));
        EXPECT_TRUE(frame(hud).DrawTitle) << hud;
        EXPECT_FALSE(frame(hud).OnCanvas);
        Hold({});
        Click(Close(hud));
        EXPECT_FALSE(frame(hud).Enabled()) << hud;
        EXPECT_FALSE(CellFlag(*options().HudGeneral, 0, kRows[hud])) << hud;
        EXPECT_TRUE(options().HudOn->Checked());
        Forget();
    }
}

TEST_F(HudMouseTest, AHudThatIsOffFeelsNothing) {
    frame(kMain).HUDOff();
    Hold({kControl});
    EXPECT_EQ(Saves([&] { Click(Bar(kMain)); }), 0u);
    Hold({});
    Mouse(kMove, Bar(kMain));
    EXPECT_FALSE(frame(kMain).WithinCanvas());
}

TEST_F(HudMouseTest, EachStepOfADragDecidesAboutDocking) {
    const auto [bar_x, bar_y] = Bar(kMain);
    const std::int32_t right = 800 - frame(kMain).x() - frame(kMain).width();
    const std::int32_t down = 628 - frame(kMain).y() - frame(kMain).height();
    Mouse(kPress, {bar_x, bar_y});
    Mouse(kMove, {bar_x + right - 3, bar_y});
    EXPECT_FALSE(frame(kMain).DockHorz);
    Mouse(kMove, {bar_x + right - 2, bar_y});
    EXPECT_TRUE(frame(kMain).DockHorz);
    EXPECT_EQ(frame(kMain).rect().right, 800);
    Mouse(kMove, {bar_x + right - 9, bar_y + down + 2});
    EXPECT_FALSE(frame(kMain).DockHorz);
    EXPECT_TRUE(frame(kMain).DockVert);
    Mouse(kRelease, {bar_x + right - 9, bar_y + down + 2});
    EXPECT_TRUE(frame(kMain).DockVert);

    client.RegionChanged({0, 0, 1024, 768});
    EXPECT_EQ(frame(kMain).rect().bottom, 768 + 28);
}

TEST_F(HudMouseTest, ADragHoldsTheTitleBar) {
    Mouse(kMove, Bar(kMain));
    Advance(1s);
    Mouse(kPress, Bar(kMain));
    client.system.cursor = {700, 500};
    frame(kMain).SetWithinCanvas(false);
    Advance(1s);
    EXPECT_EQ(frame(kMain).Fade(), 10);
    Mouse(kRelease, {700, 500});
    EXPECT_EQ(frame(kMain).Fade(), 10);
    Mouse(kMove, {700, 500});
    Advance(1s);
    EXPECT_EQ(frame(kMain).Fade(), 0);
}

TEST_F(HudMouseTest, NothingHappensBehindTheGate) {
    const auto untouched = [&](const char* when) {
        Mouse(kMove, Bar(kMain));
        Mouse(kPress, Bar(kMain));
        Mouse(kMove, {700, 500});
        Mouse(kRelease, {700, 500});
        EXPECT_FALSE(frame(kMain).WithinCanvas()) << when;
        EXPECT_EQ(Place(kMain), kPlaces[kMain]) << when;
    };
    Vars::Loaded = false;
    untouched("before login");
    Vars::Loaded = true;
    Vars::HudFailed = true;
    untouched("without surfaces");
    Vars::HudFailed = false;
    options().HudOn->SetChecked(false);
    untouched("with HUDs off");
    options().HudOn->SetChecked(true);
    for (const std::int32_t message : {511, 515, 516, 256, 0, -1}) Mouse(message, Bar(kMain));
    EXPECT_FALSE(frame(kMain).WithinCanvas());
    Mouse(kPress, Bar(kMain));
    EXPECT_TRUE(frame(kMain).OnCanvas) << "and works again";
}

TEST_F(HudMouseTest, FarPointsAreReportedAndHarmNothing) {
    Hold({kControl});
    frame(kMain).SetPos(-2147483647, 5, false);
    TakeReports();
    Mouse(kPress, Body(kClock));
    client.WindowMessage(kMove, 2147483647, -2147483647 - 1, 0, 0);
    client.WindowMessage(kRelease, -2147483647 - 1, 2147483647, 0, 0);
    EXPECT_THAT(TakeReports(), Each(HasSubstr("Error #6 occured in")));
    EXPECT_FALSE(frame(kClock).OnCanvas);
}

TEST_F(HudMouseTest, AFailingHostIsReportedUnderTheSink) {
    FailNext("Platform.GetCursorPos");
    Mouse(kMove, Bar(kMain));
    EXPECT_THAT(TakeReports(),
                ElementsAre("Error #5 occured in 'IWindowsMessageSink_WindowMessage' of class 'APluginCore'"));
    Mouse(kMove, Bar(kMain));
    EXPECT_TRUE(frame(kMain).WithinCanvas());
}

// The game sends hundreds of these a second.
TEST_F(HudMouseTest, AMoveNeitherDrawsNorTakesMemory) {
    client.calls.listener = nullptr;
    const auto draws = [&] {
        return client.calls.Count(*sim::FindOperation("HudView.BeginRender")) +
               client.calls.Count(*sim::FindOperation("HudView.SetRegion"));
    };
    for (const host::Point point : {host::Point{700, 500}, Body(kMain), host::Point{0, 0}}) {
        Mouse(kMove, point);
        Advance(1s);
        const std::uint64_t drawn = draws(), taken = bench::Allocations();
        for (std::int32_t step = 0; step < 10; ++step) client.WindowMessage(kMove, point.x + step % 2, point.y, 0, 0);
        EXPECT_EQ(bench::Allocations() - taken, 0u);
        EXPECT_EQ(draws() - drawn, 0u);
    }
}

}  // namespace
}  // namespace ombrel::test
