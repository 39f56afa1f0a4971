// The canvas: how large it is, what it paints, where it stands, and what it does when its surface goes.
#include "hud/HUDHandler.h"

#include <fmt/format.h>

#include <memory>
#include <ostream>

#include "tests/hud/Paper.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

// In Arial of 16 pixels this is 32 wide, and a blank 4.
constexpr const char* kText = "0000";

class HUDHandlerTest : public PluginTest {
protected:
    void SetUp() override {
        client.screen = &paper;
        Start();
        canvas = std::make_unique<HUDHandler>();
        paper.Take();
        Forget();
    }
    void TearDown() override {
        canvas.reset();
        PluginTest::TearDown();
    }

    HudFrame& frame() { return canvas->frame; }

    // Lines and cells of the same text: L line, c cell, I line with an icon, i cell with an icon.
    void AddAll(std::string_view kinds) {
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const bool icon = kinds[i] == 'I' || kinds[i] == 'i';
            const bool newline = kinds[i] == 'I' || kinds[i] == 'L';
            canvas->Add(std::to_string(i), kText, "White", icon ? 4600 : -1, newline);
        }
    }
    void AddLine(const std::string& key, std::string_view text, std::string_view color = "White") {
        canvas->Add(key, text, color, -1, true);
    }
    void Show() {
        frame().HudOn();
        paper.Take();
        Forget();
    }

    Paper paper;
    std::unique_ptr<HUDHandler> canvas;
};

TEST_F(HUDHandlerTest, StandsInTheCornerUntilItsOwnerPlacesIt) {
    canvas.reset();
    paper.Take();
    canvas = std::make_unique<HUDHandler>();
    EXPECT_THAT(paper.Take(), ElementsAre("new 5,100,205,300"));
    EXPECT_EQ(frame().x(), 5);
    EXPECT_EQ(frame().y(), 100);
    EXPECT_EQ(frame().width(), 20);
    EXPECT_EQ(frame().height(), 200);
    EXPECT_FALSE(frame().Enabled());
    EXPECT_TRUE(frame().DrawTitle);
    EXPECT_EQ(frame().SpaceWidth(), 4);
    EXPECT_EQ(static_cast<std::uint32_t>(frame().BackgroundColor), 0x80000000u);
    EXPECT_EQ(canvas->count(), 0u);
}

// Size

struct SizeRow {
    const char* items;
    std::int32_t width, height;
    std::int32_t font = 16, icon = 16;
    bool outline = false;
};

// Around the content there are 3 pixels at each side, 16 above and 2 below.
TEST_F(HUDHandlerTest, IsAsLargeAsItsContent) {
    const SizeRow rows[] = {
        {"", 20, 18},
        {"L", 38, 35},
        {"LL", 38, 52},
        {"I", 6 + 16 + 1 + 32 + 2, 18 + 18},
        {"c", 38, 35},
        {"cc", 6 + 32 + 8 + 32, 35},
        {"ccc", 6 + 3 * 40 - 8, 35},
        {"ccL", 6 + 40 + 40 + 32, 52},  // a row of cells that a line ends counts twice in the height
        {"cL", 6 + 40 + 32, 52},
        {"Lc", 38, 52},
        {"i", 6 + 36 + 1, 18 + 18 + 17},
        {"iii", 6 + 3 * 37, 18 + 35},
        {"iI", 6 + 37 + 51, 18 + 35 + 18},
        {"cI", 6 + 40 + 51, 18 + 17 + 18},  // an icon's line doesn't close a row of cells for the width
        {"cic", 6 + 40 + 37 + 40 - 8, 35},
        {"ic", 6 + 37 + 32, 18 + 35},
        // 24 high the text is 48 wide; the blank keeps the width that it had when the face was set.
        {"L", 54, 18 + 25, 24},
        {"cc", 6 + 48 + 8 + 48, 18 + 25, 24},
        {"I", 6 + 16 + 1 + 48 + 2, 18 + 26, 24},
        {"I", 6 + 32 + 1 + 32 + 2, 18 + 34, 16, 32},
        {"i", 6 + 52 + 1, 18 + 34 + 25, 24, 32},
        {"i", 6 + 48 + 1, 18 + 50 + 17, 16, 48},
        {"L", 38, 36, 16, 16, true},
        {"", 20, 19, 16, 16, true},
    };
    for (const SizeRow& row : rows) {
        SCOPED_TRACE(fmt::format("'{}' in {} with icons of {}", row.items, row.font, row.icon));
        canvas = std::make_unique<HUDHandler>();
        frame().SetFontSize(row.font);
        frame().IconSize = static_cast<std::int16_t>(row.icon);
        frame().Outline = row.outline;
        AddAll(row.items);
        frame().HudOn();
        EXPECT_EQ(frame().rect(), (host::Rect{5, 100, 5 + row.width, 100 + row.height}));
    }
}

