#include "adapters/sim/draw/HudScreen.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>

#include "adapters/sim/FontMetrics.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

constexpr std::int32_t kArea = 200;
constexpr std::int32_t kBar = 28;  // of the client, above the 3D area
constexpr std::int32_t kWhite = -1;
constexpr auto kRed = static_cast<std::int32_t>(0xFFFF0000);

class HudScreenTest : public testing::Test {
protected:
    // A view at a place in the picture.
    std::unique_ptr<host::HudView> Make(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
        auto view = screen.CreateHUD({x, y + kBar, x + width, y + height + kBar});
        view->SetEnabled(true);
        return view;
    }

    static void Fill(host::HudView& view, const host::Rect& rect, std::int32_t color) {
        view.BeginRender(false);
        view.Clear(rect);
        view.Fill(rect, color);
        view.EndRender();
    }

    static void Write(host::HudView& view, const host::Rect& rect, std::string_view face, std::int32_t format,
                      std::string_view text) {
        view.BeginRender(false);
        view.Clear(rect);
        view.BeginText(face, 16, 900, false);
        view.DrawText(rect, kWhite, format, text);
        view.EndText();
        view.EndRender();
    }

    Picture Show() const { return screen.Show({0, 0, kArea, kArea}); }
    std::uint32_t At(std::int32_t x, std::int32_t y) const { return Show().At(x, y); }

    // Where the picture differs from the landscape, if it does.
    std::optional<host::Rect> Ink() const {
        const Picture now = Show();
        host::Rect ink{kArea, kArea, 0, 0};
        for (std::int32_t y = 0; y < kArea; ++y) {
            for (std::int32_t x = 0; x < kArea; ++x) {
                if (now.At(x, y) == landscape.At(x, y)) continue;
                ink = {std::min(ink.left, x), std::min(ink.top, y), std::max(ink.right, x + 1),
                       std::max(ink.bottom, y + 1)};
            }
        }
        if (ink.right == 0) return std::nullopt;
        return ink;
    }

    HudScreen screen;
    const Picture landscape = HudScreen().Show({0, 0, kArea, kArea});
};

TEST_F(HudScreenTest, ViewsShowWhereTheyStandWhileTheyAreEnabled) {
    auto view = Make(20, 30, 40, 10);
    Fill(*view, {0, 0, 40, 10}, kRed);
    EXPECT_EQ(Ink(), (host::Rect{20, 30, 60, 40}));
    EXPECT_EQ(At(20, 30), 0xFFFF0000u);

    view->SetRegion({50, 50 + kBar, 90, 60 + kBar});
    EXPECT_EQ(Ink(), (host::Rect{50, 50, 90, 60}));
    view->SetEnabled(false);
    EXPECT_EQ(Ink(), std::nullopt);

    view->SetEnabled(true);
    auto above = Make(50, 50, 40, 10);
    Fill(*above, {0, 0, 40, 10}, kWhite);
    EXPECT_EQ(At(50, 50), 0xFFFFFFFFu) << "the later one lies on top";
    screen.RemoveHUD(*above);
    EXPECT_EQ(At(50, 50), 0xFFFF0000u);
    view.reset();
    EXPECT_EQ(Ink(), std::nullopt);
}

TEST_F(HudScreenTest, ColoursLetThroughWhatTheirAlphaSays) {
    auto view = Make(0, 0, kArea, kArea);
    Fill(*view, {10, 10, 20, 20}, static_cast<std::int32_t>(0x80000000));
    const std::uint32_t before = landscape.At(15, 15), now = At(15, 15);
    for (const int shift : {0, 8, 16})
        EXPECT_NEAR(now >> shift & 0xFF, (before >> shift & 0xFF) * (255 - 0x80) / 255, 2) << shift;
    Fill(*view, {10, 10, 20, 20}, 0);
    EXPECT_EQ(Ink(), std::nullopt) << "a fill replaces what was there";
}

TEST_F(HudScreenTest, NothingIsDrawnOutsideOfARendering) {
    auto view = Make(0, 0, kArea, kArea);
    view->Fill({0, 0, 50, 50}, kRed);
    view->DrawPortalImage(0x6001234, {0, 0, 16, 16});
    view->BeginText("Arial", 16, 900, false);
    view->DrawText({0, 0, 50, 50}, kRed, 0, "before");
    view->EndText();
    view->BeginRender(false);
    view->DrawText({0, 0, 50, 50}, kRed, 0, "no font");
    view->EndRender();
    view->Fill({0, 0, 50, 50}, kRed);
    EXPECT_EQ(Ink(), std::nullopt);
}

