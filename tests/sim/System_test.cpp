#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "adapters/sim/Client.h"
#include "adapters/sim/FontMetrics.h"
#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::sim {
namespace {

using namespace std::chrono_literals;

class SystemTest : public testing::Test {
protected:
    Client client;
    host::Platform& platform = client.platform();
};

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

}  // namespace
}  // namespace ombrel::sim