TEST_F(HUDHandlerTest, AFontThatIsNoFontIsReportedAndHarmsNothing) {
    AddAll("iIcL");
    frame().SetFontSize(2147483647);
    canvas->Add("5", "more", "White", -1, false);
    frame().HudOn();
    EXPECT_THAT(TakeReports(), Each(HasSubstr("'SetHeightbyData' of class 'HUDHandler'")));
    frame().SetFontSize(16);
    frame().DrawHUD(true);
    EXPECT_EQ(frame().height(), 18 + 35 + 18 + 17 + 17 + 17);
}

TEST_F(HUDHandlerTest, ANewFaceMeasuresTheBlankANewSizeDoesNot) {
    frame().SetFontSize(24);
    EXPECT_EQ(frame().SpaceWidth(), 4);
    frame().SetFontFace("Arial");
    EXPECT_EQ(frame().SpaceWidth(), 6);
    frame().SetFontFace("Courier New");
    EXPECT_EQ(frame().SpaceWidth(), 13);
    EXPECT_EQ(frame().TextWidth("ii"), frame().TextWidth("MM"));
}

// Painting

TEST_F(HUDHandlerTest, PaintsFrameThenItemsInTheirOrder) {
    canvas->Add("line", "0000", "Red", -1, true, 5);
    canvas->Add("icon", "0000", "Yellow", 4600, true);
    AddLine("cell", "0000");
    canvas->Add("cell", "000", "White", -1, false);
    canvas->Add("end", "0000", "No colour", -1, true);
    frame().HudOn();
    // 6 + 24 + 8 + 32 wide, 18 + 17 + 18 + 17 + 17 high: the row of two counts twice.
    EXPECT_THAT(
        paper.Take(),
        ElementsAre("on", "off", "remove", "new 5,100,75,187", "begin", "clear 0,0,70,87", "fill 0,0,70,87 80000000",
                    "end", "on",                                                                 //
                    "begin", "font Arial 14 700", "clear 0,0,70,14", "fill 0,0,70,14 00000000",  //
                    "clear 0,14,2,87", "fill 0,14,2,87 80000000",                                //
                    "clear 0,85,70,87", "fill 0,85,70,87 80000000",                              //
                    "clear 68,14,70,87", "fill 68,14,70,87 80000000", "end text",                //
                    "font Arial 16 900",                                                         //
                    "clear 3,16,68,33", "fill 3,16,68,33 80000000", "left 3,16,68,33 80FF0000 0000", "clear 3,33,19,49",
                    "fill 3,33,19,49 80000000", "image 4600 3,33,19,49", "clear 22,33,68,49",
                    "fill 22,33,68,49 80000000", "left 22,33,68,49 FFFFFF00 0000", "clear 3,51,27,68",
                    "fill 3,51,27,68 80000000", "left 3,51,27,68 FFFFFFFF 000", "clear 35,51,68,68",
                    "fill 35,51,68,68 80000000", "left 35,51,68,68 FFFFFFFF 0000", "end text", "end"));
}

