#include "adapters/decal/WaveFile.h"

#include <string>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel::decal {
namespace {

std::string Chunk(std::string_view name, std::string_view content, std::size_t length) {
    std::string chunk(name);
    for (int byte = 0; byte < 4; ++byte) chunk += static_cast<char>(length >> (8 * byte) & 0xFF);
    chunk += content;
    if (content.size() % 2 != 0) chunk += '\0';
    return chunk;
}

std::string Chunk(std::string_view name, std::string_view content) { return Chunk(name, content, content.size()); }

std::string Wave(std::string_view chunks) { return "RIFF....WAVE" + std::string(chunks); }

const std::string kFormat(16, 'f');

TEST(WaveFile, FindsFormatAndSamplesBetweenOtherChunksAtEvenPlaces) {
    const std::string content =
        Wave(Chunk("LIST", "odd") + Chunk("fmt ", kFormat) + Chunk("fact", "1234") + Chunk("data", "samples!!"));
    const auto wave = WaveFile::In(content);
    EXPECT_EQ(wave.format, kFormat);
    EXPECT_EQ(wave.samples, "samples!!");
}

TEST(WaveFile, PlaysAFileThatWasCutOffAsFarAsItGoes) {
    const std::string content = Wave(Chunk("fmt ", kFormat) + Chunk("data", "half", 0xFFFFFFFF));
    EXPECT_EQ(WaveFile::In(content).samples, "half");
}

TEST(WaveFile, RefusesWhatCannotBePlayed) {
    const std::string contents[] = {
        "",
        "RIFF",
        "RIFX....WAVE" + Chunk("fmt ", kFormat) + Chunk("data", "samples"),
        Wave(""),
        Wave(Chunk("data", "samples")),
        Wave(Chunk("fmt ", kFormat)),
        Wave(Chunk("fmt ", kFormat) + Chunk("data", "")),
        Wave(Chunk("fmt ", "short") + Chunk("data", "samples")),
    };
    for (const auto& content : contents) EXPECT_THROW(WaveFile::In(content), Failure) << content;
}

}  // namespace
}  // namespace ombrel::decal
