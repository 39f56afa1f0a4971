#include "adapters/decal/WaveFile.h"

#include <algorithm>

#include "core/failure.h"

namespace ombrel::decal {

namespace {

constexpr std::size_t kHead = 12;         // "RIFF", length, "WAVE"
constexpr std::size_t kChunkHead = 8;     // name, length
constexpr std::size_t kShortFormat = 16;  // what every format has

std::size_t LengthAt(std::string_view content, std::size_t at) {
    std::size_t length = 0;
    for (std::size_t byte = 4; byte-- > 0;) length = length << 8 | static_cast<unsigned char>(content[at + byte]);
    return length;
}

}  // namespace

// A file that was cut off plays as far as it goes.
WaveFile WaveFile::In(std::string_view content) {
    WaveFile wave;
    if (content.size() < kHead || content.substr(0, 4) != "RIFF" || content.substr(8, 4) != "WAVE")
        throw Failure(failure::kInvalidCall);
    for (std::size_t at = kHead; at + kChunkHead <= content.size();) {
        const std::string_view name = content.substr(at, 4);
        const std::size_t start = at + kChunkHead;
        const std::size_t length = std::min(LengthAt(content, at + 4), content.size() - start);
        if (name == "fmt ") wave.format = content.substr(start, length);
        if (name == "data") wave.samples = content.substr(start, length);
        at = start + length + length % 2;  // chunks begin at even places
    }
    if (wave.format.size() < kShortFormat || wave.samples.empty()) throw Failure(failure::kInvalidCall);
    return wave;
}

}  // namespace ombrel::decal