TEST_F(HUDHandlerTest, CellsWithIconsStandBesideEachOther) {
    frame().BackgroundColor = 0;
    canvas->Add("0", "5", "White", 100, false);      // 8 wide: as wide as the icon
    canvas->Add("1", "000", "White", 200, false);    // 24: the cell is 28
    canvas->Add("2", "0000f", "White", 300, false);  // 37: the cell is 41, the icon stands off by 12.5
    frame().HudOn();
    EXPECT_THAT(paper.Take({"image", "centre"}),
                ElementsAre("image 100 3,18,19,34", "centre 3,35,19,51 FFFFFFFF 5",      //
                            "image 200 26,18,42,34", "centre 20,35,48,51 FFFFFFFF 000",  //
                            "image 300 62,18,78,34", "centre 49,35,90,51 FFFFFFFF 0000f"));
}

TEST_F(HUDHandlerTest, IconsAndTextOfALineShareItsMiddle) {
    frame().IconSize = 32;
    AddAll("II");
    frame().HudOn();
    EXPECT_THAT(paper.Take({"image", "left"}),
                ElementsAre("image 4600 3,16,35,48", "left 38,24,71,40 FFFFFFFF 0000",  //
                            "image 4600 3,50,35,82", "left 38,58,71,74 FFFFFFFF 0000"));
    frame().IconSize = 16;
    frame().SetFontSize(19);
    frame().DrawHUD(true);
    EXPECT_THAT(paper.Take({"image", "left"}), ElementsAre("image 4600 3,17,19,33", HasSubstr("left 22,16,"),
                                                           "image 4600 3,38,19,54", HasSubstr("left 22,37,")));
}

TEST_F(HUDHandlerTest, WithoutItemsTheFrameIsClear) {
    Show();
    frame().DrawHUD(false);
    EXPECT_THAT(paper.Take({"fill", "left"}), ElementsAre("fill 0,0,20,14 00000000", "fill 0,14,2,18 00000000",
                                                          "fill 0,16,20,18 00000000", "fill 18,14,20,18 00000000"));
}

TEST_F(HUDHandlerTest, AnOutlineIsTheTextEightTimesAround) {
    frame().Outline = true;
    AddLine("a", "x", "Yellow");
    frame().HudOn();
    EXPECT_THAT(paper.Take({"left"}),
                ElementsAre("left 3,16,18,33 FF000000 x", "left 3,18,18,35 FF000000 x", "left 2,17,17,34 FF000000 x",
                            "left 4,17,19,34 FF000000 x", "left 2,16,17,33 FF000000 x", "left 4,16,19,33 FF000000 x",
                            "left 2,18,17,35 FF000000 x", "left 4,18,19,35 FF000000 x", "left 3,17,18,34 FFFFFF00 x"));
    AddLine("a", "y", "Black");
    frame().DrawHUD(false);
    const auto strokes = paper.Take({"left"});
    ASSERT_THAT(strokes, SizeIs(9));
    EXPECT_THAT(strokes.front(), HasSubstr(" FFFFFFFF y")) << "white around black";
    EXPECT_THAT(strokes.back(), HasSubstr(" FF000000 y"));
}

// Only what has changed

TEST_F(HUDHandlerTest, OnlyChangedLinesArePaintedAgain) {
    AddLine("a", "0001");
    AddLine("b", "0002");
    AddLine("c", "0003");
    Show();
    frame().DrawHUD(false);
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());

    AddLine("b", "0004", "Red");
    frame().DrawHUD(false);
    EXPECT_THAT(paper.Take({"clear 3,", "fill 3,", "left", "new"}),
                ElementsAre("clear 3,33,36,50", "fill 3,33,36,50 80000000", "left 3,33,36,50 FFFF0000 0004"));
    frame().DrawHUD(false);
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());
    frame().DrawHUD(true);
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("0001", "0004", "0003"));

    AddLine("c", "00003");
    frame().DrawHUD(false);
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("0001", "0004", "00003")) << "the HUD grows, so its surface is new";
}

