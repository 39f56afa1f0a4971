// A client without surfaces, or one that loses them: the plug-in goes on without its displays.

#include "hud/HUDClockHandler.h"
#include "hud/HUDItemHandler.h"
#include "hud/HUDMainHandler.h"
#include "hud/HUDStatusHandler.h"
#include "hud/HUDTargetHandler.h"
#include "tests/hud/Paper.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class RenderServiceTest : public PluginTest {
protected:
    void SetUp() override {
        client.screen = &paper;
        client.object(client.sheet.Character).Coordinates = host::Position{1, 2};
    }

    // Everything that draws, and what else a player does meanwhile.
    void Play() {
        client.StatusText("You're too busy!");
        client.object(0x101).Name = "Drudge";
        client.ObjectSelected(0x101);
        options().HudMainLbl->SetChecked(true);
        options().HudMainLbl->Change(true);
        options().HudGeneralSize->SetSelected(3);
        options().HudGeneralSize->Change(3);
        client.RegionChanged({0, 0, 640, 480});
        for (const std::int32_t message : {512, 513, 512, 514}) client.WindowMessage(message, 20, 330, 0, 0);
        client.DeviceLost();
        Advance(5s);
        Forget();
        client.ChatParser("/m loc");
        EXPECT_THAT(Texts(), SizeIs(1));
    }

    Paper paper;
};

TEST_F(RenderServiceTest, WithoutTheServiceThePluginWorks) {
    client.missing_services.insert("RenderService");
    LogIn();
    EXPECT_TRUE(Vars::HudFailed);
    EXPECT_THAT(TakeReports(), ElementsAre(HasSubstr("Error #429 occured in 'Class_Initialize'")));
    EXPECT_THAT(Texts(), Contains(HasSubstr("render service is missing")).Times(1));
    EXPECT_THAT(Texts(), Contains(HasSubstr("Plugin Loaded")));
    Play();
    EXPECT_THAT(paper.Take(), IsEmpty());
}

TEST_F(RenderServiceTest, WithoutSurfacesThePluginWorks) {
    client.render_available = false;
    LogIn();
    EXPECT_THAT(TakeReports(),
                ElementsAre("Error #0 occured in 'CreateHUD Failure100 5 300 205' of class 'HudHandler'"));
    EXPECT_EQ(CallsOf("HudViewCreate").size(), 1u) << "nothing asks a second time";
    Play();
    EXPECT_THAT(paper.Take(), IsEmpty());

    client.Terminate();
    client.render_available = true;
    Start();
    LogIn();
    EXPECT_FALSE(Vars::HudFailed) << "until it is loaded again";
    EXPECT_THAT(paper.TakeTexts(), Contains("STime: 00:00:00"));
}

TEST_F(RenderServiceTest, ASurfaceThatIsLostInPlayEndsTheDisplays) {
    LogIn();
    client.calls.Fail(*sim::FindOperation("RenderService.CreateHUD"), 1, 7, "no memory");
    options().Kills->SetText("1,000,000,000,000,000,000");
    Vars::HUDMainHandler->UpdateHUD();
    EXPECT_THAT(TakeReports(), ElementsAre(StartsWith("Error #7 occured in 'CreateHUD Failure318 8 ")));
    paper.Take();
    Play();
    EXPECT_THAT(paper.Take(), IsEmpty());
}

TEST_F(RenderServiceTest, ALostDeviceBringsAllFiveBack) {
    LogIn();
    client.StatusText("You're too busy!");
    client.object(0x101).Name = "Drudge";
    client.ObjectSelected(0x101);
    Vars::HUDItemHandler->ItemHUD->frame.HudOn();
    Vars::HUDItemHandler->ItemHUD->Add("0", "7", "White", 4600, true);
    for (const bool again : {false, true}) {
        paper.Take();
        client.DeviceLost();
        EXPECT_THAT(paper.strokes, Contains(HasSubstr("image 4600")));
        EXPECT_EQ(std::ranges::count_if(paper.strokes, [](const auto& stroke) { return stroke.starts_with("new"); }),
                  5);
        const auto texts = paper.TakeTexts();
        for (const char* text : {"Session Time: 00:00:00", "12:00 PM", "7", "You're too busy!", "Drudge"})
            EXPECT_THAT(texts, Contains(text)) << again;
    }
}

}  // namespace
}  // namespace ombrel::test
