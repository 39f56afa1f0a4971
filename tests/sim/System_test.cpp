#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "adapters/sim/Client.h"
#include "adapters/sim/FontMetrics.h"
#include "core/failure.h"

namespace ombrel::sim {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class SystemTest : public testing::Test {
protected:
    // Writes each call with its arguments into `log`.
    void Listen() {
        client.calls.listener = [this](const Call& call) {
            std::string line(Operations()[call.operation].name);
            for (const Argument& argument : call.arguments) {
                line += " " + std::string(argument.name);
                if (const auto* number = std::get_if<std::int64_t>(&argument.value))
                    line += "=" + std::to_string(*number);
                if (const auto* flag = std::get_if<bool>(&argument.value)) line += *flag ? "=true" : "=false";
            }
            log.push_back(line + (call.failed ? " failed" : ""));
        };
    }

    Client client;
    host::Platform& platform = client.platform();
    std::vector<std::string> log;
};

TEST_F(SystemTest, TheTimeIsThatOfTheVirtualClock) {
    EXPECT_EQ(platform.Now(), 1'141'560'000'000);
    client.clock.Advance(1500ms);
    EXPECT_EQ(platform.Now(), 1'141'560'001'500);
}

TEST_F(SystemTest, AFolderThatIsNotThereHasItsStatusAndNoPath) {
    client.system.documents = "/home/bob";
    client.system.common_data = "/data";
    client.system.common_data_status = 1;
    EXPECT_EQ(platform.SHGetFolderPath(host::folder::kDocuments).path, "/home/bob");
    EXPECT_EQ(platform.SHGetFolderPath(host::folder::kCommonData).status, 1u);
    EXPECT_EQ(platform.SHGetFolderPath(host::folder::kCommonData).path, "");
    EXPECT_NE(platform.SHGetFolderPath(99).status, 0u);
}

TEST_F(SystemTest, KeysAreThoseOfAnAmericanKeyboard) {
    const struct {
        char character;
        int key;
    } rows[] = {{'a', 0x41}, {'A', 0x141}, {'/', 0xBF}, {'?', 0x1BF}, {'7', 0x37}, {' ', 0x20}, {'\xE9', -1}};
    for (const auto& row : rows) EXPECT_EQ(platform.VkKeyScan(row.character), row.key) << row.character;
    EXPECT_EQ(platform.MapVirtualKey(13, 0), 28);
    EXPECT_EQ(platform.MapVirtualKey('A', 0), 30);
    EXPECT_EQ(platform.MapVirtualKey(0x7B, 0), 88);
    EXPECT_EQ(platform.MapVirtualKey(0xFF, 0), 0);

    client.system.keys_down = {17};
    client.system.keys_toggled = {17, 20};
    EXPECT_LT(platform.GetAsyncKeyState(17), 0);
    EXPECT_EQ(platform.GetAsyncKeyState(16), 0);
    EXPECT_LT(platform.GetKeyState(17), 0);
    EXPECT_EQ(platform.GetKeyState(20), 1);
    EXPECT_EQ(platform.GetKeyState(13), 0);
}

TEST_F(SystemTest, SoundsKnowWhetherTheyPlay) {
    const auto file = std::filesystem::temp_directory_path() / "ombrel-sound-test.wav";
    std::ofstream(file) << "RIFF";
    Listen();
    const auto device = platform.DirectSoundCreate();
    {
        const auto sound = device->CreateSoundBuffer(file.string());
        EXPECT_EQ(sound->GetStatus(), 0);
        sound->Play(1);
        EXPECT_EQ(sound->GetStatus(), 5);
        sound->Stop();
        EXPECT_EQ(sound->GetStatus(), 0);
        sound->Play(0);
        EXPECT_EQ(sound->GetStatus(), 1);
        client.calls.Fail("SoundBuffer.SoundRelease"_op, 1, 5, "");
    }
    std::filesystem::remove(file);
    EXPECT_THROW(device->CreateSoundBuffer(file.string()), Failure);
    EXPECT_THAT(log, ElementsAre("SoundLoad path", "SoundPlay path loop=true", "SoundStop path",
                                 "SoundPlay path loop=false", "SoundRelease path failed", "SoundLoad path failed"));
}

TEST_F(SystemTest, SurfacesAreKnownByTheirNumbers) {
    Listen();
    const auto render = client.site().GetRenderService();
    const auto first = render->CreateHUD({1, 2, 3, 4}), second = render->CreateHUD({5, 6, 7, 8});
    second->BeginRender(false);
    second->Clear({0, 0, 2, 2});
    first->SetEnabled(true);
    render->RemoveHUD(*first);
    client.render_available = false;
    EXPECT_EQ(render->CreateHUD({1, 2, 3, 4}), nullptr);
    client.render_available = true;
    client.calls.Fail("RenderService.CreateHUD"_op, 1, 5, "");
    EXPECT_THROW(render->CreateHUD({1, 2, 3, 4}), Failure);
    EXPECT_THAT(log, ElementsAre("HudViewCreate left=1 top=2 right=3 bottom=4 ok=true",
                                 "HudViewCreate left=5 top=6 right=7 bottom=8 ok=true", "BeginRender view=2",
                                 "Clear view=2", "SetEnabled enabled=true view=1", "HudViewRemove",
                                 "HudViewCreate left=1 top=2 right=3 bottom=4 ok=false",
                                 "HudViewCreate left=1 top=2 right=3 bottom=4 ok=false failed"));
}

TEST_F(SystemTest, TextIsMeasuredInTheFontsOwnWidths) {
    const auto decal = client.site().GetDecal();
    const auto arial = decal->CreateFont("Arial", 16, 0), bold = decal->CreateFont("Arial", 16, 1);
    const auto courier = decal->CreateFont("Courier New", 16, 1), big = decal->CreateFont("Arial", 32, 0);
    EXPECT_EQ(arial->TextWidth(""), 0);
    EXPECT_LT(arial->TextWidth("iiii"), arial->TextWidth("MMMM"));
    EXPECT_LT(arial->TextWidth("bold"), bold->TextWidth("bold"));
    EXPECT_EQ(courier->TextWidth("iiii"), courier->TextWidth("MMMM"));
    EXPECT_EQ(big->TextWidth("MMMMMMMM"), 191);  // eight times 1706 of 2288 units to 32 pixels
    EXPECT_EQ(arial->TextWidth("caf\u00e9"), arial->TextWidth("cafe"));
    EXPECT_EQ(arial->TextWidth("\u4e2d"), arial->TextWidth("?"));
}

TEST_F(SystemTest, KeysOfTheClientsActionsAreLookedUp) {
    client.key_map["CaptureScreenshot"] = 0x7B;
    EXPECT_EQ(client.site().GetDecal()->MapKey("CaptureScreenshot"), 0x7B);
    EXPECT_EQ(client.site().GetDecal()->MapKey("Jump"), 0);
}

}  // namespace
}  // namespace ombrel::sim