TEST_F(HUDHandlerTest, TheSameTextKeepsItsColour) {
    canvas->Add("a", "0001", "White", -1, true);
    Show();
    canvas->Add("a", "0001", "Red", 4600, false, 3);
    frame().DrawHUD(false);
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());
    const HUDItem& kept = canvas->items().at("a");
    EXPECT_EQ(kept.color, "White");
    EXPECT_EQ(kept.icon, -1);
    EXPECT_TRUE(kept.newline);
    EXPECT_EQ(kept.alpha, 10);
    canvas->Add("a", "0002", "Red", 4600, false, 3);
    EXPECT_EQ(canvas->items().at("a").color, "Red");
    EXPECT_EQ(canvas->items().at("a").icon, 4600);
    EXPECT_EQ(canvas->items().at("a").alpha, 3);
    canvas->Clear();
    EXPECT_EQ(canvas->count(), 0u);
    EXPECT_EQ(frame().width(), 20);
}

TEST_F(HUDHandlerTest, NothingIsDrawnWhileItIsOff) {
    AddLine("a", "0001");
    frame().DrawHUD(true);
    EXPECT_THAT(paper.Take(), IsEmpty());
    frame().HudOn();
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("0001"));
    frame().HUDOff();
    EXPECT_THAT(paper.Take(), ElementsAre("off"));
    frame().SetEnabled(false);
    EXPECT_THAT(paper.Take(), ElementsAre("off"));
}

// The title bar

TEST_F(HUDHandlerTest, TheTitleBarFadesInAndOut) {
    frame().SetTitle("Main");
    AddLine("a", "0000000000000000");
    Show();
    frame().SetWithinCanvas(true);
    EXPECT_THAT(CallsOf("TimerStart"), ElementsAre("TimerStart name=HUDHandler.FadeTimer milliseconds=25"));
    EXPECT_TRUE(frame().WithinCanvas());
    Advance(125ms);
    EXPECT_EQ(frame().Fade(), 5);
    paper.Take();
    Advance(25ms);
    // 133 wide: the title is centred before the two buttons.
    EXPECT_THAT(
        paper.Take({"fill", "left", "centre"}),
        ElementsAre("fill 0,0,133,14 00000000", "fill 0,14,2,35 80000000", "fill 0,33,133,35 80000000",
                    "fill 131,14,133,35 80000000", "fill 0,0,133,14 99000000", "centre 0,0,113,14 99FFFFFF Main",
                    "left 115,0,123,14 99FFFFFF O", "left 125,0,133,14 99FFFFFF X"));
    Advance(100ms);
    EXPECT_EQ(frame().Fade(), 10);
    EXPECT_THAT(CallsOf("TimerStop"), SizeIs(1));
    EXPECT_THAT(paper.Take({"fill 0,14,2"}), Contains("fill 0,14,2,35 FF000000")) << "the frame at full fade";

    frame().SetWithinCanvas(false);
    EXPECT_TRUE(frame().WithinCanvas()) << "until it has faded";
    Advance(225ms);
    EXPECT_EQ(frame().Fade(), 1);
    frame().SetWithinCanvas(true);
    paper.Take();
    Advance(25ms);
    EXPECT_FALSE(frame().WithinCanvas()) << "a mouse that comes back before the end waits for it";
    EXPECT_THAT(paper.TakeTexts(), IsEmpty());
    Forget();
    Advance(1s);
    EXPECT_THAT(calls, IsEmpty());

    frame().SetWithinCanvas(true);
    frame().SetWithinCanvas(false);
    Advance(25ms);
    EXPECT_FALSE(frame().WithinCanvas()) << "gone before the first step";
    frame().OnCanvas = true;
    frame().SetWithinCanvas(true);
    EXPECT_FALSE(frame().WithinCanvas()) << "a drag holds the fade";
}

TEST_F(HUDHandlerTest, ATitleThatIsTooWideIsLeftOutAndWithoutABarTheFadeRunsUnseen) {
    frame().SetTitle("0000");
    AddLine("a", "0000000");  // 56 wide: with the frame 62, which leaves 32 beside the buttons
    Show();
    frame().SetWithinCanvas(true);
    Advance(25ms);
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("O", "X"));
    AddLine("b", "0000000.");
    Advance(25ms);
    EXPECT_THAT(paper.TakeTexts(), Contains("0000"));

    frame().DrawTitle = false;
    Advance(1s);
    EXPECT_EQ(frame().Fade(), 10);
    EXPECT_THAT(paper.Take(), IsEmpty());
    frame().DrawHUD(false);
    EXPECT_THAT(paper.Take({"fill 0,14"}), ElementsAre("fill 0,14,2,52 80000000"));
}

