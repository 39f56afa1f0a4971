// The displays as a player sees them: the pictures of the story in sessions/displays.jsonl beside references.
//
// A reference is the picture in blocks, so that another version of a font makes no difference and a line that is
// missing does. After a change of looks that is wanted, write them anew and look at them:
//
//     OMBREL_WRITE_PICTURES=1 build-dev/bin/ombrel-tests --gtest_filter='HudPictures.*'
#include <fmt/format.h>

#include <cstdlib>
#include <fstream>
#include <map>

#include "adapters/sim/draw/HudScreen.h"
#include "core/files.h"
#include "tests/replay/Replay.h"

namespace ombrel::sim {
namespace {

constexpr std::int32_t kBlock = 8;
constexpr std::int32_t kTolerance = 16;  // of 255, in one colour of one block

// The mean colours of the blocks, as a picture in the plainest of formats.
std::string InBlocks(const Picture& picture) {
    const std::int32_t width = picture.width() / kBlock, height = picture.height() / kBlock;
    std::string blocks = fmt::format("P6 {} {} 255\n", width, height);
    for (std::int32_t block = 0; block < width * height; ++block) {
        const std::int32_t left = block % width * kBlock, top = block / width * kBlock;
        for (const int part : {16, 8, 0}) {
            std::uint32_t sum = 0;
            for (std::int32_t y = 0; y < kBlock; ++y)
                for (std::int32_t x = 0; x < kBlock; ++x) sum += picture.At(left + x, top + y) >> part & 0xFF;
            blocks += static_cast<char>(sum / (kBlock * kBlock));
        }
    }
    return blocks;
}

// The story's looks at its notes "Picture: NAME", by name.
std::map<std::string, std::string> Pictures() {
    std::map<std::string, std::string> pictures;
    HudScreen screen;
    Replay replay;
    replay.client.screen = &screen;
    replay.player.note_listener = [&](std::string_view note) {
        constexpr std::string_view kMark = "Picture: ";
        if (note.starts_with(kMark))
            pictures.emplace(note.substr(kMark.size()), InBlocks(screen.Show(replay.client.hooks.Region3D)));
    };
    replay.PlayStory("displays");
    return pictures;
}

TEST(HudPictures, LookLikeTheirReferences) {
    const auto pictures = Pictures();
    ASSERT_EQ(pictures.size(), 2u);
    for (const auto& [name, picture] : pictures) {
        const std::string path = test::SourceFolder() + "/tests/hud/pictures/" + name + ".ppm";
        if (std::getenv("OMBREL_WRITE_PICTURES")) std::ofstream(path, std::ios::binary) << picture;
        const std::string reference = ReadFile(path);
        const std::size_t head = reference.find('\n');
        ASSERT_EQ(picture.substr(0, picture.find('\n')), reference.substr(0, head)) << name;
        ASSERT_EQ(picture.size(), reference.size()) << name;
        std::int32_t unlike = 0;
        for (std::size_t i = head + 1; i < picture.size(); ++i) {
            const int now = static_cast<unsigned char>(picture[i]), then = static_cast<unsigned char>(reference[i]);
            if (std::abs(now - then) > kTolerance) ++unlike;
        }
        EXPECT_EQ(unlike, 0) << "colours of blocks of " << name << " differ";
    }
}

}  // namespace
}  // namespace ombrel::sim