// In every face that a player can choose; those that are missing here stretch to the width of the table.
TEST_F(HudScreenTest, TextFillsTheWidthThatWasMeasured) {
    const std::string text = "Session XP/H: 637,500 M";
    for (const char* face : {"Arial", "Courier New", "Franklin Gothic Medium", "Impact", "Palatino Linotype",
                             "Times New Roman", "Verdana", "No such face"}) {
        const std::string shown = IsMonospaced(face) ? text.substr(9) : text;
        const std::int32_t width = TextWidth(shown, face, 16, true);
        auto view = Make(0, 20, kArea, 40);
        Write(*view, {0, 0, kArea, 40}, face, 0, shown);
        ASSERT_TRUE(Ink()) << face;
        EXPECT_NEAR(Ink()->left, 0, 2) << face;
        EXPECT_NEAR(Ink()->right, width, 3) << face;
        EXPECT_GE(Ink()->top, 20) << face;
        EXPECT_LE(Ink()->bottom, 20 + 17) << face;

        Write(*view, {0, 0, kArea, 40}, face, 1, shown);
        EXPECT_NEAR(Ink()->left + Ink()->right, kArea, 4) << "centred in " << face;
        Write(*view, {10, 5, 40, 12}, face, 0, shown);
    }
}

TEST_F(HudScreenTest, TextIsCutOffAtItsRectangle) {
    auto view = Make(0, 0, kArea, kArea);
    Write(*view, {10, 20, 50, 27}, "Arial", 0, "MMMMMMMMMMMMMM");
    ASSERT_TRUE(Ink());
    EXPECT_GE(Ink()->left, 10);
    EXPECT_GE(Ink()->top, 20);
    EXPECT_EQ(Ink()->right, 50);
    EXPECT_EQ(Ink()->bottom, 27);
}

TEST_F(HudScreenTest, EachIconTellsItsNumber) {
    auto view = Make(0, 0, kArea, kArea);
    const auto draw = [&](std::int32_t number) {
        view->BeginRender(false);
        view->Clear({0, 0, kArea, kArea});
        view->DrawPortalImage(0x6000000 + number, {0, 0, 16, 16});
        view->EndRender();
        EXPECT_EQ(Ink(), (host::Rect{0, 0, 16, 16})) << number;
        // White dots are digits.
        const Picture picture = Show();
        std::string dots;
        for (std::int32_t y = 0; y < 16; ++y)
            for (std::int32_t x = 0; x < 16; ++x) dots += picture.At(x, y) == 0xFFFFFFFFu ? '#' : ' ';
        return dots;
    };
    const std::string four = draw(4600);
    EXPECT_EQ(std::ranges::count(four, '#'), 9 + 12 + 12 + 12);
    EXPECT_NE(draw(4601), four);
    EXPECT_NE(draw(6400), four);
    EXPECT_EQ(std::ranges::count(draw(-1), '#'), 3 + 8);
    draw(0);
    draw(9999999);
}

TEST_F(HudScreenTest, OddCallsLeaveTheScreenInOrder) {
    constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();
    auto huge = screen.CreateHUD({kLow, kLow, kHigh, kHigh});
    auto backward = screen.CreateHUD({10, 10, -10, -10});
    for (host::HudView* view : {huge.get(), backward.get()}) {
        view->SetEnabled(true);
        for (const host::Rect& rect : {host::Rect{5, 5, 1, 1}, host::Rect{kLow, kLow, kHigh, kHigh}, host::Rect{}}) {
            Fill(*view, rect, 0);
            for (const char* text : {"", "\x01\t\n", "a\xFF\xFE", "\xE2\x80\x99\xE4\xB8\xAD"})
                Write(*view, rect, "", 7, text);
            view->BeginRender(true);
            view->BeginText("Arial", kHigh, kHigh, true);
            view->DrawText(rect, kRed, 0, "tall");
            view->BeginText("Arial", kLow, kLow, true);
            view->DrawText(rect, kRed, 0, "small");
            view->EndText();
            view->DrawPortalImage(kLow, {0, 0, 1, 1});
            view->DrawPortalImage(kHigh, rect);
            view->EndRender();
        }
    }
    huge.reset();
    backward.reset();
    auto view = Make(20, 30, 40, 10);
    Fill(*view, {0, 0, 40, 10}, kRed);
    EXPECT_EQ(Ink(), (host::Rect{20, 30, 60, 40}));
    EXPECT_EQ(screen.Show({0, 0, 0, 0}).width(), 1);
}

}  // namespace
}  // namespace ombrel::sim