TEST_F(HUDHandlerTest, ClicksFallOnBarOrButtons) {
    AddLine("a", "0000000000000000");  // which makes it 133 wide
    Show();
    const struct {
        std::int32_t x, y, hit;
    } rows[] = {{1, 1, 0},   {1, 13, 0},  {1, 14, -1}, {1, 0, -1},  {0, 5, -1},  {113, 5, 0},  {114, 5, 2},
                {120, 5, 2}, {121, 5, 0}, {125, 5, 0}, {126, 5, 1}, {132, 5, 1}, {133, 5, -1}, {126, 20, -1}};
    for (const auto& [x, y, hit] : rows) EXPECT_EQ(frame().ClickHUD(5 + x, 100 + y), hit) << x << ", " << y;
    frame().DrawTitle = false;
    EXPECT_EQ(frame().ClickHUD(6, 105), -1);
    EXPECT_TRUE(frame().WithinHUD(6, 134));
    EXPECT_FALSE(frame().WithinHUD(6, 135)) << "edges lie outside";
    EXPECT_FALSE(frame().WithinHUD(138, 110));
    frame().HUDOff();
    EXPECT_FALSE(frame().WithinHUD(6, 134));
}

// Place

// The 3D area of 800 by 600 begins 28 below the window's top, so that it ends at 628.
TEST_F(HUDHandlerTest, DocksWithinThreePixelsOfTheEdges) {
    AddLine("a", "0000");  // 38 by 35
    Show();
    const struct {
        std::int32_t x, y;
        bool horizontal, vertical;
    } rows[] = {{762, 100, true, false},  {760, 100, true, false},  {764, 100, true, false},
                {759, 100, false, false}, {765, 100, false, false}, {5, 593, false, true},
                {5, 595, false, true},    {5, 590, false, false},   {764, 591, true, true}};
    for (const auto& [x, y, horizontal, vertical] : rows) {
        frame().SetPos(x, y, true);
        EXPECT_EQ(frame().DockHorz, horizontal) << x;
        EXPECT_EQ(frame().DockVert, vertical) << y;
        EXPECT_EQ(frame().x(), horizontal ? 762 : x);
        EXPECT_EQ(frame().y(), vertical ? 593 : y);
    }
}

TEST_F(HUDHandlerTest, MovesWithoutBeingDrawnAndFollowsTheEdgesThatItIsDockedTo) {
    AddLine("a", "0000");
    Show();
    frame().SetX(50);
    frame().SetY(60);
    EXPECT_THAT(paper.Take(), ElementsAre("at 50,100,88,135", "at 50,60,88,95"));

    frame().DockVert = frame().DockHorz = true;
    client.hooks.Region3D = {0, 0, 1024, 768};
    frame().UpdatePos();
    EXPECT_THAT(paper.Take(), ElementsAre("at 986,761,1024,796"));
    AddLine("b", "00000");
    frame().DrawHUD(false);
    EXPECT_EQ(frame().rect(), (host::Rect{978, 744, 1024, 796})) << "it grows up and to the left";
    frame().SetPos(10, 20, false);
    EXPECT_EQ(frame().rect(), (host::Rect{978, 744, 1024, 796})) << "a place alone doesn't undock it";
    frame().HUDOff();
    client.hooks.Region3D = {0, 0, 800, 600};
    paper.Take();
    frame().UpdatePos();
    frame().SetSize(100, 90);
    EXPECT_THAT(paper.Take(), IsEmpty());
    frame().SetPos(2147483647, 5, true);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #6 occured in 'MoveHUD' of class 'HUDHandler'"));
}

// The surface

TEST_F(HUDHandlerTest, ALostDeviceBringsEverythingBack) {
    AddLine("a", "0001");
    frame().SetTitle("T");
    client.DeviceLost();
    EXPECT_THAT(paper.Take({"new 5,100,43,135"}), SizeIs(1));
    frame().DeviceLost();
    EXPECT_THAT(paper.Take({"new", "off", "remove", "on"}), ElementsAre("off", "remove", "new 5,100,43,135", "off"))
        << "it is off, and stays so";

    frame().HudOn();
    frame().SetWithinCanvas(true);
    Advance(1s);
    frame().OnCanvas = true;
    AddLine("b", "00002");
    paper.Take();
    canvas->frame.DeviceLost();
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("T", "O", "X", "0001", "00002")) << "in the middle of a drag";
    EXPECT_EQ(frame().Fade(), 10);
    frame().DrawHUD(false);
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("T", "O", "X"));
}

TEST_F(HUDHandlerTest, ADrawingThatFailsIsClosedAndDrawnAgain) {
    AddLine("a", "0001");
    AddLine("b", "0002");
    Show();
    FailNext("DrawText");
    frame().DrawHUD(true);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'WriteText' of class 'HUDHandler'"));
    EXPECT_THAT(paper.TakeTexts(), ElementsAre("0002")) << "the other text stands";
    for (const char* operation : {"HudView.Fill", "HudView.BeginText", "HudView.Clear", "HudView.EndText"}) {
        SCOPED_TRACE(operation);
        Show();
        FailNext(operation);
        frame().DrawHUD(false);
        EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'OutputHud' of class 'HUDHandler'"));
        EXPECT_EQ(paper.Take().back(), "end");
        AddLine("a", std::string("000") + operation[8]);
        frame().DrawHUD(false);
        EXPECT_THAT(paper.TakeTexts(), Contains(StartsWith("000")));
    }
}

TEST_F(HUDHandlerTest, ASurfaceThatCannotBeMadeIsTheEndOfAll) {
    frame().SetTitle("Odd");
    AddLine("a", "0001");
    frame().SetPos(7, 9, false);
    client.render_available = false;
    paper.Take();
    frame().HudOn();
    EXPECT_TRUE(Vars::HudFailed);
    EXPECT_THAT(TakeReports(),
                ElementsAre("Error #0 occured in 'CreateHUD Failure9 7 44 45' of class 'HudHandlerOdd'"));

    client.render_available = true;
    paper.Take();
    Forget();
    frame().SetEnabled(true);
    frame().DrawHUD(true);
    frame().SetPos(20, 30, true);
    frame().UpdatePos();
    frame().ResizeHUD();
    frame().DeviceLost();
    frame().SetWithinCanvas(true);
    Advance(1s);
    frame().HUDOff();
    frame().SetEnabled(true);
    EXPECT_TRUE(frame().Enabled());
    EXPECT_TRUE(frame().WithinHUD(8, 10)) << "where it stood";
    EXPECT_THAT(paper.Take(), IsEmpty());
    EXPECT_THAT(CallsOf("HudView"), IsEmpty());
}

TEST_F(HUDHandlerTest, TellsItsStepsToTheDebugLog) {
    Vars::DebugMode = Vars::DebugSilent = true;
    frame().SetTitle("Odd");
    AddLine("a", "0000");
    frame().HudOn();
    frame().SetPos(1, 2, false);
    frame().ClickHUD(3, 4);
    frame().DeviceLost();
    canvas = std::make_unique<HUDHandler>();
    canvas.reset();
    Vars::DebugMode = false;
    std::string log = documents.Read("Asheron's Call/Ombrel Debug.txt");
    for (const char* line : {"Resize Done", "ResizeHUD Odd", "ComputeDimensions: 100, 5, 135, 43 | 38, 35",
                             "CreateHUD Odd", "MoveHUD Odd", "ComputeDimensions: 2, 1, 37, 39 | 38, 35", "ClickHUD Odd",
                             "DeviceLost Odd", "ResizeHUD Odd", "HUD Handler Init",
                             "ComputeDimensions: 100, 5, 300, 205 | 200, 200", "CreateHUD ", "HUD Handler Terminate"}) {
        const std::size_t at = log.find(std::string(" - ") + line);
        ASSERT_NE(at, std::string::npos) << line << " is missing at its place in " << log;
        log.erase(0, at + 3);
    }
}

}  // namespace
}  // namespace ombrel::test
